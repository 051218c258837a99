#include "common/error.h"
#include "common/values/calendar.h"
#include "common/values/convert.h"
#include "common/values/number_text.h"
#include "common/values/text.h"

#include <cmath>
#include <limits>

namespace brx {
namespace {

NumberText number_in(std::string_view text, const Locale& locale) {
    if (auto number = read_number(text, locale)) return *number;
    throw Error(error::type_mismatch);
}

double checked(double value) {
    if (std::isinf(value)) throw Error(error::overflow);
    return value;
}

/// Half goes to the even neighbour. The default rounding mode does not change in this component's threads,
/// but a host may have changed it, so it is not relied on.
double round_half_even(double number) {
    const double down = std::floor(number);
    const double rest = number - down;
    if (rest < 0.5) return down;
    if (rest > 0.5) return down + 1;
    return std::fmod(down, 2) == 0 ? down : down + 1;
}

template <class Integer> Integer rounded(double number) {
    const double whole = round_half_even(number);
    // Written so that what is no number fails too.
    if (!(whole >= std::numeric_limits<Integer>::min() && whole <= std::numeric_limits<Integer>::max())) {
        throw Error(error::overflow);
    }
    return static_cast<Integer>(whole);
}

/// Hexadecimal and octal fill the bits of the integer; anything else goes by way of a double.
template <class Integer, class Bits> Integer integer_in(std::string_view text, const Locale& locale) {
    const NumberText number = number_in(text, locale);
    if (!number.hex_or_octal) return rounded<Integer>(number.to_double());
    if (number.too_long || number.bits > std::numeric_limits<Bits>::max()) throw Error(error::overflow);
    return static_cast<Integer>(static_cast<Bits>(number.bits));
}

} // namespace

bool is_numeric(std::string_view text, const Locale& locale) {
    const auto number = read_number(text, locale);
    return number && std::isfinite(number->to_double());
}

std::int16_t to_int16(double number) { return rounded<std::int16_t>(number); }

std::int16_t to_int16(std::string_view text, const Locale& locale) {
    return integer_in<std::int16_t, std::uint16_t>(text, locale);
}

std::int32_t to_int32(double number) { return rounded<std::int32_t>(number); }

std::int32_t to_int32(std::string_view text, const Locale& locale) {
    return integer_in<std::int32_t, std::uint32_t>(text, locale);
}

float to_single(double number) {
    // What would round to infinity, half a unit above the largest single.
    constexpr double limit = 0x1.FFFFFFp+127;
    if (std::fabs(number) >= limit) throw Error(error::overflow);
    return static_cast<float>(number);
}

float to_single(std::string_view text, const Locale& locale) { return to_single(to_double(text, locale)); }

double to_double(std::string_view text, const Locale& locale) {
    return checked(number_in(text, locale).to_double());
}

bool to_boolean(std::string_view text, const Locale& locale) {
    // #TRUE# and #FALSE# are how the platform writes truth into files.
    if (text == "#TRUE#" || equal_ignoring_case(text, "True") ||
        equal_ignoring_case(text, locale.true_text)) {
        return true;
    }
    if (text == "#FALSE#" || equal_ignoring_case(text, "False") ||
        equal_ignoring_case(text, locale.false_text)) {
        return false;
    }
    return to_double(text, locale) != 0;
}

Date to_date(std::string_view text, const Locale& locale) {
    if (const auto date = read_date(text, locale, current_year())) return *date;
    const double days = to_double(text, locale);
    if (!is_date(days)) throw Error(error::overflow);
    return {days};
}

} // namespace brx
