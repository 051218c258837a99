#include "dll/registration.h"

#include "com/failure.h"
#include "dll/registration_entries.h"
#include "dll/registry.h"

#include <algorithm>

namespace brx {

namespace {

#ifdef _WIN64
constexpr REGSAM view_of_other_bits = KEY_WOW64_32KEY;
#else
constexpr REGSAM view_of_other_bits = KEY_WOW64_64KEY;
#endif

HKEY hive_of(RegisteredFor whom) {
    return whom == RegisteredFor::machine ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER;
}

std::wstring long_path(const std::wstring& path) {
    std::wstring result(32768, L'\0');
    const DWORD length = GetLongPathNameW(path.c_str(), result.data(), static_cast<DWORD>(result.size()));
    if (length == 0 || length >= result.size()) return path;
    result.resize(length);
    return result;
}

bool same_file(const std::wstring& a, const std::wstring& b) {
    return CompareStringOrdinal(long_path(a).c_str(), -1, long_path(b).c_str(), -1, TRUE) == CSTR_EQUAL;
}

/// Whether hosts find the classes in another file that is there. One that is gone belongs to nobody.
bool registered_by_another_file(HKEY hive, const Registration& registration) {
    return std::any_of(registration.server_places.begin(), registration.server_places.end(),
                       [&](const RegistryPlace& place) {
                           const std::wstring path = registry_text(hive, place);
                           return !path.empty() && !same_file(path, registration.path) &&
                                  GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
                       });
}

/// On a system without a second view this looks at the first one.
bool registered_for_other_bits(HKEY hive, const Registration& registration) {
    return std::any_of(
        registration.server_places.begin(), registration.server_places.end(),
        [&](const RegistryPlace& place) { return !registry_text(hive, place, view_of_other_bits).empty(); });
}

/// Removes as much as it can; the first failure is told at the end.
class Removal {
public:
    explicit Removal(HKEY root) : root_(root) {}

    void remove(const RegistryPlace& place) {
        const HRESULT removed = guard(IID_NULL, [&] { remove_from_registry(root_, place); });
        if (SUCCEEDED(first_failure_)) first_failure_ = removed;
    }
    void finish() const { check(first_failure_); }

private:
    HKEY root_;
    HRESULT first_failure_ = S_OK;
};

} // namespace

HRESULT register_component(RegisteredFor whom) noexcept {
    return guard(IID_NULL, [&] {
        const Registration registration = this_registration();
        RegistryChange change(hive_of(whom));
        for (const RegistryEntry& each : registration.entries) change.write(each.place, each.text);
        change.keep();
    });
}

HRESULT unregister_component(RegisteredFor whom) noexcept {
    return guard(IID_NULL, [&] {
        const Registration registration = this_registration();
        HKEY hive = hive_of(whom);
        if (registered_by_another_file(hive, registration)) return;

        Removal removal(hive);
        const auto remove = [&](bool shared) {
            for (const RegistryEntry& each : registration.entries)
                if (each.shared == shared) removal.remove(each.place);
        };
        remove(false);
        if (!registered_for_other_bits(hive, registration)) remove(true);
        removal.finish();
    });
}

} // namespace brx
