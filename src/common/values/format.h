#pragma once

#include "common/values/locale.h"
#include "common/values/variant.h"

#include <string>

namespace brx {

// The texts of the kinds of value that the locale has a say in; `to_text` chooses among them.

/// At most 15 significant digits; infinities and what is no number as 1.#INF, 1.#QNAN.
std::string double_text(double value, const Locale& locale);
/// At most 7 significant digits.
std::string single_text(float value, const Locale& locale);
/// As many of the four decimals as are needed.
std::string currency_text(Currency value, const Locale& locale);
std::string date_text(Date date, const Locale& locale);

} // namespace brx
