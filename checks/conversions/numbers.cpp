#include "common/values/number_text.h"
#include "conversions/samples.h"

#include <cmath>
#include <cstring>
#include <limits>

namespace brx::conversions {
namespace {

using Texts = std::vector<std::string>;

const Texts limits = {"0",
                      "1",
                      "32766",
                      "32767",
                      "32768",
                      "32769",
                      "65535",
                      "65536",
                      "2147483646",
                      "2147483647",
                      "2147483648",
                      "2147483649",
                      "4294967295",
                      "4294967296",
                      "9007199254740991",
                      "9007199254740993",
                      "922337203685477",
                      "9223372036854775807",
                      "9223372036854775808",
                      "18446744073709551615",
                      "18446744073709551616",
                      "79228162514264337593543950335",
                      "79228162514264337593543950336",
                      "123456789012345678901234567890"};
const Texts limit_fractions = {"",   "",    ".",           ".0",  ".4", ".49", ".4999999999",
                               ".5", ".50", ".5000000001", ".51", ".6", ".9",  ".99999999999999999999"};
const Texts large = {"3.4028234E38",
                     "3.4028235E38",
                     "3.40282356E38",
                     "3.40282357E38",
                     "3.4028236E38",
                     "3.5E38",
                     "1E38",
                     "1E39",
                     "340282350000000000000000000000000000000",
                     "1.7976931348623157E308",
                     "1.7976931348623158E308",
                     "1.7976931348623159E308",
                     "1.8E308",
                     "1E308",
                     "1E309",
                     "1E400",
                     "1E99999",
                     "1E-37",
                     "1.17549435E-38",
                     "1E-38",
                     "1.4E-45",
                     "7E-46",
                     "1E-46",
                     "1E-307",
                     "2.2250738585072014E-308",
                     "1E-320",
                     "4.94E-324",
                     "2.4E-324",
                     "1E-400",
                     "0E400",
                     "1E999999999999"};
const Texts based = {"0",
                     "1",
                     "7",
                     "F",
                     "10",
                     "17",
                     "7F",
                     "80",
                     "FF",
                     "7FFF",
                     "8000",
                     "FFFF",
                     "10000",
                     "7FFFFFFF",
                     "80000000",
                     "80000001",
                     "FFFFFFFF",
                     "100000000",
                     "7FFFFFFFFFFFFFFF",
                     "FFFFFFFFFFFFFFFF",
                     "10000000000000000",
                     "77777",
                     "100000",
                     "177777",
                     "200000",
                     "17777777777",
                     "20000000000",
                     "37777777777",
                     "40000000000",
                     "00000FF",
                     "G",
                     "8",
                     "",
                     "abcdef"};
const Texts blanks = {" ", "  ", "\t", "\n", "\r\n", "\u00A0", "\u3000", "\u202F", "\u2009"};
const Texts words = {"",     " ",      "True", "False", "true", "FALSE", "#TRUE#", "#FALSE#", "#True#",
                     "Wahr", "Falsch", "WAHR", "Vrai",  "Faux", "vrai",  " True",  "True ",   "Tru",
                     "T",    "Yes",    "No",   "On",    "Inf",  "NaN",   "Null",   "Empty",   "-",
                     "+",    ".",      ",",    "$",     "€",    "()",    "(",      ")",       "E",
                     "E5",   "&",      "&H",   "&O",    "%",    "1%",    "1#",     "1!",      "1@",
                     "1&",   "0x10",   "１２", "٣",     "½",    "1e",    "1e+",    "−1",      "1’000"};

std::string in_locale(const std::string& us, const Locale& locale) {
    std::string text;
    for (const char c : us) {
        if (c == '.')
            text += locale.decimal_separator;
        else
            text += c;
    }
    return text;
}

std::string digits(Random& random, int count) {
    std::string text;
    while (count-- > 0) text += static_cast<char>('0' + random.below(10));
    return text;
}

std::string grouped(Random& random, const Locale& locale, const std::string& whole) {
    std::string text;
    const std::size_t size = random.one_in(4) ? 1 + random.below(4) : 3;
    for (std::size_t i = 0; i < whole.size(); ++i) {
        if (i > 0 && (whole.size() - i) % size == 0) text += locale.grouping_separator;
        text += whole[i];
    }
    return text;
}

std::string exponent(Random& random) {
    static const Texts letters = {"E", "e", "E", "e", "D", "d"};
    static const Texts signs = {"", "", "+", "-", "-"};
    return in_order({random.pick(letters), random.pick(signs),
                     digits(random, random.one_in(6) ? 3 : random.between(1, 2))});
}

std::string magnitude(Random& random, const Locale& locale) {
    switch (random.below(10)) {
    case 0:
        return in_locale(in_order({random.pick(limits), random.pick(limit_fractions)}), locale);
    case 1:
        return in_locale(random.pick(large), locale);
    case 2: {
        static const Texts prefixes = {"&H", "&h", "&O", "&o"};
        return in_order({random.pick(prefixes), random.pick(based)});
    }
    case 3:
        return in_order({digits(random, random.between(1, 30)), locale.decimal_separator,
                         digits(random, random.between(0, 30))});
    default:
        break;
    }
    const int most = random.one_in(4) ? 12 : 5;
    std::string text = digits(random, random.between(random.one_in(6) ? 0 : 1, most));
    if (random.one_in(4)) text = grouped(random, locale, text);
    if (random.one_in(2)) text += locale.decimal_separator + digits(random, random.between(0, 5));
    if (random.one_in(4)) text += exponent(random);
    return text;
}

std::string number_text(Random& random, const Locale& locale) {
    if (random.one_in(60)) return random.pick(words);
    std::string text = magnitude(random, locale);
    if (random.one_in(3)) text = (random.one_in(3) ? "+" : "-") + text;
    if (random.one_in(12)) text = locale.currency_symbol + text;
    if (random.one_in(24)) text += locale.currency_symbol;
    if (random.one_in(12)) text += random.one_in(3) ? "+" : "-";
    if (random.one_in(10)) text = "(" + text + ")";
    if (random.one_in(24)) text = locale.currency_symbol + text;
    if (random.one_in(20)) text = "-" + text;
    if (random.one_in(8)) text = random.pick(blanks) + text;
    if (random.one_in(8)) text += random.pick(blanks);
    return text;
}

double from_bits(std::uint64_t bits) {
    double value;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

} // namespace

std::vector<std::string> number_texts(const Locale& locale, std::size_t count) {
    Random random(1);
    Samples<std::string> samples;
    for (const std::string& word : words) samples.add(word);
    for (const std::string& limit : limits) {
        for (const std::string& fraction : limit_fractions) {
            samples.add(in_locale(limit + fraction, locale));
            samples.add(in_locale("-" + limit + fraction, locale));
        }
    }
    for (const std::string& number : large) {
        samples.add(in_locale(number, locale));
        samples.add(in_locale("-" + number, locale));
    }
    for (const std::string& number : based) {
        samples.add("&H" + number);
        samples.add("&O" + number);
    }
    while (samples.size() < count) {
        std::string text = number_text(random, locale);
        if (random.one_in(5)) text = with_mistakes(random, std::move(text));
        samples.add(text);
    }
    return std::move(samples).list();
}

std::vector<double> doubles(std::size_t count) {
    Random random(3);
    Samples<double> samples;
    for (const double value : {0.0,
                               0.5,
                               1.5,
                               2.5,
                               0.1,
                               0.0001,
                               0.00001,
                               32767.0,
                               32767.4999999999,
                               32767.5,
                               -32768.0,
                               -32768.5,
                               -32768.51,
                               2147483647.0,
                               2147483647.49,
                               2147483647.5,
                               -2147483648.0,
                               -2147483648.5,
                               -2147483648.51,
                               3.4028234663852886e38,
                               3.4028235677973362e38,
                               3.4028235677973366e38,
                               1e39,
                               999999999999999.0,
                               999999999999999.5,
                               9999999.0,
                               9999999.5,
                               5e-324,
                               1.7976931348623157e308}) {
        samples.add(value);
        samples.add(-value);
    }
    for (int power = -323; power <= 308; ++power) samples.add(nearest_double("1e" + std::to_string(power)));
    while (samples.size() < count) {
        double value = 0;
        switch (random.below(4)) {
        case 0:
            value = from_bits(random.bits());
            break;
        case 1:
            value = static_cast<double>(random.between(-99999999, 99999999)) / 10000;
            break;
        case 2:
            value = static_cast<double>(static_cast<std::int64_t>(random.bits()) >> random.below(60)) / 2;
            break;
        default: {
            const int power = random.between(-100, 40);
            value = std::ldexp(static_cast<double>(random.bits() >> 11), power);
            break;
        }
        }
        if (std::isfinite(value)) samples.add(value);
    }
    return std::move(samples).list();
}

std::vector<std::int64_t> integers(std::size_t count) {
    Random random(5);
    Samples<std::int64_t> samples;
    for (const unsigned size : {1U, 15U, 16U, 31U, 32U, 63U}) {
        const std::int64_t limit = static_cast<std::int64_t>((std::uint64_t{1} << size) - 1);
        for (const std::int64_t value : {limit - 1, limit, -limit, -limit - 1}) samples.add(value);
    }
    while (samples.size() < count) samples.add(static_cast<std::int64_t>(random.bits()) >> random.below(63));
    return std::move(samples).list();
}

} // namespace brx::conversions
