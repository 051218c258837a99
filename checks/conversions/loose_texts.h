#pragma once

#include "common/values/locale.h"

#include <string>
#include <vector>

namespace brx::conversions {

/// What Wine takes a text for that is no number or no date, and why.
struct Reading {
    std::string text;
    const char* reason;
    bool loses_year = false; ///< and the current one stands in
};

std::vector<Reading> loose_numbers(const std::string& text, const Locale& locale);
std::vector<Reading> loose_dates(const std::string& text, const Locale& locale);

/// The text with E for the D of an exponent; Wine knows no D.
std::string with_exponent_e(const std::string& text);

/// Wine takes a blank for a grouping separator in some locales and then refuses it behind hexadecimal digits.
std::string without_last_blanks(const std::string& text);

} // namespace brx::conversions
