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

    /// The interval has passed. False, and nothing happens, while other code of the thread runs, and for a
    /// while after a tick that took long.
    bool tick() {
        if (!form().loaded() || !enabled() || turn::is_code_running()) return false;
        Work& work = form().work();
        if (work.now() < rests_until_) return false;
        const TimerTurn timer;
        form().run_event([&] {
            fire(design_.Timer);
            // What took long leaves the thread alone for as long again.
            const Work::Milliseconds took = work.lasted();
            if (took >= Work::long_for_a_tick) rests_until_ = work.now() + took;
        });
        return true;
    }
    void reset() override {
        Control::reset();
        rests_until_ = {};
    }

private:
    TimerDesign design_;
    Work::Milliseconds rests_until_{};
};

} // namespace brx
