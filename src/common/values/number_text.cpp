#include "common/values/number_text.h"

#include "common/values/unicode.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <limits>

namespace brx {
namespace {

/// Reads a number from its first to its last character; each `take...` advances over what it recognises.
class NumberReader {
public:
    NumberReader(std::string_view text, const Locale& locale)
        : text_(to_code_points(text)),
          plus_(to_code_points(locale.positive_sign)),
          minus_(to_code_points(locale.negative_sign)),
          currency_(to_code_points(locale.currency_symbol)),
          decimal_(to_code_points(locale.decimal_separator)),
          grouping_(to_code_points(locale.grouping_separator)),
          money_decimal_(to_code_points(locale.money_decimal_separator)),
          money_grouping_(to_code_points(locale.money_grouping_separator)) {}

    std::optional<NumberText> read() {
        take_prefix();
        if (!take_number()) return std::nullopt;
        take_suffix();
        if (position_ != text_.size() || open_ != closed_) return std::nullopt;
        if (negative_ || open_) number_.decimal.insert(0, 1, '-');
        return number_;
    }

private:
    /// The end of the text is U'\0'.
    char32_t peek(std::size_t ahead = 0) const { return text_[position_ + ahead]; }

    bool take(char32_t c) {
        if (peek() != c) return false;
        ++position_;
        return true;
    }

    bool take(const std::u32string& word) {
        if (word.empty() || text_.compare(position_, word.size(), word) != 0) return false;
        position_ += word.size();
        return true;
    }

    bool take_blank() {
        if (!is_white_space(peek())) return false;
        ++position_;
        return true;
    }

    bool take_once(bool& taken, const std::u32string& word) { return !taken && (taken = take(word)); }

    void take_prefix() {
        while (take_blank() || take_once(positive_, plus_) || take_once(negative_, minus_) ||
               take_once(money_, currency_) || (!open_ && (open_ = take(U'(')))) {
        }
        if (money_) {
            decimal_ = money_decimal_;
            grouping_ = money_grouping_;
        }
    }

    void take_suffix() {
        while (take_blank() || take_once(positive_, plus_) || take_once(negative_, minus_) ||
               (!number_.hex_or_octal && take_once(money_, currency_)) ||
               (open_ && !closed_ && (closed_ = take(U')')))) {
        }
    }

    bool take_number() {
        if (take_base(U'H')) return take_based(4);
        if (take_base(U'O')) return take_based(3);
        return take_decimal();
    }

    bool take_base(char32_t letter) {
        if (money_ || peek() != U'&' || to_upper(peek(1)) != letter) return false;
        position_ += 2;
        number_.hex_or_octal = true;
        return true;
    }

    bool take_based(unsigned shift) {
        const std::size_t start = position_;
        const std::uint64_t base = 1U << shift;
        for (std::uint64_t digit; (digit = digit_value(peek())) < base; ++position_) {
            number_.too_long = number_.too_long || (number_.bits >> (64 - shift)) != 0;
            number_.bits = (number_.bits << shift) | digit;
        }
        return position_ != start;
    }

    bool take_digits() {
        const std::size_t start = position_;
        while (peek() >= U'0' && peek() <= U'9') number_.decimal += static_cast<char>(text_[position_++]);
        return position_ != start;
    }

    /// A no-break blank between the digits is typed as a plain one.
    bool take_grouping() { return take(grouping_) || (grouping_ == U"\u00A0" && take(U' ')); }

    bool take_decimal() {
        bool digits = false;
        bool fraction = false;
        for (;;) {
            if (take_digits()) {
                digits = true;
            } else if (!fraction && take(decimal_)) {
                fraction = true;
                number_.decimal += '.';
            } else if (!((digits || fraction) && take_grouping())) {
                break;
            }
        }
        return digits && take_exponent();
    }

    /// False for a letter of an exponent without digits behind it.
    bool take_exponent() {
        const char32_t letter = peek();
        if (money_) return true;
        if (letter != U'E' && letter != U'e' && letter != U'D' && letter != U'd') return true;
        ++position_;
        number_.decimal += 'e';
        if (take(minus_)) {
            number_.decimal += '-';
        } else {
            take(plus_);
        }
        return take_digits();
    }

    std::u32string text_;
    std::u32string plus_, minus_, currency_, decimal_, grouping_, money_decimal_, money_grouping_;
    std::size_t position_ = 0;
    NumberText number_;
    bool positive_ = false;
    bool negative_ = false;
    bool money_ = false;
    bool open_ = false;
    bool closed_ = false;
};

/// Whether a number that is no double is too large for one, not too small.
bool is_large(const std::string& decimal) {
    const std::size_t e = decimal.find('e');
    // One that is out of range itself becomes the largest or the smallest there is.
    const long long power = e == std::string::npos ? 0 : std::strtoll(decimal.c_str() + e + 1, nullptr, 10);
    const auto point = static_cast<long long>(std::min(decimal.find_first_of(".e"), decimal.size()));
    const auto first = static_cast<long long>(decimal.find_first_of("123456789"));
    return power > first - point;
}

} // namespace

std::size_t digit_value(char32_t c) { return std::u32string_view(U"0123456789ABCDEF").find(to_upper(c)); }

double nearest_double(const std::string& decimal) {
    const char* const end = decimal.data() + decimal.size();
    double value = 0;
    if (std::from_chars(decimal.data(), end, value).ec != std::errc::result_out_of_range) return value;
    const double magnitude = is_large(decimal) ? std::numeric_limits<double>::infinity() : 0.0;
    return decimal.starts_with('-') ? -magnitude : magnitude;
}

double NumberText::to_double() const {
    if (!hex_or_octal) return nearest_double(decimal);
    if (too_long) return std::numeric_limits<double>::infinity();
    if (bits <= std::numeric_limits<std::uint32_t>::max()) {
        return static_cast<std::int32_t>(static_cast<std::uint32_t>(bits));
    }
    return static_cast<double>(bits);
}

std::optional<NumberText> read_number(std::string_view text, const Locale& locale) {
    return NumberReader(text, locale).read();
}

} // namespace brx
