// Prints what an open dialog of another program holds: describe dlgServerSelect
// Ends with 1 when no such dialog is open.

#include <windows.h>

#include <cstdio>
#include <string>

namespace {

std::wstring wanted; ///< the dialog's name
HWND dialog;
std::wstring description;
const UINT question = RegisterWindowMessageW(L"brx.Describe");

bool bears_the_name(HWND window) {
    wchar_t name[256] = L"";
    const auto atom = static_cast<ATOM>(reinterpret_cast<ULONG_PTR>(GetPropW(window, L"brx.Name")));
    return atom != 0 && GlobalGetAtomNameW(atom, name, 256) > 0 && lstrcmpiW(name, wanted.c_str()) == 0;
}

BOOL CALLBACK look_at(HWND window, LPARAM) {
    if (!IsWindowVisible(window) || !bears_the_name(window)) return TRUE;
    dialog = window;
    return FALSE;
}

/// The dialog answers with WM_COPYDATA before the question returns.
LRESULT CALLBACK take_answer(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    if (message != WM_COPYDATA) return DefWindowProcW(window, message, wparam, lparam);
    const auto* copied = reinterpret_cast<const COPYDATASTRUCT*>(lparam);
    if (copied->dwData != question) return FALSE; // from somebody else
    description.assign(static_cast<const wchar_t*>(copied->lpData), copied->cbData / sizeof(wchar_t));
    return TRUE;
}

} // namespace

int main(int count, char** arguments) {
    if (count > 1) wanted.assign(arguments[1], arguments[1] + std::string(arguments[1]).size());
    EnumWindows(look_at, 0);
    if (!dialog) return 1;

    WNDCLASSW kind{};
    kind.lpfnWndProc = take_answer;
    kind.lpszClassName = L"Asking";
    RegisterClassW(&kind);
    const HWND asking =
        CreateWindowW(kind.lpszClassName, L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
    const LPARAM all_lines = -1;
    if (SendMessageW(dialog, question, reinterpret_cast<WPARAM>(asking), all_lines) != 1) return 1;

    std::string text(description.size() * 4, '\0');
    text.resize(static_cast<std::size_t>(
        WideCharToMultiByte(CP_UTF8, 0, description.data(), static_cast<int>(description.size()), text.data(),
                            static_cast<int>(text.size()), nullptr, nullptr)));
    std::fputs(text.c_str(), stdout);
    return 0;
}
