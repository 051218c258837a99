#include "dll/registration_entries.h"

#include "com/bstr.h"
#include "com/failure.h"
#include "com/guid_text.h"
#include "com/type_info.h"
#include "dll/public_classes.h"
#include "win32/module.h"

#include <array>
#include <memory>
#include <utility>

namespace brx {

namespace {

const std::wstring classes = std::wstring(classes_key) + L"\\";

/// The system's own proxy for automation interfaces, which works by the type library.
constexpr const wchar_t* automation_proxy = L"{00020424-0000-0000-C000-000000000046}";

#ifdef _WIN64
constexpr const wchar_t* platform = L"win64";
#else
constexpr const wchar_t* platform = L"win32";
#endif

std::wstring hexadecimal(unsigned number) {
    std::array<wchar_t, 9> text{};
    swprintf(text.data(), text.size(), L"%x", number);
    return text.data();
}

struct Documentation {
    std::wstring name;
    std::wstring help;
};

template <class Described> Documentation documentation_of(Described& described, int member) {
    Bstr name;
    Bstr help;
    check(described.GetDocumentation(member, name.out(), help.out(), nullptr, nullptr));
    return {wide(name.text()), wide(help.text())};
}

/// Collects the entries; `describe` functions know the layout of the registry.
class Entries {
public:
    explicit Entries(std::wstring path) : path_(std::move(path)) {}

    void describe(ITypeLib& library) {
        TLIBATTR* found = nullptr;
        check(library.GetLibAttr(&found));
        const auto release = [&](TLIBATTR* attributes) { library.ReleaseTLibAttr(attributes); };
        const std::unique_ptr<TLIBATTR, decltype(release)> attributes(found, release);
        const Documentation library_text = documentation_of(library, MEMBERID_NIL);
        library_name_ = library_text.name;
        library_id_ = guid_text(attributes->guid);
        major_version_ = hexadecimal(attributes->wMajorVerNum);
        version_ = major_version_ + L"." + hexadecimal(attributes->wMinorVerNum);

        const std::wstring key = L"TypeLib\\" + library_id_ + L"\\" + version_;
        const std::wstring language = hexadecimal(attributes->lcid);
        // The path is not shared: each kind of program has its own key for it.
        own(key + L"\\" + language + L"\\" + platform, L"", path_);
        shared(key, L"", library_text.help);
        shared(key + L"\\FLAGS", L"",
               std::to_wstring(attributes->wLibFlags & ~unsigned{LIBFLAG_FHASDISKIMAGE}));
        shared(key + L"\\HELPDIR", L"", path_.substr(0, path_.rfind(L'\\')));

        for (UINT i = 0; i < library.GetTypeInfoCount(); ++i) {
            com_ptr<ITypeInfo> info;
            check(library.GetTypeInfo(i, info.out()));
            describe(*info.get());
        }
    }

    Registration take() { return {path_, std::move(entries_), std::move(server_places_)}; }

private:
    void describe(ITypeInfo& info) {
        TYPEATTR* found = nullptr;
        check(info.GetTypeAttr(&found));
        const auto release = [&](TYPEATTR* attributes) { info.ReleaseTypeAttr(attributes); };
        const std::unique_ptr<TYPEATTR, decltype(release)> attributes(found, release);
        if (attributes->typekind == TKIND_DISPATCH)
            describe_interface(guid_text(attributes->guid), documentation_of(info, MEMBERID_NIL));
        else if (attributes->typekind == TKIND_COCLASS && find_public_class(attributes->guid))
            describe_class(guid_text(attributes->guid), documentation_of(info, MEMBERID_NIL));
    }

    void describe_interface(const std::wstring& id, const Documentation& text) {
        const std::wstring key = L"Interface\\" + id;
        own(key, L"", text.name);
        own(key + L"\\ProxyStubClsid32", L"", automation_proxy);
        own(key + L"\\TypeLib", L"", library_id_);
        own(key + L"\\TypeLib", L"Version", version_);
    }

    void describe_class(const std::wstring& id, const Documentation& text) {
        const std::wstring name = library_name_ + L"." + text.name;
        const std::wstring versioned_name = name + L"." + major_version_;
        const std::wstring key = L"CLSID\\" + id;
        own(key, L"", text.help);
        own(key + L"\\InprocServer32", L"", path_);
        server_places_.push_back(entries_.back().place);
        own(key + L"\\InprocServer32", L"ThreadingModel", L"Apartment");
        // The name that hosts have always been told for the class, not the versioned one.
        own(key + L"\\ProgID", L"", name);
        own(key + L"\\TypeLib", L"", library_id_);
        own(key + L"\\Version", L"", version_);
        own(key + L"\\VersionIndependentProgID", L"", name);
        shared(name, L"", text.help);
        shared(name + L"\\CLSID", L"", id);
        shared(name + L"\\CurVer", L"", versioned_name);
        shared(versioned_name, L"", text.help);
        shared(versioned_name + L"\\CLSID", L"", id);
    }

    void own(const std::wstring& key, const wchar_t* name, const std::wstring& text) {
        entries_.push_back({{classes + key, name}, text, false});
    }
    void shared(const std::wstring& key, const wchar_t* name, const std::wstring& text) {
        entries_.push_back({{classes + key, name}, text, true});
    }

    std::wstring path_;
    std::wstring library_name_;
    std::wstring library_id_;
    std::wstring major_version_;
    std::wstring version_;
    std::vector<RegistryEntry> entries_;
    std::vector<RegistryPlace> server_places_;
};

} // namespace

Registration this_registration() {
    com_ptr<ITypeLib> library;
    UINT index = 0;
    check(type_info_of(public_classes().front().clsid)->GetContainingTypeLib(library.out(), &index));
    Entries entries(module_path());
    entries.describe(*library.get());
    return entries.take();
}

} // namespace brx
