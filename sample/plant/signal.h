#pragma once

#include "common/values/variant.h"

#include <cstdint>
#include <span>
#include <string_view>

namespace brx::plant {

/// VARTYPE codes of the values that simulated items have.
enum class Type : std::int16_t {
    short_integer = 2,
    long_integer = 3,
    single = 4,
    real = 5,
    currency = 6,
    date = 7,
    text = 8,
    boolean = 11,
    byte = 17,
};

/// How a value moves between its limits.
enum class Wave {
    steady,   ///< stays at `low`
    sine,     ///< up and down once in a period
    ramp,     ///< rises for a period and falls back at once
    square,   ///< half a period at each limit
    measured, ///< a new value around the middle in every period, as a series of measurements gives
    counted,  ///< one more in every period since midnight UTC
    clock,    ///< the time, rounded down to whole periods
};

/// The course of one item's value. Texts take the place of numbers: 0 stands for the first one.
struct Signal {
    Type type = Type::real;
    Wave wave = Wave::steady;
    double low = 0;
    double high = 1;
    double period = 60; ///< seconds
    std::span<const char* const> texts = {};
};

/// A seed that belongs to a text, the same on every platform and in every run.
std::uint64_t seed_of(std::string_view text);

/// The value at a time; a byte, which Variant does not know, as Opaque with its text. Equal signals with
/// different seeds run apart.
Variant value_at(const Signal& signal, std::uint64_t seed, Date time);

} // namespace brx::plant
