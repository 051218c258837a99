#include "dll/registry.h"

#include "com/failure.h"

#include <algorithm>
#include <cwchar>
#include <utility>

namespace brx {

namespace {

void check_status(LSTATUS status) { check(HRESULT_FROM_WIN32(static_cast<DWORD>(status))); }

bool is_absent(LSTATUS status) { return status == ERROR_FILE_NOT_FOUND || status == ERROR_PATH_NOT_FOUND; }

/// False when the key holds something, or cannot be removed.
bool remove_empty_key(HKEY root, const std::wstring& path) {
    {
        RegistryKey key;
        DWORD keys = 0;
        DWORD values = 0;
        if (key.open(root, path, KEY_READ) != ERROR_SUCCESS) return false;
        if (RegQueryInfoKeyW(key.get(), nullptr, nullptr, nullptr, &keys, nullptr, nullptr, &values, nullptr,
                             nullptr, nullptr, nullptr) != ERROR_SUCCESS)
            return false;
        if (keys != 0 || values != 0) return false;
    }
    return RegDeleteKeyW(root, path.c_str()) == ERROR_SUCCESS;
}

} // namespace

RegistryKey::~RegistryKey() {
    if (key_) RegCloseKey(key_);
}

LSTATUS RegistryKey::open(HKEY parent, const std::wstring& path, REGSAM access) {
    if (key_) RegCloseKey(std::exchange(key_, nullptr));
    return RegOpenKeyExW(parent, path.c_str(), 0, access, &key_);
}

bool RegistryKey::create(HKEY parent, const std::wstring& path) {
    if (key_) RegCloseKey(std::exchange(key_, nullptr));
    DWORD disposition = 0;
    check_status(RegCreateKeyExW(parent, path.c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE,
                                 KEY_READ | KEY_WRITE, nullptr, &key_, &disposition));
    return disposition == REG_CREATED_NEW_KEY;
}

RegistryChange::~RegistryChange() {
    if (kept_) return;
    std::for_each(values_.rbegin(), values_.rend(), [&](const Before& each) { put_back(each); });
    std::for_each(made_keys_.rbegin(), made_keys_.rend(),
                  [&](const std::wstring& each) { remove_empty_key(root_, each); });
}

void RegistryChange::write(const RegistryPlace& place, const std::wstring& text) {
    make_key(place.key);
    RegistryKey key;
    key.create(root_, place.key);
    values_.push_back(state_of(key.get(), place));
    check_status(RegSetValueExW(key.get(), place.name.c_str(), 0, REG_SZ,
                                reinterpret_cast<const BYTE*>(text.c_str()),
                                static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t))));
}

/// Level by level, to know which ones are new.
void RegistryChange::make_key(const std::wstring& path) {
    std::size_t end = 0;
    do {
        end = path.find(L'\\', end + 1);
        made_keys_.push_back(path.substr(0, end));
        RegistryKey key;
        const bool stands = key.open(root_, made_keys_.back(), KEY_READ) == ERROR_SUCCESS;
        if (stands || !key.create(root_, made_keys_.back())) made_keys_.pop_back();
    } while (end != std::wstring::npos);
}

RegistryChange::Before RegistryChange::state_of(HKEY key, const RegistryPlace& place) {
    Before before;
    before.place = place;
    DWORD size = 0;
    if (RegQueryValueExW(key, place.name.c_str(), nullptr, nullptr, nullptr, &size) != ERROR_SUCCESS)
        return before;
    before.data.resize(size);
    before.existed = true;
    check_status(RegQueryValueExW(key, place.name.c_str(), nullptr, &before.type, before.data.data(), &size));
    return before;
}

void RegistryChange::put_back(const Before& before) const noexcept {
    RegistryKey key;
    if (key.open(root_, before.place.key, KEY_READ | KEY_WRITE) != ERROR_SUCCESS) return;
    if (before.existed)
        RegSetValueExW(key.get(), before.place.name.c_str(), 0, before.type, before.data.data(),
                       static_cast<DWORD>(before.data.size()));
    else
        RegDeleteValueW(key.get(), before.place.name.c_str());
}

std::wstring registry_text(HKEY root, const RegistryPlace& place, REGSAM view) {
    RegistryKey key;
    if (key.open(root, place.key, KEY_READ | view) != ERROR_SUCCESS) return {};
    DWORD size = 0;
    if (RegGetValueW(key.get(), nullptr, place.name.c_str(), RRF_RT_REG_SZ, nullptr, nullptr, &size) !=
        ERROR_SUCCESS)
        return {};
    std::wstring text(size / sizeof(wchar_t), L'\0');
    if (RegGetValueW(key.get(), nullptr, place.name.c_str(), RRF_RT_REG_SZ, nullptr, text.data(), &size) !=
        ERROR_SUCCESS)
        return {};
    text.resize(std::wcslen(text.c_str())); // without what closes it
    return text;
}

void remove_from_registry(HKEY root, const RegistryPlace& place) {
    {
        RegistryKey key;
        const LSTATUS opened = key.open(root, place.key, KEY_READ | KEY_WRITE);
        if (is_absent(opened)) return;
        check_status(opened);
        const LSTATUS removed = RegDeleteValueW(key.get(), place.name.c_str());
        if (!is_absent(removed)) check_status(removed);
    }
    std::wstring path = place.key;
    while (path != classes_key && remove_empty_key(root, path)) {
        const std::size_t end = path.rfind(L'\\');
        if (end == std::wstring::npos) return;
        path.resize(end);
    }
}

} // namespace brx
