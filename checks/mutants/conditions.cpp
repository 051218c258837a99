#include "mutants/edit.h"

namespace brx::mutants {
namespace {

/// The condition as a whole, turned round.
Edit negated(const Source& source, std::size_t first, std::size_t end) {
    const Range range{source.token(first).begin, source.token(end - 1).end};
    const std::string text(source.between(range.begin, range.end));
    return {.kind = "condition",
            .line = source.token(first).line,
            .range = range,
            .from = text,
            .to = "!(" + text + ")",
            .replacement = "!(" + text + ")",
            .wraps = {{range, "::brx_mutant::flipped(@@, ", ")"}}};
}

/// `!x` alone: to leave out its sign is the same edit.
bool is_negation(const Source& source, std::size_t first, std::size_t end) {
    if (source.word(first) != "!") return false;
    for (std::size_t i = first; i<end; i = source.partner(i)> i ? source.partner(i) + 1 : i + 1)
        if (source.token(i).kind == TokenKind::sign && source.is_binary(i)) return false;
    return true;
}

/// What stands in the brackets of `if` and `while`. `if (T x = f())` gets its name as a condition of its own.
void find_bracketed(const Source& source, std::size_t open, std::vector<Edit>& edits) {
    const std::size_t close = source.partner(open);
    std::size_t first = open + 1;
    std::size_t assignment = 0;
    for (std::size_t i = open + 1; i < close; ++i) {
        if (source.partner(i) > i) i = source.partner(i);
        if (source.word(i) == ";") {
            first = i + 1;
            assignment = 0;
        } else if (source.word(i) == "=") {
            assignment = i;
        }
    }
    if (assignment == 0) {
        if (is_negation(source, first, close)) return;
        edits.push_back(negated(source, first, close));
        return;
    }
    if (first != open + 1 || source.word(open - 1) != "if") return;
    const std::string name(source.word(assignment - 1));
    Edit edit = negated(source, first, close);
    const std::string text(source.between(edit.range.begin, edit.range.end));
    edit.to = edit.replacement = text + "; !" + name;
    edit.wraps = {{edit.range, "", "; ::brx_mutant::flipped(@@, " + name + ")"}};
    edits.push_back(edit);
}

/// `!x`, by an operator of two sides that binds as tightly.
void find_not(const Source& source, std::size_t index, std::vector<Edit>& edits) {
    const Token& token = source.token(index);
    edits.push_back({.kind = "negation",
                     .line = token.line,
                     .range = {token.begin, token.end},
                     .from = "!" + std::string(source.word(index + 1)),
                     .to = std::string(source.word(index + 1)),
                     .replacement = "!!",
                     .instead = "::brx_mutant::Not{@@} ->* ",
                     .guarded = !source.is_constant(index)});
}

} // namespace

void find_conditions(const Source& source, std::vector<Edit>& edits) {
    for (std::size_t i = 0; i + 1 < source.size(); ++i) {
        const std::string_view word = source.word(i);
        if ((word == "if" || word == "while") && source.word(i + 1) == "(")
            find_bracketed(source, i + 1, edits);
        if (word == "?" && !source.is_constant(i))
            edits.push_back(negated(source, source.operand_begin(i), i));
        if (word == "!" && source.token(i).end == source.token(i + 1).begin) find_not(source, i, edits);
    }
}

} // namespace brx::mutants
