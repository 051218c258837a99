#pragma once

#include "common/values/text.h"
#include "forms/list_control.h"

#include <array>
#include <cstdint>
#include <string>

namespace brx {

/// Operator codes of triggers: positions in every list that offers them.
namespace trigger_operator {
inline constexpr int always = 0;
inline constexpr int equal = 1;
} // namespace trigger_operator

/// The text of a comparison; "" for "Always" and for what is no operator code. The blanks belong to it.
inline std::string operator_text(int code) {
    static constexpr std::array texts = {"", " = ", " > ", " >= ", " < ", " <= ", " <> "};
    return code >= 0 && code < static_cast<int>(texts.size()) ? texts[static_cast<std::size_t>(code)] : "";
}

/// Fills a list with the seven operators, each at its code.
inline void fill_operators(ListControl& list) {
    list.insert_line(trigger_operator::always, "Always");
    for (int code = trigger_operator::equal; code <= 6; ++code) list.insert_line(code, operator_text(code));
}

/// How a trigger on no item is written, in whatever letters.
inline constexpr const char* no_item = "<None>";
inline bool is_no_item(const std::string& item_id) { return to_upper(item_id) == "<NONE>"; }

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
