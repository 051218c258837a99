#include "server/opened_windows.h"

#include <array>
#include <string>
#include <utility>

namespace brx::checks {

namespace {

int opened = 0;
bool closing = false;
HWND last_closed = nullptr;
std::vector<std::pair<std::wstring, std::wstring>> closed_messages;

bool has_title_bar(LONG_PTR style) { return (style & WS_CAPTION) == WS_CAPTION && !(style & WS_CHILD); }

std::wstring text_in(HWND window) {
    std::array<wchar_t, 1000> text{};
    GetWindowTextW(window, text.data(), static_cast<int>(text.size()));
    return text.data();
}

/// Systems have different numbers for the text of a message box; beside it there is only the icon.
void note_message(HWND window) {
    for (HWND label = nullptr; (label = FindWindowExW(window, label, L"Static", nullptr));)
        if (const std::wstring text = text_in(label); !text.empty())
            closed_messages.emplace_back(text_in(window), text);
}

void close(HWND window) {
    PostMessageW(window, WM_CLOSE, 0, 0);
    last_closed = window;
}

LRESULT CALLBACK watch(int code, WPARAM wparam, LPARAM lparam) {
    const HWND window = reinterpret_cast<HWND>(wparam);
    if (code == HCBT_CREATEWND) {
        if (has_title_bar(reinterpret_cast<CBT_CREATEWNDW*>(lparam)->lpcs->style)) ++opened;
    }
    // Some systems give a box its text only after it has become active.
    if (code == HCBT_DESTROYWND && window == last_closed) {
        note_message(window);
        last_closed = nullptr;
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
