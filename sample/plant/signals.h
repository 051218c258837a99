#pragma once

#include "plant/signal.h"

namespace brx::plant {

// The courses that the simulated items take.

constexpr Signal measured(double low, double high, double period = 2, Type type = Type::single) {
    return {type, Wave::measured, low, high, period, {}};
}
constexpr Signal wave(double low, double high, double period, Type type = Type::real) {
    return {type, Wave::sine, low, high, period, {}};
}
constexpr Signal steady(double value, Type type = Type::long_integer) {
    return {type, Wave::steady, value, value, 60, {}};
}
constexpr Signal counted(double period, Type type = Type::long_integer) {
    return {type, Wave::counted, 0, 0, period, {}};
}
constexpr Signal on_off(double period) { return {Type::boolean, Wave::square, 0, 1, period, {}}; }
constexpr Signal stamp(double period) { return {Type::date, Wave::clock, 0, 0, period, {}}; }
constexpr Signal one_of(std::span<const char* const> texts, double period) {
    return {Type::text, Wave::ramp, 0, static_cast<double>(texts.size() - 1), period, texts};
}

} // namespace brx::plant
