#pragma once

#include "bench/opening.h"

#include <functional>
#include <utility>

namespace brx::bench {

/// Runs a job again and again whenever this thread has no other message left. One at a time.
///
/// A window of its own below all others is drawn when nothing else is left to do or to draw: that is the
/// moment that counts. A timer, which comes in steps of a hundredth of a second, runs the job.
class WhenIdle {
public:
    /// The job gets what the process had cost when it had nothing more to do.
    using Job = std::function<void(const Cost& before)>;

    explicit WhenIdle(Job job)
        : job_(std::move(job)),
          window_(CreateWindowExW(WS_EX_NOACTIVATE | WS_EX_TOOLWINDOW, L"STATIC", L"", WS_POPUP, 0, 0, 1, 1,
                                  nullptr, nullptr, nullptr, nullptr)),
          timer_(SetTimer(nullptr, 0, USER_TIMER_MINIMUM, tick)) {
        current_ = this;
        usual_ = reinterpret_cast<WNDPROC>(
            SetWindowLongPtrW(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure)));
        SetWindowPos(window_, HWND_BOTTOM, 0, 0, 0, 0,
                     SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_SHOWWINDOW);
        watch();
    }
    ~WhenIdle() {
        stop();
        DestroyWindow(window_);
        current_ = nullptr;
    }
    WhenIdle(const WhenIdle&) = delete;
    WhenIdle& operator=(const WhenIdle&) = delete;

    void stop() const { KillTimer(nullptr, timer_); }

private:
    void watch() {
        idle_ = false;
        InvalidateRect(window_, nullptr, FALSE);
    }
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
        if (message != WM_PAINT || !current_) return CallWindowProcW(usual_, window, message, wparam, lparam);
        current_->cost_ = spent();
        current_->idle_ = true;
        ValidateRect(window, nullptr);
        return 0;
    }
    static void CALLBACK tick(HWND, UINT, UINT_PTR, DWORD) {
        if (!current_ || !current_->idle_) return;
        current_->watch();
        current_->job_(current_->cost_);
    }

    static inline WhenIdle* current_ = nullptr;
    static inline WNDPROC usual_ = nullptr;

    Job job_;
    HWND window_;
    UINT_PTR timer_;
    Cost cost_;
    bool idle_ = false;
};

} // namespace brx::bench
