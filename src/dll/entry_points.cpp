#include "com/failure.h"
#include "dll/class_factory.h"
#include "dll/public_classes.h"
#include "dll/registration.h"
#include "win32/module.h"

#include <windows.h>

#include <olectl.h>

// What the system and registration programs call the DLL by.

STDAPI DllGetClassObject(REFCLSID clsid, REFIID iid, void** object) {
    if (!object) return E_POINTER;
    *object = nullptr;
    const brx::PublicClass* wanted = brx::find_public_class(clsid);
    if (!wanted) return CLASS_E_CLASSNOTAVAILABLE;
    HRESULT found = S_OK;
    const HRESULT made =
        brx::guard(iid, [&] { found = brx::class_factory_of(*wanted)->QueryInterface(iid, object); });
    return FAILED(made) ? made : found;
}

STDAPI DllCanUnloadNow() { return brx::ModuleLock::count() == 0 ? S_OK : S_FALSE; }

STDAPI DllRegisterServer() { return brx::register_component(brx::RegisteredFor::machine); }

STDAPI DllUnregisterServer() { return brx::unregister_component(brx::RegisteredFor::machine); }

/// `whom` is "user" for the present user, empty for the machine: regsvr32 /n /i:user brxOpcDlgs6.dll
STDAPI DllInstall(BOOL install, const wchar_t* whom) {
    const bool for_user = whom && CompareStringOrdinal(whom, -1, L"user", -1, TRUE) == CSTR_EQUAL;
    if (whom && *whom && !for_user) return E_INVALIDARG;
    const auto registered_for = for_user ? brx::RegisteredFor::user : brx::RegisteredFor::machine;
    return install ? brx::register_component(registered_for) : brx::unregister_component(registered_for);
}
