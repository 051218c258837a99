#pragma once

#include "common/values/variant.h"

#include <chrono>
#include <optional>

namespace brx {

/// The days that a Date can fall on: 1 January 100 to 31 December 9999.
inline constexpr int first_day = -657434;
inline constexpr int last_day = 2958465;

/// A Date taken apart, rounded to whole seconds.
struct Moment {
    int day = 0;    ///< since 30 December 1899
    int second = 0; ///< of the day

    std::chrono::year_month_day calendar_day() const;
    std::chrono::weekday weekday() const;
};

/// True when a Date can have this value.
bool is_date(double days);

/// Error 5 for what is no date.
Moment to_moment(Date date);

/// The other way round. Before 1900 the time of day counts away from zero, as everywhere in automation.
Date to_date(const Moment& moment);

/// The day number; empty when the calendar has no such day.
std::optional<int> day_number(int year, unsigned month, unsigned day);

/// The year on the wall.
int current_year();

} // namespace brx
