#include "sample/windows/objects_stage.h"

#include <array>
#include <vector>

namespace brx::checks {

namespace {

using Install = HRESULT(STDAPICALLTYPE*)(BOOL, const wchar_t*);

/// The default value of a key of the user's classes; "-" when there is no such key.
std::wstring user_class_text(const std::wstring& path) {
    std::array<wchar_t, 1000> text{};
    DWORD size = sizeof text;
    const LSTATUS read = RegGetValueW(HKEY_CURRENT_USER, (L"Software\\Classes\\" + path).c_str(), nullptr,
                                      RRF_RT_REG_SZ, nullptr, text.data(), &size);
    return read == ERROR_SUCCESS ? text.data() : L"-";
}

TEST(SampleRegistration, ForTheUserNamesTheClassesAndTakesEverythingBack) {
    const std::wstring file = (host_program().parent_path() / L"brxSample.dll").wstring();
    const HMODULE library = LoadLibraryW(file.c_str());
    ASSERT_NE(library, nullptr);
    const auto install =
        reinterpret_cast<Install>(reinterpret_cast<void*>(GetProcAddress(library, "DllInstall")));
    ASSERT_NE(install, nullptr);

    constexpr std::array names = {L"brxSample.Host",       L"brxOpcAuto6.hlxOPCServer",
                                  L"brxError6.Error",      L"hlxER01.Error",
                                  L"brxDatabase6.hlxPart", L"brxDatabase6.hlxTestSelection"};
    std::vector<std::wstring> ids;
    EXPECT_EQ(install(TRUE, L"user"), S_OK);
    for (const wchar_t* name : names) {
        ids.push_back(user_class_text(std::wstring(name) + L"\\CLSID"));
        EXPECT_EQ(user_class_text(L"CLSID\\" + ids.back() + L"\\InprocServer32"), file);
        EXPECT_EQ(user_class_text(L"CLSID\\" + ids.back() + L"\\ProgID"), name);
    }
    EXPECT_EQ(install(FALSE, L"user"), S_OK);
    for (const wchar_t* name : names) EXPECT_EQ(user_class_text(name), L"-");
    for (const std::wstring& id : ids) EXPECT_EQ(user_class_text(L"CLSID\\" + id), L"-");
    EXPECT_EQ(install(TRUE, L"somebody"), E_INVALIDARG);
    FreeLibrary(library);
}

} // namespace

} // namespace brx::checks
