#pragma once

#include "common/values/locale.h"
#include "common/values/variant.h"

#include <concepts>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace brx {

/// A Variant as an argument. It is made of nothing else, so that a text is never taken for one.
struct VariantView {
    const Variant& value;
    template <std::same_as<Variant> V> VariantView(const V& variant) : value(variant) {}
};

// The host language's conversions. They follow the locale; only `val` does not. What they refuse they throw:
// error 13 for what is no number, date or truth, 6 for what is too large, 94 for Null, 91 for Nothing.

/// True when the text converts to a double.
bool is_numeric(std::string_view text, const Locale& locale);
/// True for numbers, Booleans and Empty, and for a text as above; false for dates, objects and arrays.
bool is_numeric(VariantView value, const Locale& locale);

/// The number that a text begins with: blanks, tabs and line feeds count nowhere, the decimal separator is
/// the full stop in every locale. 0 when nothing can be read; error 6 when it is too large.
double val(std::string_view text);

/// Integers round half to even. &HFFFF is -1 as 16 bits and 65535 as 32.
std::int16_t to_int16(double number);
std::int16_t to_int16(std::string_view text, const Locale& locale);
std::int16_t to_int16(VariantView value, const Locale& locale);

std::int32_t to_int32(double number);
std::int32_t to_int32(std::string_view text, const Locale& locale);
std::int32_t to_int32(VariantView value, const Locale& locale);

float to_single(double number);
float to_single(std::string_view text, const Locale& locale);
float to_single(VariantView value, const Locale& locale);

double to_double(std::string_view text, const Locale& locale);
double to_double(VariantView value, const Locale& locale);

/// True and False in English or as the locale calls them, in any letter case, or any number: 0 is False.
bool to_boolean(std::string_view text, const Locale& locale);
bool to_boolean(VariantView value, const Locale& locale);

/// A date, a time or both, or a number of days. A year left out is the current one.
Date to_date(std::string_view text, const Locale& locale);
Date to_date(VariantView value, const Locale& locale);

/// The date that a text spells out, with `this_year` where it leaves the year out. Empty when it is none; a
/// number of days is none.
std::optional<Date> read_date(std::string_view text, const Locale& locale, int this_year);

/// Doubles with at most 15 digits, singles with 7, very large and very small ones as 1E+15. A date as short
/// date, blank and long time, without the time at midnight and without the date on 30 December 1899. Empty
/// gives an empty text.
std::string to_text(const Variant& value, const Locale& locale);

/// Error 5 for a date outside the years 100 to 9999. Times are rounded to seconds.
std::string short_date(Date date, const Locale& locale);
std::string long_time(Date date, const Locale& locale);

} // namespace brx
