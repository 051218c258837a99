#pragma once

#include "com/safe_array.h"

#include <optional>
#include <string>

namespace brx {

// Arguments as OPC automation takes them. Another type, or fewer elements than said, is E_INVALIDARG. Of an
// array that goes with a count, the elements from index 1 count, whatever its lower bound.

StringArray first_strings(SAFEARRAY* const* array, LONG count);
LongArray first_longs(SAFEARRAY* const* array, LONG count);
std::optional<ShortArray> optional_shorts(const VARIANT& array, LONG count);
std::optional<StringArray> optional_strings(const VARIANT& array, LONG count);

/// The one array that is taken from its lower bound on.
StringArray whole_path(SAFEARRAY* const* array);

/// Text; none when the argument is omitted or Empty.
std::optional<std::string> optional_text(const VARIANT& text);

/// A flag; False when the argument is omitted or Empty.
bool optional_flag(const VARIANT& flag);

/// A position: a 16- or 32-bit integer.
std::int32_t position_in(const VARIANT& item_specifier);

} // namespace brx
