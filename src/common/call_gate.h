#pragma once

#include "common/error.h"

#include <atomic>

/// What every call of the host's objects passes first. It is open unless somebody minds it, which costs a
/// call next to nothing.
namespace brx::call_gate {

/// How many at present mind it.
inline std::atomic<int> minded = 0;
/// Asked then, on the caller's thread; throws what the call is to fail with.
inline std::atomic<void (*)()> ask = nullptr;

inline thread_local bool is_wide_open = false;

/// For its lifetime calls of the thread pass in any case: those that undo what others have done.
class Undoing {
public:
    Undoing() : outer_(is_wide_open) { is_wide_open = true; }
    ~Undoing() { is_wide_open = outer_; }
    Undoing(const Undoing&) = delete;
    Undoing& operator=(const Undoing&) = delete;

private:
    bool outer_;
};

inline void pass() {
    if (minded.load(std::memory_order_relaxed) != 0 && !is_wide_open) ask.load()();
}

/// For a call that came back cancelled or refused: throws `Stopped` when that is what a person wanted.
inline void expect_no_stop() {
    try {
        pass();
    } catch (const Stopped&) {
        throw Stopped(Stopped::Call::broken_off);
    }
}

} // namespace brx::call_gate
