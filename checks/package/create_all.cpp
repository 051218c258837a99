// Creates an object of each public class, by its name, by its name with the version, and by its identifier,
// with nothing of the project but the headers of the developer's kit. Ends with 0 when all came.

#include <windows.h>

#include <brxOpcDlgs6.h>

#include <cstdio>
#include <string>

namespace {

int made = 0;

void create(const std::wstring& name, const CLSID& clsid, const IID& iid) {
    IUnknown* object = nullptr;
    const HRESULT result =
        CoCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER, iid, reinterpret_cast<void**>(&object));
    if (FAILED(result)) {
        std::printf("error: %ls cannot be created: 0x%08lx\n", name.c_str(),
                    static_cast<unsigned long>(result));
        return;
    }
    ++made;
    object->Release();
}

/// What a manifest gives for a name need not be the identifier that stands in the library.
void create_by_name(const std::wstring& name, const IID& iid) {
    CLSID clsid{};
    if (const HRESULT result = CLSIDFromProgID(name.c_str(), &clsid); FAILED(result))
        std::printf("error: %ls is unknown: 0x%08lx\n", name.c_str(), static_cast<unsigned long>(result));
    else
        create(name, clsid, iid);
}

void create_in_all_ways(const std::wstring& name, const CLSID& clsid, const IID& iid) {
    create(name, clsid, iid);
    create_by_name(L"brxOpcDlgs6." + name, iid);
    create_by_name(L"brxOpcDlgs6." + name + L".6", iid);
}

} // namespace

int main() {
    OleInitialize(nullptr);
    create_in_all_ways(L"ServerSelect", CLSID_ServerSelect, IID__ServerSelect);
    create_in_all_ways(L"ServerAdd", CLSID_ServerAdd, IID__ServerAdd);
    create_in_all_ways(L"ServerInformation", CLSID_ServerInformation, IID__ServerInformation);
    create_in_all_ways(L"LeafSelect", CLSID_LeafSelect, IID__LeafSelect);
    create_in_all_ways(L"TestConfiguration", CLSID_TestConfiguration, IID__TestConfiguration);
    create_in_all_ways(L"ConfigurationSetup", CLSID_ConfigurationSetup, IID__ConfigurationSetup);
    OleUninitialize();
    std::printf("%d objects\n", made);
    return made == 18 ? 0 : 1;
}
