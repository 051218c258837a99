#include "server/registration.h"

#include "com/failure.h"
#include "com/guid_text.h"
#include "dll/registry.h"
#include "server/published.h"
#include "win32/module.h"

#include <OPCAutomation.h>

#include <filesystem>
#include <string>
#include <system_error>
#include <vector>

namespace brx::server {

const CLSID server_class{0x8684556D, 0x2892, 0x4CA2, {0xBB, 0x6E, 0x94, 0xD0, 0x13, 0x7A, 0x16, 0x86}};

namespace {

constexpr const wchar_t* description = L"Simulated plant of the OPC collection sample host";
/// The system's own proxy for automation interfaces, which works by the type library.
constexpr const wchar_t* automation_proxy = L"{00020424-0000-0000-C000-000000000046}";
constexpr const wchar_t* own_name = L"brxSample.Server";
constexpr const wchar_t* wrapper_name = L"OPC.Automation";
constexpr const wchar_t* library_version = L"1.0";

#ifdef _WIN64
constexpr const wchar_t* platform = L"win64";
#else
constexpr const wchar_t* platform = L"win32";
#endif

struct Entry {
    RegistryPlace place;
    std::wstring text;
};
using Entries = std::vector<Entry>;

const std::wstring classes_path = std::wstring(classes_key) + L"\\";

std::wstring class_id() { return guid_text(server_class); }
std::wstring class_key() { return classes_path + L"CLSID\\" + class_id(); }

Entry server_entry() { return {{class_key() + L"\\LocalServer32", L""}, L"\"" + module_path() + L"\""}; }

/// The interfaces' own library lies inside the program.
Entry library_entry() {
    return {{classes_path + L"TypeLib\\" + guid_text(LIBID_OPCAutomation) + L"\\" + library_version +
                 L"\\0\\" + platform,
             L""},
            module_path()};
}

bool is_same(const std::wstring& one, const std::wstring& other) {
    return CompareStringOrdinal(one.c_str(), -1, other.c_str(), -1, TRUE) == CSTR_EQUAL;
}

RegistryPlace class_of(const wchar_t* name) { return {classes_path + name + L"\\CLSID", L""}; }

void add_name(Entries& entries, const wchar_t* name) {
    entries.push_back({{classes_path + name, L""}, description});
    entries.push_back({class_of(name), class_id()});
}

Entries class_entries() {
    Entries entries{{{class_key(), L""}, description}, {{class_key() + L"\\ProgID", L""}, own_name}};
    entries.push_back(server_entry());
    add_name(entries, own_name);
    return entries;
}

/// What calls to the interfaces travel by. An installed wrapper has it too.
Entries interface_entries() {
    Entries entries{library_entry()};
    for (const IID& iid : published_interfaces()) {
        const std::wstring key = classes_path + L"Interface\\" + guid_text(iid);
        entries.push_back({{key + L"\\ProxyStubClsid32", L""}, automation_proxy});
        entries.push_back({{key + L"\\TypeLib", L""}, guid_text(LIBID_OPCAutomation)});
        entries.push_back({{key + L"\\TypeLib", L"Version"}, library_version});
    }
    return entries;
}

/// By another class, whoever it was installed for.
bool is_taken(const wchar_t* name) {
    for (HKEY hive : {HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE}) {
        const std::wstring id = registry_text(hive, class_of(name));
        if (!id.empty() && !is_same(id, class_id())) return true;
    }
    return false;
}

/// What is no full path may be found anywhere.
bool is_gone(const std::wstring& path) {
    std::error_code failure;
    return std::filesystem::path(path).is_absolute() && !std::filesystem::exists(path, failure) && !failure;
}

/// The file that a library lies in: a number behind it says which one of those inside.
std::wstring file_of_library(const std::wstring& path) {
    const std::size_t name = path.find_last_of(L'\\') + 1;
    const bool is_number =
        name > 0 && name < path.size() && path.find_first_not_of(L"0123456789", name) == std::wstring::npos;
    return is_number ? path.substr(0, name - 1) : path;
}

/// Whether the interfaces are another program's to install: one that is there, and is not this one in the
/// folder where it lay before.
bool has_other_library(HKEY root) {
    const Entry ours = library_entry();
    const std::wstring path = registry_text(root, ours.place);
    if (path.empty() || is_same(path, ours.text)) return false;
    if (is_same(L"\"" + path + L"\"", registry_text(root, server_entry().place))) return false;
    return !is_gone(file_of_library(path));
}

void remove(HKEY root, const Entries& entries) {
    for (auto each = entries.rbegin(); each != entries.rend(); ++each)
        remove_from_registry(root, each->place);
}

} // namespace

HRESULT install(HKEY root) noexcept {
    return guard(IID_NULL, [&] {
        Entries entries = class_entries();
        if (!is_taken(wrapper_name)) add_name(entries, wrapper_name);
        if (!has_other_library(root))
            for (Entry& each : interface_entries()) entries.push_back(std::move(each));
        RegistryChange change(root);
        for (const Entry& each : entries) change.write(each.place, each.text);
        change.keep();
    });
}

HRESULT uninstall(HKEY root) noexcept {
    return guard(IID_NULL, [&] {
        if (!is_same(registry_text(root, server_entry().place), server_entry().text)) return;
        if (!has_other_library(root)) remove(root, interface_entries());
        Entries entries = class_entries();
        if (is_same(registry_text(root, class_of(wrapper_name)), class_id())) add_name(entries, wrapper_name);
        remove(root, entries);
    });
}

} // namespace brx::server
