#pragma once

#include "conversions/comparison.h"
#include "conversions/script.h"

#include <vector>

namespace brx::conversions {

/// The three locales that the platform's functions are asked for by identifier.
const std::vector<ComparedLocale>& compared_locales();

/// The automation library's conversions, in one locale.
void compare_library(Comparison& comparison, const ComparedLocale& where);

/// The same of the texts that the dialogs' value checks are checked with, in US English and German.
void compare_limits(Comparison& comparison, const ComparedLocale& where);

/// The automation library's conversions that know no locale.
void compare_numbers(Comparison& comparison);

/// The script engine's conversions, in the user's locale.
void compare_script(Comparison& comparison, const ComparedLocale& where, const Script& script);

/// Every UTF-16 unit: its capital, and whether it is a blank beside a number.
void compare_letters(Comparison& comparison);

/// The settings as they are read from the system.
void compare_settings(Comparison& comparison, const ComparedLocale& where);

} // namespace brx::conversions
