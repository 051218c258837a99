#include "common/version.h"
#include "server/dll.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <string>
#include <vector>

namespace brx::checks {

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::UnorderedElementsAre;

/// The DLL's own tables, as the loader reads them.
class Image {
public:
    explicit Image(HMODULE module) : base_(reinterpret_cast<const BYTE*>(module)) {}

    std::vector<std::string> exports() const {
        const auto& table = directory<IMAGE_EXPORT_DIRECTORY>(IMAGE_DIRECTORY_ENTRY_EXPORT);
        const auto* names = at<DWORD>(table.AddressOfNames);
        std::vector<std::string> found;
        for (DWORD i = 0; i < table.NumberOfNames; ++i) found.emplace_back(at<char>(names[i]));
        // Some linkers leave the number 0 empty.
        const auto* places = at<DWORD>(table.AddressOfFunctions);
        const auto used =
            std::count_if(places, places + table.NumberOfFunctions, [](DWORD place) { return place != 0; });
        if (used != static_cast<std::ptrdiff_t>(table.NumberOfNames))
            found.emplace_back("something without a name");
        return found;
    }

    std::vector<std::string> imported_files() const {
        std::vector<std::string> found;
        for (const auto* each = &directory<IMAGE_IMPORT_DESCRIPTOR>(IMAGE_DIRECTORY_ENTRY_IMPORT); each->Name;
             ++each) {
            std::string name = at<char>(each->Name);
            std::transform(name.begin(), name.end(), name.begin(), [](char c) {
                return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 'a' - 'A') : c;
            });
            found.push_back(name);
        }
        return found;
    }

    WORD characteristics() const { return headers().OptionalHeader.DllCharacteristics; }

private:
    template <class T> const T* at(DWORD place) const { return reinterpret_cast<const T*>(base_ + place); }
    const IMAGE_NT_HEADERS& headers() const {
        return *at<IMAGE_NT_HEADERS>(static_cast<DWORD>(at<IMAGE_DOS_HEADER>(0)->e_lfanew));
    }
    template <class T> const T& directory(std::size_t number) const {
        return *at<T>(headers().OptionalHeader.DataDirectory[number].VirtualAddress);
    }

    const BYTE* base_;
};

BOOL CALLBACK note_type(HMODULE, wchar_t* type, LONG_PTR found) {
    reinterpret_cast<std::vector<std::wstring>*>(found)->push_back(
        IS_INTRESOURCE(type) ? std::to_wstring(reinterpret_cast<ULONG_PTR>(type)) : type);
    return TRUE;
}

class FileTest : public testing::Test {
protected:
    std::vector<std::wstring> resource_types() {
        std::vector<std::wstring> types;
        EnumResourceTypesW(dll.module(), note_type, reinterpret_cast<LONG_PTR>(&types));
        return types;
    }

    std::vector<BYTE> version() {
        std::vector<BYTE> data(GetFileVersionInfoSizeW(dll_path().c_str(), nullptr));
        GetFileVersionInfoW(dll_path().c_str(), 0, static_cast<DWORD>(data.size()), data.data());
        return data;
    }

    std::wstring version_text(const std::vector<BYTE>& data, const std::wstring& name) {
        void* text = nullptr;
        UINT length = 0;
        const std::wstring place = L"\\StringFileInfo\\040904B0\\" + name;
        if (!VerQueryValueW(data.data(), place.c_str(), &text, &length)) return L"(none)";
        return static_cast<const wchar_t*>(text);
    }

    Dll dll;
    Image image{dll.module()};
};

} // namespace

TEST_F(FileTest, ItExportsTheFiveEntryPointsByTheirPlainNames) {
    EXPECT_THAT(image.exports(), ElementsAre("DllCanUnloadNow", "DllGetClassObject", "DllInstall",
                                             "DllRegisterServer", "DllUnregisterServer"));
}

TEST_F(FileTest, ItNeedsFilesOfTheSystemOnly) {
    const std::vector<std::string> system = {"advapi32.dll", "comctl32.dll", "gdi32.dll",  "hhctrl.ocx",
                                             "kernel32.dll", "msvcrt.dll",   "ole32.dll",  "oleaut32.dll",
                                             "shell32.dll",  "user32.dll",   "uxtheme.dll"};
    EXPECT_THAT(image.imported_files(), Contains("oleaut32.dll"));
    for (const std::string& each : image.imported_files()) EXPECT_THAT(system, Contains(each));
}

TEST_F(FileTest, ItCanBeLoadedAnywhereAndItsDataIsNoCode) {
    EXPECT_TRUE(image.characteristics() & IMAGE_DLLCHARACTERISTICS_DYNAMIC_BASE);
    EXPECT_TRUE(image.characteristics() & IMAGE_DLLCHARACTERISTICS_NX_COMPAT);
}

TEST_F(FileTest, ItCarriesATypeLibraryAManifestAndAVersion) {
    EXPECT_THAT(resource_types(), UnorderedElementsAre(L"TYPELIB", L"16", L"24"));
    EXPECT_TRUE(FindResourceW(dll.module(), MAKEINTRESOURCEW(1), L"TYPELIB"));
    EXPECT_TRUE(FindResourceW(dll.module(), MAKEINTRESOURCEW(2), MAKEINTRESOURCEW(24)));
    EXPECT_TRUE(FindResourceW(dll.module(), MAKEINTRESOURCEW(1), MAKEINTRESOURCEW(16)));
}

TEST_F(FileTest, ItTellsItsVersion) {
    const std::vector<BYTE> data = version();
    void* found = nullptr;
    UINT length = 0;
    ASSERT_TRUE(VerQueryValueW(data.data(), L"\\", &found, &length));
    const auto& numbers = *static_cast<const VS_FIXEDFILEINFO*>(found);
    EXPECT_EQ(numbers.dwFileVersionMS, 0x00060000u);
    EXPECT_EQ(numbers.dwFileVersionLS, 0u);
    EXPECT_EQ(numbers.dwProductVersionMS, 0x00060000u);
    EXPECT_EQ(numbers.dwFileType, static_cast<DWORD>(VFT_DLL));
    EXPECT_EQ(version_text(data, L"FileVersion"), L"" BRX_VERSION_TEXT);
    EXPECT_EQ(version_text(data, L"ProductVersion"), L"" BRX_VERSION_TEXT);
    EXPECT_EQ(version_text(data, L"CompanyName"), L"" BRX_COMPANY_TEXT);
    EXPECT_EQ(version_text(data, L"LegalCopyright"), L"" BRX_COPYRIGHT_TEXT);
    EXPECT_EQ(version_text(data, L"ProductName"), L"brxOpcDlgs6");
    EXPECT_EQ(version_text(data, L"OriginalFilename"), L"brxOpcDlgs6.dll");
    EXPECT_EQ(version_text(data, L"FileDescription"), L"OPC collection dialogs");
    EXPECT_EQ(version_text(data, L"OLESelfRegister"), L"") << "its presence counts";
}

TEST(LoadingTest, TheDllGoesAndComesWithoutTrace) {
    const Apartment apartment;
    for (int i = 0; i < 3; ++i) {
        {
            const Dll dll;
            EXPECT_TRUE(dll.can_unload());
        }
        EXPECT_EQ(GetModuleHandleW(L"brxOpcDlgs6.dll"), nullptr);
    }
}

} // namespace brx::checks
