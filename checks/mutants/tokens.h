#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace brx::mutants {

enum class TokenKind { word, number, text, character, sign };

/// A piece of a source file, from its first byte to behind its last one.
struct Token {
    TokenKind kind = TokenKind::sign;
    std::size_t begin = 0;
    std::size_t end = 0;
    int line = 1;
};

/// The tokens of a C++ source. Comments and directives of the preprocessor are left out.
std::vector<Token> tokens_of(std::string_view source);

} // namespace brx::mutants
