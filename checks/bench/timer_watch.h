#pragma once

#include <windows.h>

namespace brx::bench {

/// Notes the number of the timer whose messages a window gets.
class TimerWatch {
public:
    TimerWatch() : hook_(SetWindowsHookExW(WH_GETMESSAGE, note, nullptr, GetCurrentThreadId())) {
        seen_ = {};
    }
    ~TimerWatch() { UnhookWindowsHookEx(hook_); }
    TimerWatch(const TimerWatch&) = delete;
    TimerWatch& operator=(const TimerWatch&) = delete;

    /// 0 while none came.
    static WPARAM timer_of(HWND window) { return seen_.hwnd == window ? seen_.wParam : 0; }

private:
    static LRESULT CALLBACK note(int code, WPARAM wparam, LPARAM lparam) {
        const MSG& message = *reinterpret_cast<const MSG*>(lparam);
        if (code == HC_ACTION && message.message == WM_TIMER && message.hwnd) seen_ = message;
        return CallNextHookEx(nullptr, code, wparam, lparam);
    }

    static inline MSG seen_{};
    HHOOK hook_;
};

} // namespace brx::bench
