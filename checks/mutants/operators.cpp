#include "mutants/edit.h"

#include <array>

namespace brx::mutants {
namespace {

struct Other {
    std::string_view sign;
    std::string_view other;
    std::string_view between; ///< the class that stands in the middle of the guarded expression
};
constexpr std::array<Other, 8> others = {{{"==", "!=", "Equal"},
                                          {"!=", "==", "Different"},
                                          {"<", "<=", "Less"},
                                          {"<=", "<", "NotMore"},
                                          {">", ">=", "More"},
                                          {">=", ">", "NotLess"},
                                          {"+", "-", "Plus"},
                                          {"-", "+", "Minus"}}};

Edit edit_at(const Source& source, std::size_t index, std::string_view kind, std::string_view other) {
    const Token& token = source.token(index);
    return {.kind = std::string(kind),
            .line = token.line,
            .range = {token.begin, token.end},
            .from = std::string(source.word(index)),
            .to = std::string(other),
            .replacement = std::string(other),
            .guarded = !source.is_constant(index)};
}

/// `a < b` becomes `a < Less{n} < b`: it keeps its precedence, and no operand has to be found.
void find_simple(const Source& source, std::size_t index, std::vector<Edit>& edits) {
    for (const Other& each : others) {
        if (source.word(index) != each.sign) continue;
        const bool sum = each.sign == "+" || each.sign == "-";
        const bool of_texts = source.token(index - 1).kind == TokenKind::text ||
                              source.token(index + 1).kind == TokenKind::text;
        if (sum && of_texts) return;
        const std::string sign(each.sign);
        Edit edit = edit_at(source, index, sum ? "sum" : "comparison", each.other);
        edit.instead = sign + " ::brx_mutant::" + std::string(each.between) + "{@@} " + sign;
        edits.push_back(edit);
    }
}

/// `a && b` becomes `!(!a && !b)`, which is the other one.
void find_logical(const Source& source, std::size_t index, std::vector<Edit>& edits) {
    const bool of_and = source.word(index) == "&&";
    Edit edit = edit_at(source, index, "logic", of_and ? "||" : "&&");
    const std::size_t begin = source.operand_begin(index);
    const std::size_t end = source.operand_end(index);
    const Range left{source.token(begin).begin, source.token(index - 1).end};
    const Range right{source.token(index + 1).begin, source.token(end - 1).end};
    for (const Range range : {Range{left.begin, right.end}, left, right})
        edit.wraps.push_back({range, "::brx_mutant::flipped(@@, ", ")"});
    edits.push_back(edit);
}

} // namespace

void find_operators(const Source& source, std::vector<Edit>& edits) {
    for (std::size_t i = 1; i + 1 < source.size(); ++i) {
        if (source.token(i).kind != TokenKind::sign || !source.is_binary(i)) continue;
        const std::string_view word = source.word(i);
        if (word == "&&" || word == "||")
            find_logical(source, i, edits);
        else
            find_simple(source, i, edits);
    }
}

} // namespace brx::mutants
