#pragma once

#include <windows.h>

#include <cstddef>
#include <string>
#include <vector>

namespace brx {

/// Where hosts look for classes, in either hive.
inline constexpr const wchar_t* classes_key = L"Software\\Classes";

/// Owns an open key of the registry.
class RegistryKey {
public:
    RegistryKey() noexcept = default;
    RegistryKey(const RegistryKey&) = delete;
    RegistryKey& operator=(const RegistryKey&) = delete;
    ~RegistryKey();

    /// What the platform says of opening a key below another one.
    LSTATUS open(HKEY parent, const std::wstring& path, REGSAM access);
    /// Opens a key below another one, whose parent exists. True when it had to be made; throws when that
    /// failed.
    bool create(HKEY parent, const std::wstring& path);

    HKEY get() const noexcept { return key_; }

private:
    HKEY key_ = nullptr;
};

/// Where a value stands. An empty name is the key's default value.
struct RegistryPlace {
    std::wstring key; ///< below a hive
    std::wstring name;
};

/// Texts written together: unless they are kept, everything is put back as it was.
class RegistryChange {
public:
    explicit RegistryChange(HKEY root) : root_(root) {}
    RegistryChange(const RegistryChange&) = delete;
    RegistryChange& operator=(const RegistryChange&) = delete;
    ~RegistryChange();

    /// Throws when it cannot be written.
    void write(const RegistryPlace& place, const std::wstring& text);
    void keep() noexcept { kept_ = true; }

private:
    struct Before {
        RegistryPlace place;
        bool existed = false;
        DWORD type = REG_NONE;
        std::vector<BYTE> data;
    };
    void make_key(const std::wstring& path);
    static Before state_of(HKEY key, const RegistryPlace& place);
    void put_back(const Before& before) const noexcept;

    HKEY root_;
    std::vector<std::wstring> made_keys_;
    std::vector<Before> values_;
    bool kept_ = false;
};

/// The text that stands there; empty when there is none. `view` may ask for the keys of programs of other
/// bits.
std::wstring registry_text(HKEY root, const RegistryPlace& place, REGSAM view = 0);

/// Removes the value, whatever it is, and then every key around it that holds nothing any more, but never
/// `classes_key`, which is the system's own. Fine when there is none; throws when it cannot be removed.
void remove_from_registry(HKEY root, const RegistryPlace& place);

} // namespace brx
