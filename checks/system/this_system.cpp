#include "system/this_system.h"

#include <array>
#include <string_view>
#include <utility>

namespace brx::checks {

namespace {

template <class Function> Function in_ntdll(const char* name) {
    const HMODULE ntdll = GetModuleHandleW(L"ntdll.dll");
    // Any function's address may be taken for that of another one, and back.
    return ntdll ? reinterpret_cast<Function>(reinterpret_cast<void (*)()>(GetProcAddress(ntdll, name)))
                 : nullptr;
}

bool user_setting_is(LCTYPE which, std::wstring_view wanted) {
    std::array<wchar_t, 80> text{};
    const int length = GetLocaleInfoW(LOCALE_USER_DEFAULT, which, text.data(), static_cast<int>(text.size()));
    return length > 0 && std::wstring_view(text.data(), static_cast<std::size_t>(length - 1)) == wanted;
}

} // namespace

std::string wine_version() {
    const auto version = in_ntdll<const char*(__cdecl*)()>("wine_get_version");
    return version ? version() : "";
}

bool is_elevated() {
    HANDLE token = nullptr;
    if (!OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token)) return false;
    TOKEN_ELEVATION elevation{};
    DWORD size = 0;
    const bool told = GetTokenInformation(token, TokenElevation, &elevation, sizeof elevation, &size);
    CloseHandle(token);
    return told && elevation.TokenIsElevated != 0;
}

bool has_us_settings() {
    constexpr LANGID us_english = MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US);
    if (LANGIDFROMLCID(GetUserDefaultLCID()) != us_english || GetUserDefaultUILanguage() != us_english)
        return false;
    for (const auto& [which, wanted] : {std::pair<LCTYPE, std::wstring_view>{LOCALE_SDECIMAL, L"."},
                                        {LOCALE_STHOUSAND, L","},
                                        {LOCALE_SNEGATIVESIGN, L"-"},
                                        {LOCALE_SSHORTDATE, L"M/d/yyyy"},
                                        {LOCALE_STIMEFORMAT, L"h:mm:ss tt"}})
        if (!user_setting_is(which, wanted)) return false;
    return true;
}

SIZE screen_size() { return {GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)}; }

std::string windows_version() {
    OSVERSIONINFOW version{};
    version.dwOSVersionInfoSize = sizeof version;
    const auto ask = in_ntdll<LONG(WINAPI*)(OSVERSIONINFOW*)>("RtlGetVersion");
    if (!ask || ask(&version) != 0) return "Windows";
    return "Windows " + std::to_string(version.dwMajorVersion) + "." +
           std::to_string(version.dwMinorVersion) + "." + std::to_string(version.dwBuildNumber);
}

} // namespace brx::checks
