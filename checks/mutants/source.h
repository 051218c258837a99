#pragma once

#include "mutants/tokens.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace brx::mutants {

/// What the innermost bracket around a token is.
enum class Inside { names, type, enumeration, code, list, round, square };

/// A source file with what its tokens tell of its structure. It trusts that the file is formatted: an
/// operator of two sides has blanks around it, the brackets of a template have none.
class Source {
public:
    Source(std::string path, std::string text);

    const std::string& path() const { return path_; }
    const std::string& text() const { return text_; }
    std::size_t size() const { return tokens_.size(); }
    const Token& token(std::size_t index) const { return tokens_[index]; }
    /// "" before the first and behind the last one.
    std::string_view word(std::size_t index) const;
    std::string_view between(std::size_t begin, std::size_t end) const {
        return std::string_view(text_).substr(begin, end - begin);
    }
    std::string_view line_text(int line) const;

    Inside inside(std::size_t index) const { return inside_[index]; }
    /// The other one of a pair of brackets, and of a template's; the token itself when it is no bracket.
    std::size_t partner(std::size_t index) const { return partner_[index]; }
    /// Whether it stands where only a constant can: a template's argument, an enumerator, a case's label, a
    /// condition of the compiler.
    bool is_constant(std::size_t index) const { return constant_[index]; }

    bool is_binary(std::size_t index) const;
    /// Where the operand of a logical operator or of a condition begins and ends: as far as operators reach
    /// that bind tighter. Both are token indices, the second is behind the last one.
    std::size_t operand_begin(std::size_t oper) const;
    std::size_t operand_end(std::size_t oper) const;

private:
    void pair_brackets();
    void pair_angles();
    void mark_constants();
    void mark(std::size_t begin, std::size_t end);
    Inside kind_of_brace(std::size_t index, Inside around) const;
    bool opens_angle(std::size_t index) const;
    bool ends_operand(std::size_t index, bool of_and) const;

    std::string path_;
    std::string text_;
    std::vector<Token> tokens_;
    std::vector<Inside> inside_;
    std::vector<std::size_t> partner_;
    std::vector<bool> constant_;
};

} // namespace brx::mutants
