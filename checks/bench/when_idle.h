#pragma once

#include "bench/opening.h"

#include <functional>
#include <utility>

namespace brx::bench {

/// Runs a job again and again whenever this thread has no other message left. A timer of the thread's own
/// does it. One at a time.
class WhenIdle {
public:
    /// The job gets what the process had cost before it.
    using Job = std::function<void(const Cost& before)>;

    explicit WhenIdle(Job job)
        : job_(std::move(job)), timer_(SetTimer(nullptr, 0, USER_TIMER_MINIMUM, tick)) {
        current_ = this;
    }
    ~WhenIdle() {
        stop();
        current_ = nullptr;
    }
    WhenIdle(const WhenIdle&) = delete;
    WhenIdle& operator=(const WhenIdle&) = delete;

    void stop() const { KillTimer(nullptr, timer_); }

private:
    static void CALLBACK tick(HWND, UINT, UINT_PTR, DWORD) {
        const Cost cost = spent();
        if (current_) current_->job_(cost);
    }

    static inline WhenIdle* current_ = nullptr;

    Job job_;
    UINT_PTR timer_;
};

} // namespace brx::bench
