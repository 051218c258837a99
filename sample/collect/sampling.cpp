#include "collect/sampling.h"

#include "collect/trigger.h"
#include "common/values/calendar.h"

#include <array>
#include <cmath>

namespace brx::collect {

namespace {

constexpr double seconds_per_day = 86400;
constexpr std::array unit_seconds = {1.0, 60.0, 3600.0, seconds_per_day, 7 * seconds_per_day};
constexpr std::array unit_months = {1, 3, 12};

/// How many months have passed from one moment to a later one.
std::int64_t whole_months(const Moment& from, const Moment& to) {
    const auto first = from.calendar_day();
    const auto last = to.calendar_day();
    const std::int64_t months = (int{last.year()} - int{first.year()}) * std::int64_t{12} +
                                static_cast<int>(unsigned{last.month()}) -
                                static_cast<int>(unsigned{first.month()});
    const bool not_yet = last.day() < first.day() || (last.day() == first.day() && to.second < from.second);
    return not_yet ? months - 1 : months;
}

} // namespace

std::optional<std::int64_t> interval_at(const Period& period, Date from, Date now) {
    // A millisecond is more than a Date loses in rounding.
    const double seconds = (now.days - from.days) * seconds_per_day + 0.001;
    if (!period.has_clock() || seconds < 0) return std::nullopt;
    const auto unit = static_cast<std::size_t>(period.time_unit);
    if (unit < unit_seconds.size())
        return static_cast<std::int64_t>(std::floor(seconds / (period.interval * unit_seconds[unit])));
    return whole_months(to_moment(from), to_moment(now)) /
           (period.interval * std::int64_t{unit_months.at(unit - unit_seconds.size())});
}

bool Sampling::is_due(const Feed& feed, Date now) {
    const auto interval = interval_at(period_, from_, now);
    const bool by_clock = begun_ && interval && interval != interval_;
    interval_ = interval;
    begun_ = true;
    if (by_clock) return true;
    if (!feed.has_changed(period_.item)) return false;
    const auto value = feed.value(period_.item);
    return value && holds(period_.condition, *value);
}

} // namespace brx::collect
