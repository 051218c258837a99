#include "conversions/reasons.h"

#include "common/values/calendar.h"
#include "common/values/convert.h"
#include "common/values/number_text.h"
#include "common/values/unicode.h"
#include "conversions/loose_texts.h"
#include "conversions/reference.h"

#include <charconv>
#include <cmath>
#include <limits>

namespace brx::conversions {
namespace {

using Reason = Comparison::Reason;

constexpr double smallest_single = 0x1p-126; ///< with all its bits

bool is_error(const std::string& answer) { return answer.starts_with("error"); }

/// The number that an answer is.
double value_of(const std::string& answer) { return nearest_double(answer); }

/// The same day of different years, and the same time.
bool differ_in_year(const std::string& a, const std::string& b) {
    if (is_error(a) || is_error(b)) return false;
    const Moment one = to_moment(Date{value_of(a)});
    const Moment other = to_moment(Date{value_of(b)});
    return one.second == other.second && one.calendar_day().month() == other.calendar_day().month() &&
           one.calendar_day().day() == other.calendar_day().day();
}

bool differ_in_last_digits(double a, double b) { return std::fabs(a - b) <= 4e-15 * std::fabs(a); }

/// The reasons that Wine has for numbers that both sides read alike.
Reason reason_for_value(const Conversion<std::string>& conversion, const std::string& text,
                        const std::string& ours, const std::string& theirs) {
    const auto number = read_number(text, conversion.where.locale);
    if (!number) return std::nullopt;
    const double value = number->to_double();
    const bool refused = is_error(theirs) || (conversion.function == "IsNumeric" && theirs == "0");

    if (number->hex_or_octal) {
        const bool wide = number->bits > 0x8000'0000U && conversion.kind != Kind::integer;
        return wide && refused ? Reason("hexadecimal beyond 31 bits") : std::nullopt;
    }
    const std::size_t e = number->decimal.find('e');
    const std::string exponent = e == std::string::npos ? "" : number->decimal.substr(e + 1);
    if (exponent.size() > 9 && std::isinf(value)) return "exponent beyond 32 bits";
    if (conversion.kind == Kind::integer) {
        if (ours == "0" && (theirs == "1" || theirs == "-1") && std::fabs(value) < 0.5) {
            return "integer of a tiny fraction";
        }
        // By way of a double it is a half, as decimals it is a little more or less.
        const bool half = value - std::floor(value) == 0.5;
        if (half && (is_error(theirs) || std::fabs(value_of(theirs) - value) == 0.5)) return "nearly a half";
        return std::nullopt;
    }
    if (conversion.kind == Kind::single) {
        if (std::fabs(value) < smallest_single && theirs == "error 6") return "tiny single";
        return std::nullopt;
    }
    if (std::fabs(value) >= 1.797693134862315e308 && std::isfinite(value) && refused)
        return "largest doubles";
    if (is_error(ours) || is_error(theirs)) return std::nullopt;
    if (std::fabs(value) < std::numeric_limits<double>::min() &&
        std::fabs(value_of(theirs)) <= std::fabs(value)) {
        return "smallest doubles";
    }
    const bool exact = conversion.kind == Kind::number || conversion.kind == Kind::date;
    if (exact && differ_in_last_digits(value, value_of(theirs))) return "last digits";
    return std::nullopt;
}

std::vector<Reading> loose_readings(const Conversion<std::string>& conversion, const std::string& text) {
    const Locale& locale = conversion.where.locale;
    std::vector<Reading> readings;
    if (conversion.kind == Kind::date) readings = loose_dates(text, locale);
    // The script engine takes for a number what is no date.
    if (conversion.kind != Kind::date || conversion.function == "CDate") {
        for (const Reading& reading : loose_numbers(text, locale)) readings.push_back(reading);
    }
    return readings;
}

/// As Wine's Trim does it.
std::string without_white_space(const std::string& text) {
    std::u32string all = to_code_points(text);
    while (!all.empty() && is_white_space(all.back())) all.pop_back();
    while (!all.empty() && is_white_space(all.front())) all.erase(0, 1);
    std::string result;
    for (const char32_t c : all) append_code_point(result, c);
    return result;
}

} // namespace

Reason reason_for_text(const Conversion<std::string>& conversion, const std::string& text,
                       const std::string& ours, const std::string& theirs) {
    if (const Reason reason = reason_for_value(conversion, text, ours, theirs)) return reason;
    if (conversion.kind == Kind::text)
        return without_white_space(ours) == theirs ? Reason("trimmed white space") : std::nullopt;
    for (const Reading& reading : loose_readings(conversion, text)) {
        const std::string read = conversion.ours(reading.text);
        const bool same = read == theirs || (reading.loses_year && differ_in_year(read, theirs));
        if (same || reason_for_value(conversion, reading.text, read, theirs)) return reading.reason;
    }
    const auto explained_by = [&](const std::string& other, const char* reason) -> Reason {
        if (other == text || conversion.ours(other) != ours) return std::nullopt;
        const std::string answer = conversion.theirs(other);
        if (ours == answer || reason_for_text(conversion, other, ours, answer)) return reason;
        return std::nullopt;
    };
    if (const Reason reason = explained_by(with_exponent_e(text), "exponent letter D")) return reason;
    if (text.find('&') == std::string::npos) return std::nullopt;
    return explained_by(without_last_blanks(text), "blank behind hexadecimal");
}

Reason reason_for_number(const Conversion<double>& conversion, double number, const std::string& ours,
                         const std::string& theirs) {
    if (!std::isfinite(number)) return "no finite number";
    if (conversion.kind == Kind::single) {
        const bool between = std::fabs(number) > 0x1.FFFFFEp+127 && std::fabs(number) < 0x1.FFFFFFp+127;
        return between && theirs == "error 6" ? Reason("largest singles") : std::nullopt;
    }
    if (conversion.function == "LongTime" && theirs.empty() && to_moment(Date{number}).second == 0) {
        return "midnight without a time";
    }
    if (conversion.kind == Kind::date) {
        // Less than half a second to midnight.
        const double distance = std::fabs(number - std::round(number)) * 86400;
        return distance > 0 && distance <= 0.5 ? Reason("nearly midnight") : std::nullopt;
    }
    const std::string& separator = conversion.where.locale.decimal_separator;
    const std::size_t at = ours.find(separator);
    if (conversion.kind == Kind::text && separator != "." && at != std::string::npos &&
        ours.find('E') != std::string::npos) {
        std::string plain = ours;
        if (plain.replace(at, separator.size(), ".") == theirs) return "separator before an exponent";
    }
    return std::nullopt;
}

Reason reason_for_kind(const std::string& function, const Variant& value, const std::string& theirs) {
    if (function == "IsNumeric" && std::holds_alternative<Date>(value) && theirs == "-1")
        return "dates are numeric";
    if (std::holds_alternative<Null>(value) && theirs == "error 13") return "Null as a number";
    if (std::holds_alternative<ObjectPtr>(value) && theirs == "error 458") return "value of Nothing";
    return std::nullopt;
}

void compare(Comparison& comparison, const Conversion<std::string>& conversion, const std::string& text) {
    const std::string ours = conversion.ours(text);
    const std::string theirs = conversion.theirs(text);
    comparison.compare(conversion.function, conversion.where.name, text, ours, theirs,
                       [&] { return reason_for_text(conversion, text, ours, theirs); });
}

void compare(Comparison& comparison, const Conversion<double>& conversion, double number) {
    const std::string ours = conversion.ours(number);
    const std::string theirs = conversion.theirs(number);
    comparison.compare(conversion.function, conversion.where.name, shown(number), ours, theirs,
                       [&] { return reason_for_number(conversion, number, ours, theirs); });
}

} // namespace brx::conversions
