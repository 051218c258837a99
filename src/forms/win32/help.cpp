#include "forms/win32/help.h"

#include "common/error.h"

#include <htmlhelp.h>

#include <algorithm>

namespace brx {

namespace {

bool ends_with_ignoring_case(const std::wstring& text, const std::wstring& end) {
    if (text.size() < end.size()) return false;
    return CompareStringOrdinal(text.data() + (text.size() - end.size()), static_cast<int>(end.size()),
                                end.data(), static_cast<int>(end.size()), TRUE) == CSTR_EQUAL;
}

/// The viewer of HTML help, from the system's folder and nowhere else. It stays loaded, its windows need it.
auto html_help() {
    using Function = HWND(WINAPI*)(HWND, LPCWSTR, UINT, DWORD_PTR);
    std::wstring path(MAX_PATH, L'\0');
    path.resize(GetSystemDirectoryW(path.data(), MAX_PATH));
    static const HMODULE viewer = LoadLibraryW((path + L"\\hhctrl.ocx").c_str());
    const FARPROC function = viewer ? GetProcAddress(viewer, "HtmlHelpW") : nullptr;
    return reinterpret_cast<Function>(reinterpret_cast<void (*)()>(function));
}

/// A name without a folder is the viewer's to find. What follows the name within it stays for the viewer.
bool is_missing(const std::wstring& file) {
    const std::wstring name = file.substr(0, std::min(file.find(L"::"), file.find(L'>')));
    const bool whole = name.rfind(L"\\\\", 0) == 0 || name.find(L':') == 1;
    return whole && GetFileAttributesW(name.c_str()) == INVALID_FILE_ATTRIBUTES;
}

} // namespace

bool open_help_file(HWND over, const std::wstring& file, DWORD topic) {
    if (is_missing(file)) return false;
    if (ends_with_ignoring_case(file, L".hlp")) {
        if (!WinHelpW(over, file.c_str(), topic != 0 ? HELP_CONTEXT : HELP_FINDER, topic))
            throw Error(error::cannot_create_object);
        return true;
    }
    const auto open = html_help();
    if (!open) throw Error(error::cannot_create_object);
    open(over, file.c_str(), topic != 0 ? HH_HELP_CONTEXT : HH_DISPLAY_TOPIC, topic);
    return true;
}

} // namespace brx
