#pragma once

#include <windows.h>

#include <map>
#include <utility>

namespace brx::checks {

/// Time as the dialogs' timers meet it: it stands still until a scenario lets it pass, so that a scenario
/// knows how often they ticked. Used on the user-interface thread only.
class DialogClock {
public:
    /// Whether a timer message that was just taken from the queue may be delivered.
    bool lets_pass(const MSG& tick);

    /// From now on every timer may tick once. Those that have been seen to tick do so at once, a form's first
    /// tick is waited for.
    void begin_tick();
    /// Whether all timers that there are have ticked since.
    bool has_ticked() const;
    /// Time stands still again.
    void end_tick() { ticking_ = false; }

private:
    struct Timer {
        ULONGLONG last_seen = 0; ///< in milliseconds of the system's clock
        bool may_tick = false;
    };
    std::map<std::pair<HWND, UINT_PTR>, Timer> timers_;
    bool ticking_ = false;
    bool anything_ticked_ = false;
};

} // namespace brx::checks
