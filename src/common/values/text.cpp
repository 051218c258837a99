#include "common/values/text.h"

#include "common/values/utf16.h"

namespace brx {

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

std::string to_utf8(std::u16string_view text) { return utf8_of(text); }

std::u16string to_utf16(std::string_view text) { return utf16_of<char16_t>(text); }

std::size_t utf16_length(std::string_view text) {
    std::size_t length = 0;
    for (std::size_t position = 0; position < text.size(); ++length) {
        const char32_t c = read_code_point(text, position);
        if (c != malformed_byte && c >= 0x10000) ++length;
    }
    return length;
}

} // namespace brx
