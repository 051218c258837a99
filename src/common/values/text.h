#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace brx {

/// The text without leading and trailing blanks. Only the blank counts: tabs and no-break blanks stay.
std::string trim(std::string_view text);

/// Every letter as its capital, by Unicode's simple mapping, which no locale changes and which never changes
/// the number of letters ("ß" stays). Malformed bytes stay as they are.
std::string to_upper(std::string_view text);

/// True when both texts have the same capitals.
bool equal_ignoring_case(std::string_view a, std::string_view b);

/// The parts between the separators: one part more than there are separators. No parts for an empty text; the
/// whole text as one part for an empty separator.
std::vector<std::string> split(std::string_view text, std::string_view separator);

/// UTF-8 from UTF-16. An unpaired surrogate becomes a three-byte sequence, so nothing is lost:
/// `to_utf16(to_utf8(text)) == text` for every text.
std::string to_utf8(std::u16string_view text);

/// UTF-16 from UTF-8, the other way round. Each byte that belongs to no well-formed sequence becomes U+FFFD.
std::u16string to_utf16(std::string_view text);

/// The length in UTF-16 units, which is what the platform's controls count in.
std::size_t utf16_length(std::string_view text);

} // namespace brx
