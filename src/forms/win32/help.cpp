#include "forms/win32/help.h"

#include "win32/system_function.h"

#include <htmlhelp.h>

#include <algorithm>
#include <array>
#include <vector>

namespace brx {

namespace {

constexpr DWORD longest_path = 32'768;

bool ends_with_ignoring_case(const std::wstring& text, const std::wstring& end) {
    if (text.size() < end.size()) return false;
    return CompareStringOrdinal(text.data() + (text.size() - end.size()), static_cast<int>(end.size()),
                                end.data(), static_cast<int>(end.size()), TRUE) == CSTR_EQUAL;
}

/// The viewer of HTML help, from the system's folder and nowhere else. It stays loaded, its windows need it.
auto html_help() {
    using Function = HWND(WINAPI*)(HWND, LPCWSTR, UINT, DWORD_PTR);
    static const HMODULE viewer = load_of_system(L"hhctrl.ocx");
    return function_of<Function>(viewer, "HtmlHelpW");
}

bool is_older(const std::wstring& file) { return ends_with_ignoring_case(file, L".hlp"); }

bool is_file(const std::wstring& path) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

/// As the current folder has it.
std::wstring full_path(const std::wstring& name) {
    std::wstring path(longest_path, L'\0');
    path.resize(GetFullPathNameW(name.c_str(), longest_path, path.data(), nullptr));
    return path;
}

std::wstring program_folder() {
    std::wstring path(longest_path, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), longest_path));
    return path.substr(0, path.rfind(L'\\'));
}

/// Where a set-up program has told the system that this help file lies.
std::wstring registered_folder(const std::wstring& file) {
    const wchar_t* const key =
        is_older(file) ? L"SOFTWARE\\Microsoft\\Windows\\Help" : L"SOFTWARE\\Microsoft\\Windows\\HTML Help";
    std::array<wchar_t, 1024> folder{};
    DWORD size = sizeof folder;
    const LSTATUS status =
        RegGetValueW(HKEY_LOCAL_MACHINE, key, file.c_str(), RRF_RT_REG_SZ, nullptr, folder.data(), &size);
    return status == ERROR_SUCCESS ? folder.data() : L"";
}

std::wstring system_help_folder() {
    std::array<wchar_t, MAX_PATH> folder{};
    GetSystemWindowsDirectoryW(folder.data(), MAX_PATH);
    return folder.data() + std::wstring(L"\\Help");
}

/// The path of the file, "" when there is none. What is no name of a file is left to the viewer.
std::wstring find_file(const std::wstring& name) {
    const std::size_t separator = name.find_first_of(L"\\/");
    const std::size_t colon = name.find(L':');
    const bool rooted = separator == 0 || colon == 1;
    if (!rooted && colon != std::wstring::npos) return name;
    std::vector<std::wstring> candidates;
    const auto in = [&](const std::wstring& folder) {
        if (!folder.empty()) candidates.push_back(full_path(folder + L'\\' + name));
    };
    if (!rooted) in(program_folder());
    candidates.push_back(full_path(name));
    if (!rooted && separator == std::wstring::npos) {
        in(registered_folder(name));
        in(system_help_folder());
    }
    const auto found = std::ranges::find_if(candidates, is_file);
    return found == candidates.end() ? std::wstring() : *found;
}

} // namespace

HelpViewers HelpViewers::of_the_system() {
    return {.html =
                [](HWND over, const std::wstring& file, UINT command, DWORD topic) {
                    const auto show = html_help();
                    return show && show(over, file.c_str(), command, topic);
                },
            .older = [](HWND over, const std::wstring& file, UINT command,
                        DWORD topic) { return WinHelpW(over, file.c_str(), command, topic) != FALSE; }};
}

HelpOutcome open_help_file(HWND over, const std::wstring& name, DWORD topic, const HelpViewers& viewers) {
    const std::size_t end = std::min({name.find(L"::"), name.find(L'>'), name.size()});
    const std::wstring file = find_file(name.substr(0, end));
    if (file.empty()) return HelpOutcome::missing;
    const std::wstring whole = file + name.substr(end);
    const bool shown =
        is_older(file) ? viewers.older(over, whole, topic != 0 ? HELP_CONTEXT : HELP_FINDER, topic)
                       : viewers.html(over, whole, topic != 0 ? HH_HELP_CONTEXT : HH_DISPLAY_TOPIC, topic);
    return shown ? HelpOutcome::opened : HelpOutcome::not_opened;
}

} // namespace brx
