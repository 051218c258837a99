#pragma once

#include "forms/work.h"

#include <cstddef>

namespace brx {

/// The steps of a timer's tick, which gives way: when a person waits, or when it has lasted too long for
/// something that nobody asked for, the rest is left to the next tick, which goes on where this one stopped.
class PartedTick {
public:
    /// A tick begins: with the first step, unless the last one has left some.
    void begin() {
        from_ = left_;
        step_ = left_ = 0;
        has_taken_ = has_given_way_ = false;
    }

    /// Whether the next step is to be taken now.
    bool takes_step(Work& work) {
        const std::size_t step = step_++;
        if (step < from_ || has_given_way_) return false;
        // A slow server is read step by step, but a person who works goes before it.
        has_given_way_ = work.is_stopped() || work.keeps_a_person_waiting() ||
                         (has_taken_ && work.lasted() >= Work::long_for_a_tick);
        if (has_given_way_) left_ = step;
        has_taken_ = true;
        return !has_given_way_;
    }

    bool has_given_way() const { return has_given_way_; }

private:
    std::size_t from_ = 0;
    std::size_t step_ = 0;
    std::size_t left_ = 0;
    bool has_taken_ = false;
    bool has_given_way_ = false;
};

} // namespace brx
