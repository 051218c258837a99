#include "common/error.h"
#include "common/values/convert.h"
#include "common/values/number_text.h"

#include <cmath>

namespace brx {
namespace {

std::string without_blanks(std::string_view text) {
    std::string result;
    for (const char c : text) {
        if (c != ' ' && c != '\t' && c != '\n') result += c;
    }
    return result;
}

/// Up to 64 bits. The sign bit is that of the smallest of 16, 32 and 64 bits that holds the digits, an &
/// behind them excluding 16.
double based_value(std::string_view digits, unsigned shift) {
    std::uint64_t bits = 0;
    std::size_t position = 0;
    for (; position < digits.size() && (bits >> (64 - shift)) == 0; ++position) {
        const std::uint64_t digit = digit_value(static_cast<unsigned char>(digits[position]));
        if (digit >= 1U << shift) break;
        bits = (bits << shift) | digit;
    }
    const bool wide = position < digits.size() && digits[position] == '&';
    if (bits <= 0xFFFF && !wide) return static_cast<std::int16_t>(static_cast<std::uint16_t>(bits));
    if (bits <= 0xFFFF'FFFF) return static_cast<std::int32_t>(static_cast<std::uint32_t>(bits));
    return static_cast<double>(static_cast<std::int64_t>(bits));
}

} // namespace

double val(std::string_view text) {
    const std::string all = without_blanks(text);
    if (all.starts_with("&H") || all.starts_with("&h"))
        return based_value(std::string_view(all).substr(2), 4);
    if (all.starts_with("&O") || all.starts_with("&o"))
        return based_value(std::string_view(all).substr(2), 3);

    std::size_t position = 0;
    std::string decimal;
    const auto peek = [&](std::size_t ahead = 0) { return all[position + ahead]; }; // '\0' at the end
    const auto is_digit = [](char c) { return c >= '0' && c <= '9'; };
    const auto take_digits = [&] {
        const std::size_t start = position;
        while (is_digit(peek())) decimal += all[position++];
        return position != start;
    };

    if (peek() == '-' || peek() == '+') {
        if (peek() == '-') decimal += '-';
        ++position;
    }
    bool any = take_digits();
    if (peek() == '.') {
        decimal += all[position++];
        any = take_digits() || any;
    }
    if (!any) return 0;
    if (peek() == 'E' || peek() == 'e' || peek() == 'D' || peek() == 'd') {
        const bool sign = peek(1) == '-' || peek(1) == '+';
        if (is_digit(peek(sign ? 2 : 1))) {
            decimal += peek(1) == '-' ? "e-" : "e";
            position += sign ? 2 : 1;
            take_digits();
        }
    }
    const double value = nearest_double(decimal);
    if (std::isinf(value)) throw Error(error::overflow);
    return value == 0 ? 0 : value;
}

} // namespace brx
