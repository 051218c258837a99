#include "server/expected_registration.h"

namespace brx::checks {

namespace {

constexpr const wchar_t* library_id = L"{438E101D-A88C-4F38-BC9F-703D56A00BBB}";

#ifdef _WIN64
constexpr const wchar_t* platform = L"win64";
#else
constexpr const wchar_t* platform = L"win32";
#endif

class Lines {
public:
    void key(const std::wstring& key) { lines_.insert(key_line(key)); }
    void text(const std::wstring& in_key, const std::wstring& name, const std::wstring& text) {
        key(in_key);
        lines_.insert(value_line(in_key, name, text));
    }

    void of_class(const std::wstring& name, const std::wstring& id, const std::wstring& help,
                  const std::wstring& path) {
        const std::wstring in = L"CLSID\\" + id;
        text(in, L"", help);
        text(in + L"\\InprocServer32", L"", path);
        text(in + L"\\InprocServer32", L"ThreadingModel", L"Apartment");
        text(in + L"\\ProgID", L"", name);
        text(in + L"\\TypeLib", L"", library_id);
        text(in + L"\\Version", L"", L"6.0");
        text(in + L"\\VersionIndependentProgID", L"", name);
        text(name, L"", help);
        text(name + L"\\CLSID", L"", id);
        text(name + L"\\CurVer", L"", name + L".6");
        text(name + L".6", L"", help);
        text(name + L".6\\CLSID", L"", id);
    }

    void of_interface(const std::wstring& name, const std::wstring& id) {
        const std::wstring in = L"Interface\\" + id;
        text(in, L"", name);
        text(in + L"\\ProxyStubClsid32", L"", L"{00020424-0000-0000-C000-000000000046}");
        text(in + L"\\TypeLib", L"", library_id);
        text(in + L"\\TypeLib", L"Version", L"6.0");
    }

    void of_library(const std::wstring& path) {
        const std::wstring in = std::wstring(L"TypeLib\\") + library_id;
        key(in);
        text(in + L"\\6.0", L"", L"brxOpcDlgs6 OPC collection dialogs");
        key(in + L"\\6.0\\0");
        text(in + L"\\6.0\\0\\" + platform, L"", path);
        text(in + L"\\6.0\\FLAGS", L"", L"0");
        text(in + L"\\6.0\\HELPDIR", L"", path.substr(0, path.rfind(L'\\')));
    }

    RegistrySnapshot take() { return std::move(lines_); }

private:
    RegistrySnapshot lines_;
};

} // namespace

RegistrySnapshot expected_registration(const std::wstring& path) {
    Lines lines;
    lines.of_class(L"brxOpcDlgs6.ServerSelect", L"{FFF1633C-31EE-4CFE-BE2F-C0E070EC992B}",
                   L"Lets a person choose one of the configured OPC servers", path);
    lines.of_class(L"brxOpcDlgs6.ServerAdd", L"{45815F10-1C01-4DF1-99FC-2070887B3645}",
                   L"Lets a person find an OPC server on a network node and add it", path);
    lines.of_class(L"brxOpcDlgs6.ServerInformation", L"{26B35663-08AC-4A8B-8777-8D4976EFA5FD}",
                   L"Shows the status of a connected OPC server", path);
    lines.of_class(L"brxOpcDlgs6.LeafSelect", L"{A9970AA9-B7C3-4AF0-9BB2-5D7481D33CF2}",
                   L"Lets a person choose one item of an OPC server", path);
    lines.of_class(L"brxOpcDlgs6.TestConfiguration", L"{A5F1F9D1-BAAD-4A96-8258-5CE6EA008F9F}",
                   L"Lets a person edit one test of a collection configuration", path);
    lines.of_class(L"brxOpcDlgs6.ConfigurationSetup", L"{2E1AACA0-0E1A-4650-9010-30195D91947B}",
                   L"Lets a person edit a collection configuration", path);
    lines.of_interface(L"_ServerSelect", L"{D497772F-7523-4AE5-813E-D8E1B101DB16}");
    lines.of_interface(L"_ServerAdd", L"{D39D5860-BDBE-44D0-A783-8546DEFB1A03}");
    lines.of_interface(L"_ServerInformation", L"{BC765970-03C7-46B7-B24A-66850C251B6D}");
    lines.of_interface(L"_LeafSelect", L"{699C2C24-157C-42AB-ACCA-5F8F27DFD59A}");
    lines.of_interface(L"_TestConfiguration", L"{5D12C8BF-CB0C-48C9-9146-C6F97FB01FA5}");
    lines.of_interface(L"_ConfigurationSetup", L"{8A998943-6CD1-4E82-A293-C208147D384B}");
    lines.of_library(path);
    return lines.take();
}

} // namespace brx::checks
