#include "collect/trigger.h"

#include "common/trap.h"
#include "common/values/convert.h"

#include <cmath>
#include <compare>

namespace brx::collect {

namespace {

/// The values are the machine's, so that they do not follow anybody's settings.
const Locale& neutral() {
    static const Locale plain;
    return plain;
}

/// Also what is not finite.
std::optional<double> any_number_in(const Variant& value) {
    std::optional<double> number;
    if (!std::holds_alternative<Empty>(value)) attempt([&] { number = to_double(value, neutral()); });
    return number;
}

/// What is said to be a number and is none.
bool is_nan(const Variant& value) {
    const auto number = any_number_in(value);
    return number && std::isnan(*number);
}

/// Unordered for what cannot be compared.
std::partial_ordering compared(const Variant& value, const Variant& with) {
    if (is_nan(value) || is_nan(with)) return std::partial_ordering::unordered;
    const auto left = any_number_in(value);
    const auto right = any_number_in(with);
    if (left && right) return *left <=> *right;
    auto order = std::partial_ordering::unordered;
    attempt([&] { order = to_text(value, neutral()) <=> to_text(with, neutral()); });
    return order;
}

} // namespace

std::optional<double> number_in(const Variant& value) {
    const auto number = any_number_in(value);
    return number && std::isfinite(*number) ? number : std::nullopt;
}

bool is_the_same(const Variant& one, const Variant& other) {
    return one == other || (is_nan(one) && is_nan(other));
}

bool holds(const Condition& condition, const Variant& value) {
    if (condition.operation == 0) return true;
    const std::partial_ordering order = compared(value, condition.value);
    switch (condition.operation) {
    case 1:
        return order == 0;
    case 2:
        return order > 0;
    case 3:
        return order >= 0;
    case 4:
        return order < 0;
    case 5:
        return order <= 0;
    case 6:
        return order < 0 || order > 0;
    default:
        return false;
    }
}

} // namespace brx::collect
