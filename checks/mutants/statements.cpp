#include "mutants/edit.h"

#include <algorithm>
#include <array>

namespace brx::mutants {
namespace {

constexpr std::array<std::string_view, 46> no_expression = {
    "if",        "for",      "while",         "do",      "switch",       "case",     "default", "const",
    "constexpr", "static",   "auto",          "using",   "struct",       "class",    "enum",    "template",
    "typename",  "friend",   "namespace",     "try",     "catch",        "else",     "goto",    "unsigned",
    "signed",    "int",      "char",          "bool",    "float",        "double",   "long",    "short",
    "void",      "typedef",  "public",        "private", "protected",    "operator", "extern",  "inline",
    "union",     "requires", "static_assert", "alignas", "thread_local", "explicit"};

/// Whether a statement begins at a token in code.
bool begins_statement(const Source& source, std::size_t index) {
    if (index == 0 || source.inside(index) != Inside::code) return false;
    const std::string_view before = source.word(index - 1);
    if (before == "}" && (source.word(index) == "(" || source.word(index) == "*")) return false;
    if (before == "{" || before == ";" || before == "}" || before == "else" || before == "do") return true;
    if (before == ")") {
        const std::string_view keyword = source.word(source.partner(index - 1) - 1);
        return keyword == "if" || keyword == "for" || keyword == "while" || keyword == "constexpr";
    }
    if (before != ":") return false;
    for (std::size_t i = index - 1; i-- > 0;) {
        const std::string_view each = source.word(i);
        if (each == "case" || each == "default") return true;
        if (each == ";" || each == "{" || each == "}" || each == "?") return false;
    }
    return false;
}

std::size_t end_of_statement(const Source& source, std::size_t index) {
    while (index < source.size() && source.word(index) != ";")
        index = source.partner(index) > index ? source.partner(index) + 1 : index + 1;
    return index + 1;
}

/// `name`, `space::name<T>`, then what is no further word: a declaration would have one.
bool is_expression(const Source& source, std::size_t index) {
    const std::string_view first = source.word(index);
    if (first == "return" || first == "break" || first == "continue") return source.word(index + 1) == ";";
    if (first == "throw" || first == "delete" || first == "++" || first == "--" || first == "*" ||
        first == "(")
        return true;
    if (source.token(index).kind != TokenKind::word) return false;
    if (std::find(no_expression.begin(), no_expression.end(), first) != no_expression.end()) return false;
    std::size_t i = index + 1;
    for (;;) {
        if (source.word(i) == "<" && source.partner(i) > i) i = source.partner(i) + 1;
        if (source.word(i) != "::") break;
        i += 2;
    }
    const bool reference =
        (source.word(i) == "&" || source.word(i) == "*" || source.word(i) == "&&") && !source.is_binary(i);
    return source.token(i).kind == TokenKind::sign && !reference && source.word(i) != ";" &&
           source.word(i) != ":";
}

/// Nothing but a word to the compiler: `static_cast<void>(name);`.
bool says_unused(const Source& source, std::size_t index, std::size_t end) {
    return source.word(index) == "static_cast" && source.word(index + 2) == "void" && end - index == 8;
}

std::string short_text(std::string_view text) {
    std::string result;
    for (const char c : text) {
        if ((c == ' ' || c == '\n') && (result.empty() || result.back() == ' ')) continue;
        result += c == '\n' ? ' ' : c;
    }
    return result.size() <= 80 ? result : result.substr(0, 77) + "...";
}

} // namespace

void find_statements(const Source& source, std::vector<Edit>& edits) {
    for (std::size_t i = 0; i < source.size(); ++i) {
        if (!begins_statement(source, i) || !is_expression(source, i)) continue;
        const std::size_t end = end_of_statement(source, i);
        if (end > source.size() || says_unused(source, i, end)) continue;
        const Range range{source.token(i).begin, source.token(end - 1).end};
        edits.push_back({.kind = "statement",
                         .line = source.token(i).line,
                         .range = range,
                         .from = short_text(source.between(range.begin, range.end)),
                         .to = "left out",
                         .replacement = ";",
                         .wraps = {{range, "{ if (!::brx_mutant::on(@@)) ", " }"}}});
    }
}

} // namespace brx::mutants
