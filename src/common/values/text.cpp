#include "common/values/text.h"

#include "common/values/unicode.h"

namespace brx {
namespace {

bool is_high_surrogate(char32_t c) { return c >= 0xD800 && c <= 0xDBFF; }
bool is_low_surrogate(char32_t c) { return c >= 0xDC00 && c <= 0xDFFF; }

} // namespace

std::string trim(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

std::string to_upper(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    for (std::size_t position = 0; position < text.size();) {
        const std::size_t start = position;
        const char32_t c = read_code_point(text, position);
        if (c == malformed_byte) {
            result += text[start];
        } else {
            append_code_point(result, to_upper(c));
        }
    }
    return result;
}

bool equal_ignoring_case(std::string_view a, std::string_view b) { return to_upper(a) == to_upper(b); }

std::vector<std::string> split(std::string_view text, std::string_view separator) {
    std::vector<std::string> parts;
    if (text.empty()) return parts;
    while (!separator.empty()) {
        const std::size_t end = text.find(separator);
        if (end == std::string_view::npos) break;
        parts.emplace_back(text.substr(0, end));
        text.remove_prefix(end + separator.size());
    }
    parts.emplace_back(text);
    return parts;
}

std::string to_utf8(std::u16string_view text) {
    std::string result;
    result.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        char32_t c = text[i];
        if (is_high_surrogate(c) && i + 1 < text.size() && is_low_surrogate(text[i + 1])) {
            c = 0x10000 + ((c - 0xD800) << 10) + (text[++i] - 0xDC00U);
        }
        append_code_point(result, c);
    }
    return result;
}

std::u16string to_utf16(std::string_view text) {
    std::u16string result;
    result.reserve(text.size());
    for (std::size_t position = 0; position < text.size();) {
        char32_t c = read_code_point(text, position);
        if (c == malformed_byte) c = 0xFFFD;
        if (c >= 0x10000) {
            result += static_cast<char16_t>(0xD800 + ((c - 0x10000) >> 10));
            c = 0xDC00 + ((c - 0x10000) & 0x3FF);
        }
        result += static_cast<char16_t>(c);
    }
    return result;
}

std::size_t utf16_length(std::string_view text) {
    std::size_t length = 0;
    for (std::size_t position = 0; position < text.size(); ++length) {
        const char32_t c = read_code_point(text, position);
        if (c != malformed_byte && c >= 0x10000) ++length;
    }
    return length;
}

} // namespace brx
