#include "server/opened_windows.h"

#include <array>

namespace brx::checks {

namespace {

int opened = 0;
bool closing = false;
HWND last_closed = nullptr;
std::vector<std::pair<std::wstring, std::wstring>> closed_messages;

constexpr int text_of_message_box = 0xFFFF;

bool has_title_bar(LONG_PTR style) { return (style & WS_CAPTION) == WS_CAPTION && !(style & WS_CHILD); }

void note_message(HWND window) {
    std::array<wchar_t, 1000> title{};
    std::array<wchar_t, 1000> text{};
    GetWindowTextW(window, title.data(), static_cast<int>(title.size()));
    if (GetDlgItemTextW(window, text_of_message_box, text.data(), static_cast<int>(text.size())) > 0)
        closed_messages.emplace_back(title.data(), text.data());
}

void close(HWND window) {
    PostMessageW(window, WM_CLOSE, 0, 0);
    if (window != std::exchange(last_closed, window)) note_message(window);
}

LRESULT CALLBACK watch(int code, WPARAM wparam, LPARAM lparam) {
    const HWND window = reinterpret_cast<HWND>(wparam);
    if (code == HCBT_CREATEWND) {
        if (has_title_bar(reinterpret_cast<CBT_CREATEWNDW*>(lparam)->lpcs->style)) ++opened;
    }
    if (code == HCBT_ACTIVATE && closing && has_title_bar(GetWindowLongPtrW(window, GWL_STYLE)))
        close(window);
    return CallNextHookEx(nullptr, code, wparam, lparam);
}

} // namespace

OpenedWindows::OpenedWindows() : hook_(SetWindowsHookExW(WH_CBT, watch, nullptr, GetCurrentThreadId())) {
    opened = 0;
    closing = false;
    last_closed = nullptr;
    closed_messages.clear();
}

OpenedWindows::~OpenedWindows() { UnhookWindowsHookEx(hook_); }

int OpenedWindows::count() const { return opened; }

const std::vector<std::pair<std::wstring, std::wstring>>& OpenedWindows::messages() const {
    return closed_messages;
}

void OpenedWindows::close_at_once() { closing = true; }

} // namespace brx::checks
