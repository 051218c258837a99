#include "windows/dialog_clock.h"

#include "desk/native.h"

#include <algorithm>

namespace brx::checks {

namespace {

/// A timer that has been silent for so long, in milliseconds, has been stopped.
constexpr ULONGLONG longest_silence = 2'500;

bool is_of_a_form(HWND window) {
    return window && !name_of(window).empty() && GetAncestor(window, GA_ROOT) == window;
}

} // namespace

bool DialogClock::lets_pass(const MSG& tick) {
    if (!is_of_a_form(tick.hwnd)) return true;
    auto [found, is_new] = timers_.try_emplace({tick.hwnd, tick.wParam});
    Timer& timer = found->second;
    if (is_new) timer.may_tick = ticking_;
    timer.last_seen = GetTickCount64();
    if (!ticking_ || !timer.may_tick) return false;
    timer.may_tick = false;
    anything_ticked_ = true;
    return true;
}

void DialogClock::begin_tick() {
    const ULONGLONG now = GetTickCount64();
    std::erase_if(timers_, [&](const auto& each) {
        return !IsWindow(each.first.first) || now - each.second.last_seen > longest_silence;
    });
    ticking_ = true;
    anything_ticked_ = false;
    for (auto& [key, timer] : timers_) {
        timer.may_tick = true;
        PostMessageW(key.first, WM_TIMER, key.second, 0);
    }
}

bool DialogClock::has_ticked() const {
    return anything_ticked_ &&
           std::ranges::none_of(timers_, [](const auto& each) { return each.second.may_tick; });
}

} // namespace brx::checks
