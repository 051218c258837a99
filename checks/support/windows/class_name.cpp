#include "windows/class_name.h"

#include "com/failure.h"

#include <objbase.h>

namespace brx::checks {

namespace {

constexpr const wchar_t* classes = L"Software\\Classes\\";

LSTATUS write(HKEY root, const std::wstring& name, const std::wstring& clsid) {
    return RegSetKeyValueW(root, (classes + name + L"\\CLSID").c_str(), nullptr, REG_SZ, clsid.c_str(),
                           static_cast<DWORD>((clsid.size() + 1) * sizeof(wchar_t)));
}

void remove(HKEY root, const std::wstring& name) {
    const std::wstring key = classes + name;
    if (RegDeleteTreeW(root, key.c_str()) == ERROR_SUCCESS) RegDeleteKeyW(root, key.c_str());
}

} // namespace

void register_class_name(const std::wstring& name, const std::wstring& clsid) {
    check(HRESULT_FROM_WIN32(static_cast<DWORD>(write(HKEY_CURRENT_USER, name, clsid))));
    CLSID found{};
    if (SUCCEEDED(CLSIDFromProgID(name.c_str(), &found))) return;
    remove(HKEY_CURRENT_USER, name);
    check(HRESULT_FROM_WIN32(static_cast<DWORD>(write(HKEY_LOCAL_MACHINE, name, clsid))));
}

void unregister_class_name(const std::wstring& name) {
    remove(HKEY_CURRENT_USER, name);
    remove(HKEY_LOCAL_MACHINE, name);
}

} // namespace brx::checks
