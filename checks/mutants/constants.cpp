#include "mutants/edit.h"

#include <algorithm>
#include <charconv>

namespace brx::mutants {
namespace {

/// Another number of the same type: the next one; of a fraction the double.
std::string other_number(std::string_view number) {
    const std::size_t digits = std::min(number.find_first_not_of("0123456789"), number.size());
    const std::string_view suffix = number.substr(digits);
    const bool is_fraction = number.find('.') != std::string_view::npos || suffix.starts_with("e");
    if (is_fraction && !number.starts_with("0x")) {
        const bool is_zero = number.find_first_of("123456789") == std::string_view::npos;
        return is_zero ? "1.0" : "(" + std::string(number) + " * 2)";
    }
    unsigned long long value = 0;
    const bool plain =
        suffix.find_first_of("xX'pP") == std::string_view::npos && !(digits > 1 && number[0] == '0');
    if (plain && std::from_chars(number.data(), number.data() + digits, value).ec == std::errc())
        return std::to_string(value + 1) + std::string(suffix);
    return "(" + std::string(number) + " + 1)";
}

bool is_pure_virtual(const Source& source, std::size_t index) {
    return source.word(index) == "0" && source.word(index - 1) == "=" && source.word(index + 1) == ";" &&
           (source.inside(index) == Inside::type) &&
           (source.word(index - 2) == ")" || source.word(index - 2) == "const" ||
            source.word(index - 2) == "noexcept");
}

} // namespace

void find_constants(const Source& source, std::vector<Edit>& edits) {
    for (std::size_t i = 0; i < source.size(); ++i) {
        const Token& token = source.token(i);
        const std::string word(source.word(i));
        const bool truth = word == "true" || word == "false";
        Edit edit{.line = token.line, .range = {token.begin, token.end}, .from = word};
        if (truth) {
            edit.kind = "truth";
            edit.to = word == "true" ? "false" : "true";
        } else if (token.kind == TokenKind::number && !is_pure_virtual(source, i)) {
            const bool tab =
                source.word(i - 1) == "=" && source.word(i - 2) == "tab" && source.word(i - 3) == ".";
            edit.kind = tab ? "tab" : "number";
            edit.to = other_number(word);
        } else if (token.kind == TokenKind::character) {
            edit.kind = "character";
            edit.to = "static_cast<decltype(" + word + ")>(" + word + " + 1)";
        } else {
            continue;
        }
        edit.replacement = edit.to;
        edit.instead = "(::brx_mutant::on(@@) ? " + edit.to + " : " + word + ")";
        edit.guarded = !source.is_constant(i);
        edits.push_back(edit);
    }
}

} // namespace brx::mutants
