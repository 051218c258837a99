#pragma once

#include "common/values/variant.h"

#include <cmath>
#include <limits>
#include <optional>
#include <string>
#include <type_traits>

namespace brx::checks {

/// The number in a value, if it is one.
inline std::optional<double> number_in(const Variant& value) {
    if (const auto* number = std::get_if<std::int16_t>(&value)) return *number;
    if (const auto* number = std::get_if<std::int32_t>(&value)) return *number;
    if (const auto* number = std::get_if<float>(&value)) return *number;
    if (const auto* number = std::get_if<double>(&value)) return *number;
    if (const auto* date = std::get_if<Date>(&value)) return date->days;
    return std::nullopt;
}

/// What a host answers that would answer `value` and answers `other`: that, where it is of the same kind, and
/// Nothing for an object where that is an object.
template <class Value> Value instead_of(const Value& value, const Variant& other) {
    if constexpr (std::is_same_v<Value, Variant>) {
        return other;
    } else if constexpr (std::is_same_v<Value, bool>) {
        return std::holds_alternative<bool>(other) ? std::get<bool>(other) : value;
    } else if constexpr (std::is_same_v<Value, std::string>) {
        return std::holds_alternative<std::string>(other) ? std::get<std::string>(other) : value;
    } else if constexpr (std::is_same_v<Value, Date>) {
        const auto number = number_in(other);
        return number ? Date{*number} : value;
    } else if constexpr (std::is_integral_v<Value>) {
        const auto number = number_in(other);
        const bool fits = number && std::abs(*number) <= std::numeric_limits<Value>::max();
        return fits ? static_cast<Value>(*number) : value;
    } else if constexpr (std::is_floating_point_v<Value>) {
        const auto number = number_in(other);
        return number ? static_cast<Value>(*number) : value;
    } else {
        return std::holds_alternative<ObjectPtr>(other) ? nullptr : value;
    }
}

} // namespace brx::checks
