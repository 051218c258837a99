#include "adapters/to_com.h"
#include "com/failure.h"
#include "dll/class_factory.h"
#include "objects/classes.h"
#include "objects/registration.h"
#include "win32/module.h"

#include <windows.h>

#include <olectl.h>

// What the system and registration programs call the DLL by.

STDAPI DllGetClassObject(REFCLSID clsid, REFIID iid, void** object) {
    if (!object) return E_POINTER;
    *object = nullptr;
    brx::give_doubles();
    for (const brx::host::NamedClass& each : brx::host::classes()) {
        if (each.made.clsid != clsid) continue;
        HRESULT found = S_OK;
        const HRESULT made =
            brx::guard(iid, [&] { found = brx::class_factory_of(each.made)->QueryInterface(iid, object); });
        return FAILED(made) ? made : found;
    }
    return CLASS_E_CLASSNOTAVAILABLE;
}

STDAPI DllCanUnloadNow() { return brx::ModuleLock::count() == 0 ? S_OK : S_FALSE; }

STDAPI DllRegisterServer() { return brx::host::register_classes(HKEY_LOCAL_MACHINE); }

STDAPI DllUnregisterServer() { return brx::host::unregister_classes(HKEY_LOCAL_MACHINE); }

/// `whom` is "user" for the present user, empty for the machine: regsvr32 /n /i:user brxSample.dll
STDAPI DllInstall(BOOL install, const wchar_t* whom) {
    const bool for_user = whom && CompareStringOrdinal(whom, -1, L"user", -1, TRUE) == CSTR_EQUAL;
    if (whom && *whom && !for_user) return E_INVALIDARG;
    HKEY root = for_user ? HKEY_CURRENT_USER : HKEY_LOCAL_MACHINE;
    return install ? brx::host::register_classes(root) : brx::host::unregister_classes(root);
}
