#include "server/registry_snapshot.h"

#include "dll/registry.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <iterator>
#include <vector>

namespace brx::checks {

namespace {

std::wstring text_of_value(DWORD type, const BYTE* data, DWORD size) {
    std::wstring text = L"(" + std::to_wstring(type) + L")";
    if (type != REG_SZ) {
        for (DWORD i = 0; i < size; ++i) text += L" " + std::to_wstring(data[i]);
        return text;
    }
    text.assign(size / sizeof(wchar_t), L'\0');
    std::memcpy(text.data(), data, text.size() * sizeof(wchar_t));
    return text.c_str();
}

void add_values(HKEY key, const std::wstring& path, RegistrySnapshot& lines) {
    // Large, and needed for thousands of keys.
    static std::vector<wchar_t> name(16384);
    static std::vector<BYTE> data(65536);
    for (DWORD i = 0;; ++i) {
        auto length = static_cast<DWORD>(name.size());
        auto size = static_cast<DWORD>(data.size());
        DWORD type = 0;
        const LSTATUS read = RegEnumValueW(key, i, name.data(), &length, nullptr, &type, data.data(), &size);
        if (read == ERROR_NO_MORE_ITEMS) return;
        if (read != ERROR_SUCCESS) size = 0;
        lines.insert(value_line(path, {name.data(), length}, text_of_value(type, data.data(), size)));
    }
}

void add_key(HKEY parent, const std::wstring& name, const std::wstring& path, RegistrySnapshot& lines) {
    RegistryKey key;
    if (key.open(parent, name, KEY_READ) != ERROR_SUCCESS) return;
    lines.insert(key_line(path));
    add_values(key.get(), path, lines);
    std::array<wchar_t, 256> child{};
    for (DWORD i = 0;; ++i) {
        auto length = static_cast<DWORD>(child.size());
        if (RegEnumKeyExW(key.get(), i, child.data(), &length, nullptr, nullptr, nullptr, nullptr) !=
            ERROR_SUCCESS)
            return;
        add_key(key.get(), child.data(), path.empty() ? child.data() : path + L"\\" + child.data(), lines);
    }
}

} // namespace

RegistrySnapshot take_snapshot(HKEY root, const std::wstring& path) {
    RegistrySnapshot lines;
    add_key(root, path, L"", lines);
    return lines;
}

std::wstring key_line(const std::wstring& key) {
    std::wstring small = key;
    CharLowerBuffW(small.data(), static_cast<DWORD>(small.size()));
    return L"[" + small + L"]";
}

std::wstring value_line(const std::wstring& key, const std::wstring& name, const std::wstring& text) {
    return key_line(key) + L" " + name + L" = " + text;
}

RegistrySnapshot lines_beyond(const RegistrySnapshot& other, const RegistrySnapshot& snapshot) {
    RegistrySnapshot beyond;
    std::set_difference(snapshot.begin(), snapshot.end(), other.begin(), other.end(),
                        std::inserter(beyond, beyond.end()));
    return beyond;
}

} // namespace brx::checks
