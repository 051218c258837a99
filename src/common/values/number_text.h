#pragma once

#include "common/values/locale.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace brx {

/// A number as it stands in a text, before it is known what it is to become.
struct NumberText {
    bool hex_or_octal = false; ///< then `bits` counts and never has a sign
    bool too_long = false;     ///< hexadecimal or octal beyond 64 bits
    std::uint64_t bits = 0;
    std::string decimal; ///< otherwise sign, digits, full stop, exponent

    /// The nearest double; an infinity when it is too large. Hexadecimal and octal up to 32 bits is a signed
    /// 32-bit integer, as it is in source code; longer ones are not negative.
    double to_double() const;
};

/// Reads a text that is nothing but a number: digits with grouping and decimal separator and an exponent with
/// E or D, or &H or &O and digits, and around them blanks, one sign, one currency sign and a pair of
/// brackets, which mean a negative number. An amount of money has neither exponent nor &H. Empty when it is
/// not a number.
std::optional<NumberText> read_number(std::string_view text, const Locale& locale);

/// The value of a digit up to 15, in either letter case; anything else is far more than that.
std::size_t digit_value(char32_t c);

/// The nearest double of a decimal number as in C; an infinity when it is too large.
double nearest_double(const std::string& decimal);

} // namespace brx
