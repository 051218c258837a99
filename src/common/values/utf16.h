#pragma once

#include "common/values/unicode.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace brx {

// Between UTF-8 and UTF-16, whatever the type of the units: char16_t, or a platform's own of 16 bits. Item
// names come by the million and are nearly always ASCII, so everything is tried as ASCII first; and they can
// be written into a text that is there already, which then needs no memory of its own.

/// UTF-8 from UTF-16. An unpaired surrogate becomes a three-byte sequence, so nothing is lost.
template <class Unit> void write_utf8(std::string& result, std::basic_string_view<Unit> units) {
    static_assert(sizeof(Unit) == 2);
    const std::size_t length = units.size();
    const auto unit = [&](std::size_t i) { return static_cast<char32_t>(static_cast<char16_t>(units[i])); };
    const auto is_high = [](char32_t c) { return c >= 0xD800 && c <= 0xDBFF; };
    const auto is_low = [](char32_t c) { return c >= 0xDC00 && c <= 0xDFFF; };

    result.resize(length);
    char* to = result.data();
    char32_t bits = 0;
    for (std::size_t i = 0; i < length; ++i) {
        bits |= unit(i);
        to[i] = static_cast<char>(units[i]);
    }
    if (bits < 0x80) return;

    result.resize(3 * length);
    to = result.data();
    for (std::size_t i = 0; i < length; ++i) {
        char32_t c = unit(i);
        if (is_high(c) && i + 1 < length && is_low(unit(i + 1)))
            c = 0x10000 + ((c - 0xD800) << 10) + (unit(++i) - 0xDC00);
        to = write_code_point(to, c);
    }
    result.resize(static_cast<std::size_t>(to - result.data()));
}

template <class Unit> std::string utf8_of(std::basic_string_view<Unit> units) {
    std::string result;
    write_utf8(result, units);
    return result;
}

/// UTF-16 from UTF-8, the other way round. Each byte that belongs to no well-formed sequence becomes U+FFFD.
template <class Unit> void write_utf16(std::basic_string<Unit>& result, std::string_view text) {
    static_assert(sizeof(Unit) == 2);
    const std::size_t length = text.size();

    result.resize(length);
    Unit* to = result.data();
    unsigned char bits = 0;
    for (std::size_t i = 0; i < length; ++i) {
        const auto c = static_cast<unsigned char>(text[i]);
        bits |= c;
        to[i] = static_cast<Unit>(c);
    }
    if (bits < 0x80) return;

    for (std::size_t position = 0; position < length;) {
        char32_t c = read_code_point(text, position);
        if (c == malformed_byte) c = 0xFFFD;
        if (c >= 0x10000) {
            *to++ = static_cast<Unit>(0xD800 + ((c - 0x10000) >> 10));
            c = 0xDC00 + (c & 0x3FF);
        }
        *to++ = static_cast<Unit>(c);
    }
    result.resize(static_cast<std::size_t>(to - result.data()));
}

template <class Unit> std::basic_string<Unit> utf16_of(std::string_view text) {
    std::basic_string<Unit> result;
    write_utf16(result, text);
    return result;
}

} // namespace brx
