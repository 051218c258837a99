#include "common/values/unicode.h"

#include <array>

namespace brx {
namespace {

/// What the first byte of a sequence announces: its length, and the first code point that needs that length.
struct Lead {
    std::size_t length;
    char32_t bits;
    char32_t least;
};

Lead lead_of(unsigned char byte) {
    if (byte < 0x80) return {1, byte, 0};
    if (byte < 0xC2) return {}; // inside a sequence, or before one that is longer than need be
    if (byte < 0xE0) return {2, byte & 0x1FU, 0x80};
    if (byte < 0xF0) return {3, byte & 0x0FU, 0x800};
    return {4, byte & 0x0FU, 0x10000}; // from 0xF5 on beyond Unicode
}

} // namespace

char32_t read_code_point(std::string_view text, std::size_t& position) {
    const Lead lead = lead_of(static_cast<unsigned char>(text[position]));
    const std::size_t start = position++;
    if (lead.length == 0 || lead.length > text.size() - start) return malformed_byte;
    char32_t code_point = lead.bits;
    for (std::size_t i = 1; i < lead.length; ++i) {
        const auto byte = static_cast<unsigned char>(text[start + i]);
        if ((byte & 0xC0) != 0x80) return malformed_byte;
        code_point = (code_point << 6) | (byte & 0x3FU);
    }
    if (code_point < lead.least || code_point > 0x10FFFF) return malformed_byte;
    position = start + lead.length;
    return code_point;
}

char* write_code_point(char* to, char32_t code_point) {
    const auto put = [&](char32_t byte) { *to++ = static_cast<char>(static_cast<unsigned char>(byte)); };
    if (code_point > 0x10FFFF) code_point = 0xFFFD;
    if (code_point < 0x80) {
        put(code_point);
        return to;
    }
    if (code_point < 0x800) {
        put(0xC0 | (code_point >> 6));
    } else {
        if (code_point < 0x10000) {
            put(0xE0 | (code_point >> 12));
        } else {
            put(0xF0 | (code_point >> 18));
            put(0x80 | ((code_point >> 12) & 0x3F));
        }
        put(0x80 | ((code_point >> 6) & 0x3F));
    }
    put(0x80 | (code_point & 0x3F));
    return to;
}

void append_code_point(std::string& text, char32_t code_point) {
    std::array<char, 4> bytes{};
    text.append(bytes.data(), write_code_point(bytes.data(), code_point));
}

std::u32string to_code_points(std::string_view text) {
    std::u32string result;
    result.reserve(text.size());
    for (std::size_t position = 0; position < text.size();) {
        const char32_t c = read_code_point(text, position);
        result += c == malformed_byte ? U'\uFFFD' : c;
    }
    return result;
}

bool is_white_space(char32_t c) {
    return (c >= 9 && c <= 13) || c == 0x20 || c == 0x85 || c == 0xA0 || c == 0x1680 ||
           (c >= 0x2000 && c <= 0x200A) || c == 0x2028 || c == 0x2029 || c == 0x202F || c == 0x205F ||
           c == 0x3000;
}

} // namespace brx
