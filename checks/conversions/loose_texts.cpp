#include "conversions/loose_texts.h"

#include "common/values/unicode.h"

#include <algorithm>
#include <cstdint>

namespace brx::conversions {
namespace {

using Text = std::u32string;

constexpr const char* loose_exponent = "loose exponent";
constexpr const char* loose_end = "loose end";
constexpr const char* sixteen_bits = "16 bits of a date";
constexpr const char* letter_and_next = "letter and the next";
constexpr const char* separator_and_designator = "separator before a designator";

bool is_digit(char32_t c) { return c >= U'0' && c <= U'9'; }

std::string utf8(const Text& text) {
    std::string result;
    for (const char32_t c : text) append_code_point(result, c);
    return result;
}

/// In an exponent signs may be repeated, and grouping separators may stand before and behind its digits;
/// digits behind those belong to the number before the exponent.
Text read_exponent(const Text& text, char32_t grouping) {
    const std::size_t e = text.find_first_of(U"eE");
    if (e == Text::npos) return text;
    const auto is_grouping = [&](char32_t c) {
        return c == grouping || (grouping == U'\u00A0' && c == U' ');
    };
    std::size_t at = e + 1;
    bool negative = false;
    for (; at < text.size() && (text[at] == U'+' || text[at] == U'-' || is_grouping(text[at])); ++at) {
        negative = negative || text[at] == U'-';
    }
    Text exponent;
    while (at < text.size() && is_digit(text[at])) exponent += text[at++];
    Text mantissa = text.substr(0, e);
    for (; at < text.size() && (is_grouping(text[at]) || is_digit(text[at])); ++at) {
        if (is_digit(text[at])) mantissa += text[at];
    }
    return mantissa + (negative ? U"E-" : U"E") + exponent + text.substr(at);
}

/// Behind a number signs, closing brackets, currency signs and grouping separators may stand as often as they
/// like, and a minus closes a bracket.
Text read_end(const Text& text, const Locale& locale) {
    const Text currency = to_code_points(locale.currency_symbol);
    const Text loose = U"+-)" + currency + to_code_points(locale.grouping_separator);
    std::size_t end = text.size();
    while (end > 0 && (is_white_space(text[end - 1]) || loose.find(text[end - 1]) != Text::npos)) --end;
    const Text number = text.substr(0, end);
    const Text rest = text.substr(end);
    const Text start = number.substr(0, std::min(number.find_first_of(U"0123456789&"), number.size()));
    const bool open = start.find(U'(') != Text::npos;
    const bool minus = start.find(U'-') != Text::npos;
    const bool closed = rest.find_first_of(minus ? U")" : U"-)") != Text::npos || (minus && open);
    Text result = number;
    if (rest.find(U'-') != Text::npos && !minus) result += U'-';
    if (open && closed) result += U')';
    return result;
}

/// Numbers of a date and of a time count modulo 65536 after their limits were checked.
/// With `years` also those that are left over after that have two digits.
Text read_sixteen_bits(const Text& text, const Locale& locale, bool years) {
    Text result;
    for (std::size_t at = 0; at < text.size();) {
        if (!is_digit(text[at])) {
            result += text[at++];
            continue;
        }
        std::uint64_t number = 0;
        for (; at < text.size() && is_digit(text[at]); ++at) {
            number = std::min<std::uint64_t>(number * 10 + (text[at] - U'0'), 0xFFFF'FFFF);
        }
        const int last = locale.two_digit_year_max;
        int rest = static_cast<int>(number % 0x10000);
        if (years && number > 0xFFFF && rest < 100) rest = last - (last - rest) % 100;
        result += to_code_points(std::to_string(rest));
    }
    return result;
}

} // namespace

std::string with_exponent_e(const std::string& text) {
    std::string result = text;
    const std::size_t d = result.find_first_of("dD");
    if (d != std::string::npos) result[d] = 'E';
    return result;
}

std::vector<Reading> loose_numbers(const std::string& original, const Locale& locale) {
    const Text text = to_code_points(original);
    const Text grouping = to_code_points(locale.grouping_separator);
    const Text exponent = read_exponent(text, grouping.empty() ? U'\0' : grouping[0]);
    std::vector<Reading> readings;
    const auto add = [&](const Text& reading, const char* reason) {
        if (reading != text) readings.push_back({utf8(reading), reason});
    };
    add(read_end(text, locale), loose_end);
    add(exponent, loose_exponent);
    add(read_end(exponent, locale), loose_exponent);
    return readings;
}

std::vector<Reading> loose_dates(const std::string& original, const Locale& locale) {
    const Text text = to_code_points(original);
    std::vector<Reading> readings;
    const auto add = [&](const Text& reading, const char* reason) {
        for (const bool years : {false, true}) {
            const Text short_numbers = read_sixteen_bits(reading, locale, years);
            if (short_numbers != text)
                readings.push_back({utf8(short_numbers), reason, reason == separator_and_designator});
        }
    };
    add(text, sixteen_bits);
    for (std::size_t at = 0; at + 1 < text.size(); ++at) {
        const bool letter = Text(U"aApP").find(text[at]) != Text::npos;
        const bool separator = text[at] == U':' && Text(U"aApP").find(text[at + 1]) != Text::npos;
        Text reading = text;
        // A and P alone swallow the character behind them.
        if (letter) add(reading.erase(at + 1, 1), letter_and_next);
        if (separator) add(reading.erase(at, 1), separator_and_designator);
    }
    return readings;
}

std::string without_last_blanks(const std::string& original) {
    Text text = to_code_points(original);
    while (!text.empty() && (text.back() == U' ' || text.back() == U'\u00A0')) text.pop_back();
    return utf8(text);
}

} // namespace brx::conversions
