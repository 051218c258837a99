#include "mutants/tokens.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <string>

namespace brx::mutants {
namespace {

/// Longest first. `>>` is two signs: it nearly always closes two templates.
constexpr std::array<std::string_view, 22> long_signs = {"<=>", "<<=", "->*", "...", "::", "->", "++", "--",
                                                         "<<",  "<=",  ">=",  "==",  "!=", "&&", "||", "+=",
                                                         "-=",  "*=",  "/=",  "|=",  "&=", "%="};

bool is_word(char c) { return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_'; }
bool is_digit(char c) { return c >= '0' && c <= '9'; }

class Tokenizer {
public:
    explicit Tokenizer(std::string_view source) : source_(source) {}

    std::vector<Token> run() {
        while (position_ < source_.size()) take();
        return std::move(tokens_);
    }

private:
    char peek(std::size_t ahead = 0) const {
        return position_ + ahead < source_.size() ? source_[position_ + ahead] : '\0';
    }

    bool is_next(std::string_view text) const { return source_.substr(position_).starts_with(text); }

    /// Goes to `end`, or to the end of the source.
    void skip_to(std::size_t end) {
        end = std::min(end, source_.size());
        for (; position_ < end; ++position_)
            if (source_[position_] == '\n') ++line_;
    }

    void take() {
        const char c = peek();
        if (c == '#') return skip_directive();
        if (std::isspace(static_cast<unsigned char>(c)) != 0) return skip_to(position_ + 1);
        if (is_next("//")) return skip_to(source_.find('\n', position_));
        if (is_next("/*")) return skip_to(source_.find("*/", position_) + 2);
        const Token start{.begin = position_, .line = line_};
        const TokenKind kind = take_token(c);
        tokens_.push_back({kind, start.begin, position_, start.line});
    }

    void skip_directive() {
        do {
            const std::size_t end = std::min(source_.find('\n', position_), source_.size());
            const bool goes_on = source_[end - 1] == '\\';
            skip_to(end + 1);
            if (!goes_on) return;
        } while (position_ < source_.size());
    }

    TokenKind take_token(char c) {
        if (is_digit(c) || (c == '.' && is_digit(peek(1)))) return take_number();
        std::size_t prefix = 0;
        while (is_word(peek(prefix))) ++prefix;
        const std::string_view word = source_.substr(position_, prefix);
        const bool is_prefix = word.empty() || word == "u8" || word == "u" || word == "U" || word == "L";
        if (word.ends_with("R") && peek(prefix) == '"') return take_raw(prefix);
        if (is_prefix && (peek(prefix) == '"' || peek(prefix) == '\'')) return take_quoted(prefix);
        if (!word.empty()) {
            position_ += prefix;
            return TokenKind::word;
        }
        for (const std::string_view sign : long_signs)
            if (is_next(sign)) {
                position_ += sign.size();
                return TokenKind::sign;
            }
        ++position_;
        return TokenKind::sign;
    }

    TokenKind take_number() {
        const bool hex = is_next("0x") || is_next("0X");
        for (;; ++position_) {
            const char c = peek();
            const char before = position_ > 0 ? source_[position_ - 1] : ' ';
            const bool sign_of_exponent = (c == '+' || c == '-') && (hex ? before == 'p' : before == 'e');
            if (!is_word(c) && c != '.' && c != '\'' && !sign_of_exponent) return TokenKind::number;
        }
    }

    TokenKind take_quoted(std::size_t prefix) {
        position_ += prefix;
        const char quote = peek();
        for (++position_; position_ < source_.size() && peek() != quote; ++position_)
            if (peek() == '\\') ++position_;
        ++position_;
        return quote == '"' ? TokenKind::text : TokenKind::character;
    }

    TokenKind take_raw(std::size_t prefix) {
        const std::size_t open = source_.find('(', position_);
        const std::size_t quote = position_ + prefix;
        const std::string close = ")" + std::string(source_.substr(quote + 1, open - quote - 1)) + "\"";
        skip_to(source_.find(close, open) + close.size());
        return TokenKind::text;
    }

    std::string_view source_;
    std::size_t position_ = 0;
    int line_ = 1;
    std::vector<Token> tokens_;
};

} // namespace

std::vector<Token> tokens_of(std::string_view source) { return Tokenizer(source).run(); }

} // namespace brx::mutants
