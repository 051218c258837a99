#pragma once

#include <windows.h>

#include <string>

namespace brx {

/// A function of a DLL, or null: not every system has every one.
template <class Function> Function function_of(HMODULE dll, const char* name) {
    return dll ? reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(dll, name))) : nullptr;
}

/// The same of a DLL that is loaded already.
template <class Function> Function function_of(const wchar_t* loaded, const char* name) {
    return function_of<Function>(GetModuleHandleW(loaded), name);
}

/// Loads a DLL from the system's folder and nowhere else; null where there is none.
inline HMODULE load_of_system(const wchar_t* dll) {
    std::wstring path(MAX_PATH, L'\0');
    path.resize(GetSystemDirectoryW(path.data(), MAX_PATH));
    return LoadLibraryW((path + L'\\' + dll).c_str());
}

} // namespace brx
