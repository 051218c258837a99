#include "server/opened_windows.h"

namespace brx::checks {

namespace {

int opened = 0;
bool closing = false;

bool has_title_bar(LONG_PTR style) { return (style & WS_CAPTION) == WS_CAPTION && !(style & WS_CHILD); }

LRESULT CALLBACK watch(int code, WPARAM wparam, LPARAM lparam) {
    const HWND window = reinterpret_cast<HWND>(wparam);
    if (code == HCBT_CREATEWND) {
        if (has_title_bar(reinterpret_cast<CBT_CREATEWNDW*>(lparam)->lpcs->style)) ++opened;
    }
    if (code == HCBT_ACTIVATE && closing && has_title_bar(GetWindowLongPtrW(window, GWL_STYLE)))
        PostMessageW(window, WM_CLOSE, 0, 0);
    return CallNextHookEx(nullptr, code, wparam, lparam);
}

} // namespace

OpenedWindows::OpenedWindows() : hook_(SetWindowsHookExW(WH_CBT, watch, nullptr, GetCurrentThreadId())) {
    opened = 0;
    closing = false;
}

OpenedWindows::~OpenedWindows() { UnhookWindowsHookEx(hook_); }

int OpenedWindows::count() const { return opened; }

void OpenedWindows::close_at_once() { closing = true; }

} // namespace brx::checks
