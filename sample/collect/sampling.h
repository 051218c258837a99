#pragma once

#include "collect/feed.h"
#include "collect/settings.h"

namespace brx::collect {

/// The number of the interval that a moment lies in, counted from the configuration's moment; none before
/// that, and for a period without a clock.
std::optional<std::int64_t> interval_at(const Period& period, Date from, Date now);

/// Says when a subgroup or a piece is to be taken.
class Sampling {
public:
    Sampling(Period period, Date from) : period_(std::move(period)), from_(from) {}

    /// To be called once after each look: whether the clock or the trigger says so. The interval in which it
    /// is called first has begun before.
    bool is_due(const Feed& feed, Date now);
    /// Neither clock nor trigger says when.
    bool is_free() const { return !period_.has_clock() && !period_.has_trigger(); }

private:
    Period period_;
    Date from_;
    bool begun_ = false;
    std::optional<std::int64_t> interval_;
};

} // namespace brx::collect
