#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace brx {

/// Stands for a byte that belongs to no well-formed sequence; no code point has this value.
inline constexpr char32_t malformed_byte = 0xFFFF'FFFF;

/// Reads the code point at `position` (which must be inside `text`) and moves `position` behind it.
/// Surrogates are read as code points of their own. A malformed byte is skipped alone and read as
/// `malformed_byte`.
char32_t read_code_point(std::string_view text, std::size_t& position);

/// Writes a code point, surrogates included, as one to four bytes (three at most below 0x10000) and returns
/// what follows them. Anything that is no code point becomes U+FFFD.
char* write_code_point(char* to, char32_t code_point);

/// Appends a code point likewise.
void append_code_point(std::string& text, char32_t code_point);

/// The code points of a text, each malformed byte as U+FFFD.
std::u32string to_code_points(std::string_view text);

/// White space as the platform's conversions understand it, no-break and ideographic blanks included.
bool is_white_space(char32_t code_point);

/// The capital of a letter by Unicode's simple mapping; anything else unchanged.
char32_t to_upper(char32_t code_point);

} // namespace brx
