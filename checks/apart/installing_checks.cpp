#include "apart/server_program.h"

#include <gtest/gtest.h>
#include <objbase.h>

#include <string>

// What the server program writes for clients of other processes, and takes back.

namespace brx::checks {

namespace {

const std::wstring classes = L"Software\\Classes\\";
constexpr const wchar_t* wrapper_name = L"OPC.Automation";
constexpr const wchar_t* own_name = L"brxSample.Server";

bool has_key(const std::wstring& path) {
    HKEY key = nullptr;
    if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, (classes + path).c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS)
        return false;
    RegCloseKey(key);
    return true;
}

std::wstring class_of(const wchar_t* name) {
    std::wstring text(64, L'\0');
    DWORD size = 64 * sizeof(wchar_t);
    const std::wstring key = classes + name + L"\\CLSID";
    if (RegGetValueW(HKEY_LOCAL_MACHINE, key.c_str(), nullptr, RRF_RT_REG_SZ, nullptr, text.data(), &size) !=
        ERROR_SUCCESS)
        return {};
    return text.c_str();
}

TEST(InstalledServer, IsFoundByItsNamesAndLeavesNothingBehind) {
    const std::wstring interface_key = L"Interface\\{28E68F92-8D75-11D1-8DC3-3C302A000000}\\TypeLib";
    const std::wstring library_key = L"TypeLib\\{28E68F91-8D75-11D1-8DC3-3C302A000000}\\1.0";
    std::wstring id;
    {
        const InstalledServer installed;
        id = class_of(own_name);
        EXPECT_TRUE(has_key(L"CLSID\\" + id + L"\\LocalServer32"));
        EXPECT_EQ(class_of(wrapper_name), id);
        EXPECT_TRUE(has_key(interface_key));
        EXPECT_TRUE(has_key(library_key));
    }
    for (const std::wstring& key :
         {L"CLSID\\" + id, std::wstring(own_name), std::wstring(wrapper_name), interface_key, library_key})
        EXPECT_FALSE(has_key(key));
}

TEST(InstalledServer, LeavesTheNameOfAWrapperThatIsThereAlone) {
    const std::wstring other = L"{0F7C5A11-54B1-4F0B-9E0E-6A5C6F1B2D01}";
    const std::wstring key = classes + wrapper_name;
    RegSetKeyValueW(HKEY_LOCAL_MACHINE, (key + L"\\CLSID").c_str(), nullptr, REG_SZ, other.c_str(),
                    static_cast<DWORD>((other.size() + 1) * sizeof(wchar_t)));
    {
        const InstalledServer installed;
        EXPECT_EQ(class_of(wrapper_name), other);
        EXPECT_NE(class_of(own_name), L"");
    }
    EXPECT_EQ(class_of(wrapper_name), other);
    RegDeleteTreeW(HKEY_LOCAL_MACHINE, key.c_str());
}

} // namespace

} // namespace brx::checks
