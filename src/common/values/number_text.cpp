#include "common/values/number_text.h"

#include "common/values/unicode.h"

#include <algorithm>
#include <charconv>
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
        if (!(peek() == U'&' ? take_based() : take_decimal())) return std::nullopt;
        take_suffix();
        if (position_ != text_.size() || open_ != closed_) return std::nullopt;
        if (negative_ || open_) number_.decimal.insert(0, 1, '-');
        return number_;
    }

private:
    char32_t peek(std::size_t ahead = 0) const {
        return position_ + ahead < text_.size() ? text_[position_ + ahead] : U'\0';
    }

    bool take(char32_t c) {
        if (position_ == text_.size() || text_[position_] != c) return false;
        ++position_;
        return true;
    }

    bool take(const std::u32string& word) {
        if (word.empty() || text_.compare(position_, word.size(), word) != 0) return false;
        position_ += word.size();
        return true;
    }

    bool take_blank() {
        if (position_ == text_.size() || !is_white_space(text_[position_])) return false;
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
        // A no-break blank between the digits is typed as a plain one.
        blank_groups_ = grouping_ == U"\u00A0";
    }

    void take_suffix() {
        while (take_blank() || take_once(positive_, plus_) || take_once(negative_, minus_) ||
               (!number_.hex_or_octal && take_once(money_, currency_)) ||
               (open_ && !closed_ && (closed_ = take(U')')))) {
        }
    }

    bool take_based() {
        const char32_t letter = peek(1);
        const bool hex = letter == U'H' || letter == U'h';
        if (money_ || (!hex && letter != U'O' && letter != U'o')) return false;
        position_ += 2;
        number_.hex_or_octal = true;
        const unsigned shift = hex ? 4 : 3;
        bool any = false;
        for (int digit; (digit = digit_value(peek())) >= 0 && digit < (1 << shift); ++position_) {
            any = true;
            number_.too_long = number_.too_long || (number_.bits >> (64 - shift)) != 0;
            number_.bits = (number_.bits << shift) | static_cast<std::uint64_t>(digit);
        }
        return any;
    }

    static int digit_value(char32_t c) {
        if (c >= U'0' && c <= U'9') return static_cast<int>(c - U'0');
        if (c >= U'a' && c <= U'f') return static_cast<int>(c - U'a') + 10;
        if (c >= U'A' && c <= U'F') return static_cast<int>(c - U'A') + 10;
        return -1;
    }

    bool take_digits() {
        const std::size_t start = position_;
        while (peek() >= U'0' && peek() <= U'9') number_.decimal += static_cast<char>(text_[position_++]);
        return position_ != start;
    }

    bool take_grouping() { return take(grouping_) || (blank_groups_ && take(U' ')); }

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
    bool blank_groups_ = false;
};

/// The power of ten of the first digit that is not 0, as far as it tells very large from very small.
bool is_large(std::string_view decimal) {
    const std::size_t e = std::min(decimal.find('e'), decimal.size());
    const std::string_view digits = decimal.substr(0, e);
    const std::string_view exponent = decimal.substr(std::min(e + 1, decimal.size()));
    std::int64_t power = 0;
    const auto parsed = std::from_chars(exponent.data(), exponent.data() + exponent.size(), power);
    constexpr std::int64_t limit = std::numeric_limits<std::int64_t>::max() / 2;
    if (parsed.ec == std::errc::result_out_of_range) power = exponent.starts_with('-') ? -limit : limit;
    const auto point = static_cast<std::int64_t>(std::min(digits.find('.'), digits.size()));
    const auto first = static_cast<std::int64_t>(digits.find_first_of("123456789"));
    return power + point - first > 0;
}

} // namespace

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
