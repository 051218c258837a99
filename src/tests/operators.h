#pragma once

#include "forms/list_control.h"

#include <cstdint>

namespace brx {

/// Operator codes of triggers: positions in every list that offers them.
namespace trigger_operator {
inline constexpr int always = 0;
inline constexpr int equal = 1;
} // namespace trigger_operator

/// Fills a list with the seven operators, each at its code. The blanks belong to the texts.
inline void fill_operators(ListControl& list) {
    int code = 0;
    for (const char* text : {"Always", " = ", " > ", " >= ", " < ", " <= ", " <> "})
        list.insert_line(code++, text);
}

/// VARTYPE codes of the item types whose trigger values are converted.
namespace data_type {
inline constexpr std::int32_t unread = -1;
inline constexpr std::int32_t int16 = 2;
inline constexpr std::int32_t int32 = 3;
inline constexpr std::int32_t single = 4;
inline constexpr std::int32_t real = 5;
inline constexpr std::int32_t boolean = 11;
inline constexpr std::int32_t variant = 12;
} // namespace data_type

} // namespace brx
