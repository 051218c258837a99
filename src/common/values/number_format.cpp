#include "common/values/format.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <string_view>

namespace brx {
namespace {

/// True for a number half-way between two of that many significant digits.
bool is_half(double value, std::size_t digits) {
    // More digits than any double has.
    std::array<char, 800> buffer{};
    const char* const end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::scientific, 766)
            .ptr;
    const std::string_view all(buffer.data(), static_cast<std::size_t>(end - buffer.data()));
    std::string_view mantissa = all.substr(0, all.find('e'));
    mantissa = mantissa.substr(0, mantissa.find_last_not_of('0') + 1);
    const std::size_t sign = mantissa.starts_with('-') ? 1 : 0;
    return mantissa.ends_with('5') &&
           mantissa.size() - sign == digits + 2; // the full stop, and one digit more
}

template <class Number> std::string number_text(Number value, int digits, const Locale& locale) {
    if (std::isnan(value)) return std::signbit(value) ? "-1.#IND" : "1.#QNAN";
    if (std::isinf(value)) return std::signbit(value) ? "-1.#INF" : "1.#INF";
    if (value == 0) return "0"; // a negative zero too
    // A half goes away from zero here, to an even digit in to_chars.
    if (is_half(static_cast<double>(value), static_cast<std::size_t>(digits))) {
        value = std::nextafter(value, std::copysign(std::numeric_limits<Number>::infinity(), value));
    }
    std::array<char, 40> buffer{};
    const auto end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::general, digits)
            .ptr;
    std::string text;
    for (const char* c = buffer.data(); c != end; ++c) {
        switch (*c) {
        case '.':
            text += locale.decimal_separator;
            break;
        case 'e':
            text += 'E';
            break;
        default:
            text += *c;
        }
    }
    return text;
}

} // namespace

std::string double_text(double value, const Locale& locale) { return number_text(value, 15, locale); }

std::string single_text(float value, const Locale& locale) { return number_text(value, 7, locale); }

std::string currency_text(Currency value, const Locale& locale) {
    const bool negative = value.ten_thousandths < 0;
    const auto bits = static_cast<std::uint64_t>(value.ten_thousandths);
    const std::uint64_t magnitude = negative ? ~bits + 1 : bits;
    std::string text = negative ? "-" : "";
    text += std::to_string(magnitude / 10000);
    std::string decimals = std::to_string(10000 + magnitude % 10000).substr(1);
    decimals.erase(decimals.find_last_not_of('0') + 1);
    if (!decimals.empty()) text += locale.decimal_separator + decimals;
    return text;
}

} // namespace brx
