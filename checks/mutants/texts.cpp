#include "mutants/edit.h"

#include <cctype>

namespace brx::mutants {
namespace {

/// The positions of a literal's characters that are no part of an escape: letters, or everything.
std::vector<std::size_t> characters_of(std::string_view literal, bool letters) {
    std::vector<std::size_t> found;
    for (std::size_t i = literal.find('"') + 1; i + 1 < literal.size(); ++i) {
        const auto c = static_cast<unsigned char>(literal[i]);
        if (c == '\\') {
            while (i + 2 < literal.size() && std::isxdigit(static_cast<unsigned char>(literal[i + 2])) != 0)
                ++i;
            ++i;
            continue;
        }
        if (c < 0x80 && (!letters || std::isalpha(c) != 0)) found.push_back(i);
    }
    return found;
}

char other_character(char c) {
    if (c == 'z') return 'a';
    if (c == 'Z') return 'A';
    if (std::isalpha(static_cast<unsigned char>(c)) != 0) return static_cast<char>(c + 1);
    return c == '#' ? '!' : '#';
}

/// The same literal with one letter changed, with another sign in place of one, or with one more.
std::string other_text(std::string literal, std::size_t choice) {
    for (const bool letters : {true, false}) {
        const std::vector<std::size_t> places = characters_of(literal, letters);
        if (places.empty()) continue;
        char& chosen = literal[places[choice % places.size()]];
        chosen = other_character(chosen);
        return literal;
    }
    return literal.insert(literal.find('"') + 1, "#");
}

} // namespace

void find_texts(const Source& source, std::vector<Edit>& edits) {
    for (std::size_t i = 0; i < source.size(); ++i) {
        if (source.token(i).kind != TokenKind::text) continue;
        const std::size_t first = i;
        while (i + 1 < source.size() && source.token(i + 1).kind == TokenKind::text) ++i;
        // Beside a macro it is not known what the text is; a raw one is left alone, and a library's name.
        const bool alone = source.token(first).kind == TokenKind::text &&
                           source.word(first - 1) != "extern" &&
                           (i + 1 >= source.size() || source.token(i + 1).kind != TokenKind::word);
        if (!alone || source.word(first).find('R') < source.word(first).find('"')) continue;
        const std::size_t changed = first + source.token(first).begin % (i - first + 1);
        std::string whole, other;
        for (std::size_t each = first; each <= i; ++each) {
            const std::string literal(source.word(each));
            whole += (whole.empty() ? "" : " ") + literal;
            other += (other.empty() ? "" : " ") +
                     (each == changed ? other_text(literal, source.token(each).begin) : literal);
        }
        const Range range{source.token(first).begin, source.token(i).end};
        const std::string original(source.between(range.begin, range.end));
        edits.push_back({.kind = "text",
                         .line = source.token(first).line,
                         .range = range,
                         .from = whole,
                         .to = other,
                         .replacement = other,
                         .instead = "(::brx_mutant::on(@@) ? " + other + " : " + original + ")",
                         .guarded = !source.is_constant(first)});
    }
}

} // namespace brx::mutants
