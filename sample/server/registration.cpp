#include "server/registration.h"

#include "com/failure.h"
#include "com/guid_text.h"
#include "com/module.h"
#include "dll/registry.h"
#include "server/published.h"

#include <OPCAutomation.h>

#include <string>
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

/// Whether the interfaces are another program's to install.
bool has_other_library(HKEY root) {
    const Entry ours = library_entry();
    const std::wstring path = registry_text(root, ours.place);
    return !path.empty() && !is_same(path, ours.text);
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
