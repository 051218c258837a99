#include "forms/win32/thread_windows.h"

#include "common/trap.h"

#include <functional>
#include <utility>

namespace brx {

namespace {

/// Answers whether to go on to the next window.
using Visit = std::function<bool(HWND)>;

BOOL CALLBACK look_at(HWND window, LPARAM look) noexcept {
    BOOL go_on = FALSE;
    attempt([&] { go_on = (*reinterpret_cast<const Visit*>(look))(window); });
    return go_on;
}

/// Looks at the thread's top-level windows, uppermost first.
void for_each_thread_window(const Visit& look) {
    EnumThreadWindows(GetCurrentThreadId(), look_at, reinterpret_cast<LPARAM>(&look));
}

bool is_of_this_thread(HWND window) {
    return window && GetWindowThreadProcessId(window, nullptr) == GetCurrentThreadId();
}

bool has_style(HWND window, int index, DWORD style) {
    return (static_cast<DWORD>(GetWindowLongW(window, index)) & style) == style;
}

} // namespace

DisabledThreadWindows::DisabledThreadWindows(HWND but) {
    for_each_thread_window([&](HWND window) {
        if (window != but && IsWindowEnabled(window)) windows_.push_back(window);
        return true;
    });
    for (HWND window : windows_) EnableWindow(window, FALSE);
}

void DisabledThreadWindows::enable_again() noexcept {
    for (HWND window : std::exchange(windows_, {}))
        if (is_of_this_thread(window)) EnableWindow(window, TRUE);
}

HWND host_window() {
    HWND found = GetActiveWindow();
    if (!found && is_of_this_thread(GetForegroundWindow())) found = GetForegroundWindow();
    if (!found) {
        for_each_thread_window([&](HWND window) {
            if (IsWindowVisible(window) && IsWindowEnabled(window) &&
                has_style(window, GWL_STYLE, WS_CAPTION))
                found = window;
            return !found;
        });
    }
    if (found) found = GetAncestor(found, GA_ROOT);
    // A palette can close at any time and would take the dialog with it.
    while (found && has_style(found, GWL_EXSTYLE, WS_EX_TOOLWINDOW)) {
        const HWND owner = GetWindow(found, GW_OWNER);
        if (!owner) break;
        found = owner;
    }
    return found;
}

} // namespace brx
