#pragma once

#include "common/values/locale.h"

#include <cstdint>
#include <string>
#include <vector>

namespace brx::conversions {

/// The same sequence everywhere, so that every run and every platform sees the same samples.
class Random {
public:
    explicit Random(std::uint64_t seed) : state_(seed) {}

    std::uint64_t bits();
    /// From 0 to `count` - 1.
    std::size_t below(std::size_t count) { return static_cast<std::size_t>(bits() % count); }
    int between(int least, int most) {
        return least + static_cast<int>(below(static_cast<std::size_t>(most - least + 1)));
    }
    bool one_in(std::size_t count) { return below(count) == 0; }
    template <class List> const auto& pick(const List& list) { return list[below(list.size())]; }

private:
    std::uint64_t state_;
};

// Samples for one locale, without duplicates, and in the order in which they were made. A sample never
// depends on the day the check runs.

/// Numbers as people write them and as they do not: signs, brackets, currency, grouping, exponents, blanks,
/// hexadecimal, octal, truth, values at, inside and outside of every limit, and junk.
std::vector<std::string> number_texts(const Locale& locale, std::size_t count);

/// Dates and times: numbers and names in any order, designators, all separators, impossible days, and junk.
std::vector<std::string> date_texts(const Locale& locale, std::size_t count);

/// Doubles of every size: short decimals, powers of ten, neighbours of limits, arbitrary bits.
std::vector<double> doubles(std::size_t count);

/// Integers of every size, the limits of 16, 32 and 64 bits among them.
std::vector<std::int64_t> integers(std::size_t count);

/// Date values: whole days, seconds, parts of seconds, before and after day zero, and outside the calendar.
std::vector<double> date_values(std::size_t count);

} // namespace brx::conversions
