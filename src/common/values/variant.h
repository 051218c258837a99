#pragma once

#include "common/error.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace brx {

class Object;
using ObjectPtr = std::shared_ptr<Object>;

/// Never set; reads as "" and as 0.
struct Empty {
    bool operator==(const Empty&) const = default;
};

/// No valid data; any conversion of it is error 94.
struct Null {
    bool operator==(const Null&) const = default;
};

/// An argument left out by the caller.
struct Missing {
    bool operator==(const Missing&) const = default;
};

/// A point in time: days since 30 December 1899, the time of day as the fraction.
struct Date {
    double days = 0;
    bool operator==(const Date&) const = default;
};

/// A fixed-point amount, counted in ten-thousandths.
struct Currency {
    std::int64_t ten_thousandths = 0;
    bool operator==(const Currency&) const = default;
};

/// A one-dimensional automation array; `lower_bound` is the index of the first element.
template <class T> struct Array {
    std::vector<T> elements;
    std::int32_t lower_bound = 1;

    std::int32_t upper_bound() const { return lower_bound + static_cast<std::int32_t>(elements.size()) - 1; }
    /// Error 9 when there is no such element.
    const T& at(std::int32_t index) const {
        if (index < lower_bound || index > upper_bound()) throw Error(error::subscript_out_of_range);
        return elements[static_cast<std::size_t>(index - lower_bound)];
    }
    bool operator==(const Array&) const = default;
};
using StringArray = Array<std::string>;
using LongArray = Array<std::int32_t>;
using ShortArray = Array<std::int16_t>;

/// A value of a kind the dialogs only pass on or show (a foreign array, an unsigned integer, a decimal). The
/// platform side keeps the original in `held`, so that what comes back to the host is what the host gave.
struct Opaque {
    std::uint16_t vartype = 0;
    std::shared_ptr<const void> held;
    /// The platform's own text of it, in the user's locale. None for what has no text, such as a foreign
    /// array.
    std::optional<std::string> text = std::nullopt;
    bool operator==(const Opaque&) const = default;
};

/// An automation value. Text is UTF-8 (unpaired surrogates are kept as three-byte sequences).
using Variant = std::variant<Empty, Null, std::int16_t, std::int32_t, float, double, Currency, Date,
                             std::string, ObjectPtr, bool, Missing, StringArray, Opaque>;

/// The VARTYPE code of a value: 0 Empty, 1 Null, 2, 3 integers, 4 single, 5 double, 6 currency, 7 date, 8
/// text, 9 object, 10 Missing, 11 Boolean, 0x2008 array of text.
std::uint16_t vartype(const Variant& value);

} // namespace brx
