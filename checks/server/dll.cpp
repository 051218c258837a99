#include "server/dll.h"

#include "win32/module.h"

#include <gtest/gtest.h>

#include <cstring>

namespace brx::checks {

namespace {

template <class Function> void find(HMODULE module, const char* name, Function& function) {
    const FARPROC found = GetProcAddress(module, name);
    if (!found) ADD_FAILURE() << "no entry point " << name;
    static_assert(sizeof found == sizeof function);
    std::memcpy(&function, &found, sizeof found);
}

} // namespace

std::wstring dll_path() {
    const std::wstring program = module_path();
    const std::wstring path = program.substr(0, program.rfind(L'\\') + 1) + L"" BRX_DLL_FROM_PROGRAM;
    std::wstring full(32768, L'\0');
    full.resize(GetFullPathNameW(path.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr));
    return full;
}

Dll::Dll(const std::wstring& path) : module_(LoadLibraryW(path.c_str())) {
    if (!module_) {
        ADD_FAILURE() << "the component cannot be loaded: error " << GetLastError();
        return;
    }
    find(module_, "DllRegisterServer", DllRegisterServer_);
    find(module_, "DllUnregisterServer", DllUnregisterServer_);
    find(module_, "DllInstall", DllInstall_);
    find(module_, "DllCanUnloadNow", DllCanUnloadNow_);
    find(module_, "DllGetClassObject", DllGetClassObject_);
}

Dll::~Dll() {
    if (module_) FreeLibrary(module_);
}

com_ptr<IClassFactory> Dll::factory(REFCLSID clsid) const {
    com_ptr<IClassFactory> factory;
    class_object(clsid, IID_IClassFactory, reinterpret_cast<void**>(factory.out()));
    return factory;
}

} // namespace brx::checks
