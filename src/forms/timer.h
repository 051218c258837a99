#pragma once

#include "forms/form.h"

namespace brx {

struct TimerDesign {
    int interval = 0; ///< milliseconds; 0 never ticks
    bool enabled = true;
    Handler Timer = {};
};

/// Ticks while its form is loaded and it is enabled, also while another form lies over it.
class Timer : public Control {
public:
    Timer(Container& container, const char* name, const TimerDesign& design)
        : Control(container, name, {.place = {}, .enabled = design.enabled, .visible = false}),
          design_(design) {}

    const char* kind() const override { return "timer"; }
    int interval() const { return design_.interval; }

    /// The interval has passed. False, and nothing happens, while other code of the thread runs.
    bool tick() {
        if (!form().loaded() || !enabled() || turn::is_code_running()) return false;
        const TimerTurn timer;
        form().run_event([&] { fire(design_.Timer); });
        return true;
    }

private:
    TimerDesign design_;
};

} // namespace brx
