#pragma once

#include <windows.h>

#include <functional>
#include <utility>

namespace brx::checks {

/// Does something again and again while this thread serves messages. One at a time.
class Ticking {
public:
    explicit Ticking(std::function<void()> tick) : tick_(std::move(tick)) {
        present_ = this;
        timer_ = SetTimer(nullptr, 0, 20, run);
    }
    Ticking(const Ticking&) = delete;
    Ticking& operator=(const Ticking&) = delete;
    ~Ticking() {
        KillTimer(nullptr, timer_);
        present_ = nullptr;
    }

private:
    static void CALLBACK run(HWND, UINT, UINT_PTR, DWORD) {
        if (present_) present_->tick_();
    }

    static inline Ticking* present_ = nullptr;
    std::function<void()> tick_;
    UINT_PTR timer_;
};

} // namespace brx::checks
