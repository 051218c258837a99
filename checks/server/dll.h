#pragma once

#include "win32/com_ptr.h"

#include <windows.h>

#include <oleauto.h>

#include <string>

namespace brx::checks {

/// The component's file as it was built.
std::wstring dll_path();

/// The component loaded from a file, by its entry points alone.
class Dll {
public:
    /// Fails the check when the file cannot be loaded or lacks an entry point.
    explicit Dll(const std::wstring& path = dll_path());
    Dll(const Dll&) = delete;
    Dll& operator=(const Dll&) = delete;
    ~Dll();

    HMODULE module() const { return module_; }
    HRESULT register_for_machine() const { return DllRegisterServer_(); }
    HRESULT unregister_for_machine() const { return DllUnregisterServer_(); }
    HRESULT install(bool install, const wchar_t* whom) const { return DllInstall_(install, whom); }
    bool can_unload() const { return DllCanUnloadNow_() == S_OK; }
    HRESULT class_object(REFCLSID clsid, REFIID iid, void** object) const {
        return DllGetClassObject_ ? DllGetClassObject_(clsid, iid, object) : E_FAIL;
    }

    com_ptr<IClassFactory> factory(REFCLSID clsid) const;

    /// A new object of a class; none when it cannot be made or lacks the interface.
    template <class Interface> com_ptr<Interface> create(REFCLSID clsid) const {
        com_ptr<Interface> object;
        if (const auto made_by = factory(clsid))
            made_by->CreateInstance(nullptr, __uuidof(Interface), reinterpret_cast<void**>(object.out()));
        return object;
    }

private:
    HMODULE module_ = nullptr;
    HRESULT(STDAPICALLTYPE* DllRegisterServer_)() = nullptr;
    HRESULT(STDAPICALLTYPE* DllUnregisterServer_)() = nullptr;
    HRESULT(STDAPICALLTYPE* DllInstall_)(BOOL, const wchar_t*) = nullptr;
    HRESULT(STDAPICALLTYPE* DllCanUnloadNow_)() = nullptr;
    HRESULT(STDAPICALLTYPE* DllGetClassObject_)(REFCLSID, REFIID, void**) = nullptr;
};

/// The thread's apartment, as a host has it.
class Apartment {
public:
    Apartment() { OleInitialize(nullptr); }
    Apartment(const Apartment&) = delete;
    Apartment& operator=(const Apartment&) = delete;
    ~Apartment() { OleUninitialize(); }
};

} // namespace brx::checks
