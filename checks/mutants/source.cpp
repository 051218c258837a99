#include "mutants/source.h"

#include <algorithm>
#include <array>
#include <numeric>

namespace brx::mutants {
namespace {

template <std::size_t N> bool is_one_of(std::string_view word, const std::array<std::string_view, N>& words) {
    return std::find(words.begin(), words.end(), word) != words.end();
}

constexpr std::array<std::string_view, 9> before_code = {")",    "const", "noexcept", "override", "final",
                                                         "else", "do",    "try",      "mutable"};

} // namespace

Source::Source(std::string path, std::string text)
    : path_(std::move(path)),
      text_(std::move(text)),
      tokens_(tokens_of(text_)),
      inside_(tokens_.size(), Inside::names),
      partner_(tokens_.size()),
      constant_(tokens_.size(), false) {
    std::iota(partner_.begin(), partner_.end(), std::size_t{0});
    pair_angles();
    pair_brackets();
    mark_constants();
}

std::string_view Source::word(std::size_t index) const {
    if (index >= tokens_.size()) return "";
    return between(tokens_[index].begin, tokens_[index].end);
}

std::string_view Source::line_text(int line) const {
    std::size_t begin = 0;
    for (int n = 1; n < line; ++n) begin = text_.find('\n', begin) + 1;
    std::string_view found = std::string_view(text_).substr(begin);
    found = found.substr(0, found.find('\n'));
    return found.substr(std::min(found.find_first_not_of(' '), found.size()));
}

bool Source::opens_angle(std::size_t index) const {
    if (word(index) != "<" || index == 0) return false;
    if (word(index - 1) == "template") return true;
    return tokens_[index - 1].kind == TokenKind::word && tokens_[index - 1].end == tokens_[index].begin &&
           word(index - 1) != "operator";
}

void Source::pair_angles() {
    std::vector<std::size_t> open;
    for (std::size_t i = 0; i < size(); ++i) {
        if (opens_angle(i)) {
            open.push_back(i);
        } else if (word(i) == ";") {
            open.clear();
        } else if (word(i) == ">" && !open.empty() && tokens_[i - 1].end == tokens_[i].begin) {
            partner_[i] = open.back();
            partner_[open.back()] = i;
            open.pop_back();
        }
    }
}

void Source::pair_brackets() {
    std::vector<std::pair<std::size_t, Inside>> open;
    for (std::size_t i = 0; i < size(); ++i) {
        const std::string_view sign = tokens_[i].kind == TokenKind::sign ? word(i) : "";
        if ((sign == ")" || sign == "]" || sign == "}") && !open.empty()) {
            partner_[i] = open.back().first;
            partner_[open.back().first] = i;
            open.pop_back();
        }
        inside_[i] = open.empty() ? Inside::names : open.back().second;
        if (sign == "(") open.emplace_back(i, Inside::round);
        if (sign == "[") open.emplace_back(i, Inside::square);
        if (sign == "{") open.emplace_back(i, kind_of_brace(i, inside_[i]));
    }
}

Inside Source::kind_of_brace(std::size_t index, Inside around) const {
    if (index == 0) return Inside::code;
    const std::string_view before = word(index - 1);
    if (is_one_of(before, before_code)) return Inside::code;
    if (before == "]") return around == Inside::names || around == Inside::type ? Inside::list : Inside::code;
    if (before == "{" || before == ";" || before == "}") {
        return around == Inside::list || around == Inside::round ? Inside::list : Inside::code;
    }
    if (before == ":" && around == Inside::code) return Inside::code; // a case's own block
    // What the statement begins with tells the rest.
    for (std::size_t i = index; i-- > 0;) {
        const std::string_view each = word(i);
        if (each == ">" && partner_[i] < i) {
            i = partner_[i];
            continue;
        }
        if (each == ";" || each == "{" || each == "}" || each == "(") break;
        if (each == "," && around != Inside::names && around != Inside::type) break; // else of base classes
        if (each == ")") {
            const bool result_type = word(i + 1) == "->";
            return result_type ? Inside::code : Inside::list;
        }
        if (each == "enum") return Inside::enumeration;
        if ((each == "class" || each == "struct" || each == "union") && word(i - 1) != "enum")
            return Inside::type;
        if (each == "namespace" || each == "extern") return Inside::names;
    }
    return Inside::list;
}

void Source::mark(std::size_t begin, std::size_t end) {
    for (; begin < end && begin < size(); ++begin) constant_[begin] = true;
}

void Source::mark_constants() {
    for (std::size_t i = 0; i < size(); ++i) {
        const std::string_view each = word(i);
        if (each == "<" && partner_[i] != i) mark(i, partner_[i]);
        if (inside_[i] == Inside::enumeration) mark(i, i + 1);
        const bool of_compiler = (each == "constexpr" && word(i + 1) == "(") || each == "requires";
        if (of_compiler && word(i + 1) == "(") mark(i, partner_[i + 1]);
        if (each == "requires" && word(i + 1) == "{") mark(i, partner_[i + 1]);
        if (each == "static_assert" || each == "case") {
            std::size_t end = i;
            while (end < size() && word(end) != ";" && word(end) != ":") ++end;
            mark(i, end);
        }
    }
}

bool Source::is_binary(std::size_t index) const {
    if (index == 0 || index + 1 >= size() || word(index - 1) == "operator" || partner_[index] != index)
        return false;
    return tokens_[index - 1].end < tokens_[index].begin && tokens_[index].end < tokens_[index + 1].begin;
}

/// Whether the token binds less tightly than `&&`, or than `||` and everything else in a condition.
bool Source::ends_operand(std::size_t index, bool of_and) const {
    static constexpr std::array<std::string_view, 14> loose = {
        ",", ";", "?", ":", "=", "+=", "-=", "*=", "/=", "|=", "&=", "return", "throw", "<<"};
    const std::string_view each = word(index);
    return is_one_of(each, loose) || (of_and && each == "||");
}

std::size_t Source::operand_begin(std::size_t oper) const {
    const bool of_and = word(oper) == "&&";
    std::size_t i = oper;
    while (i > 0) {
        const std::size_t before = i - 1;
        if (partner_[before] < before) {
            i = partner_[before]; // over a pair of brackets
            continue;
        }
        const std::string_view each = word(before);
        if (each == "(" || each == "[" || each == "{" || each == "}") break;
        if (ends_operand(before, of_and)) break;
        i = before;
    }
    return i;
}

std::size_t Source::operand_end(std::size_t oper) const {
    const bool of_and = word(oper) == "&&";
    std::size_t i = oper + 1;
    while (i < size()) {
        if (partner_[i] > i) {
            i = partner_[i] + 1;
            continue;
        }
        const std::string_view each = word(i);
        if (each == ")" || each == "]" || each == "}") break;
        // Operators of one kind are grouped from the left.
        if (ends_operand(i, of_and) || each == word(oper)) break;
        i = i + 1;
    }
    return i;
}

} // namespace brx::mutants
