// Arbitrary bytes and numbers into every conversion. What counts is that nothing breaks: the sanitizers
// watch, an error must be one of the known ones, and what can be said of every answer must hold.

#include "common/values_support.h"

#include "common/values/text.h"

#include <array>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <random>

namespace brx {
namespace {

using Random = std::mt19937_64;

/// Bytes of any value, or pieces that conversions know.
std::string any_text(Random& random) {
    static const std::array<const char*, 24> pieces = {
        "1", "0",  "9",  "2026", ".", ",",   "-",  "+", "(",   ")",      "$",   "€",
        "E", "&H", "&O", "/",    ":", " AM", "pm", " ", "Jan", "\u00A0", "Mär", "99999999999"};
    std::string text;
    const bool of_pieces = random() % 2 == 0;
    for (auto left = random() % 12; left > 0; --left) {
        if (of_pieces)
            text += pieces[random() % pieces.size()];
        else
            text += static_cast<char>(random() % 256);
    }
    return text;
}

/// Whether `body` returns or fails as conversions may.
void expect_sound(const std::string& input, const std::function<void()>& body) {
    const std::int32_t number = error_number(body);
    EXPECT_TRUE(number == 0 || number == 5 || number == 6 || number == 13)
        << number << " for |" << input << "|";
}

TEST(RandomTexts, AreConvertedOrRefused) {
    Random random(20260102);
    for (int i = 0; i < 4'000; ++i) {
        const std::string text = any_text(random);
        for (const Locale* locale : {&us, &de, &fr}) {
            expect_sound(text, [&] { to_int16(text, *locale); });
            expect_sound(text, [&] { to_int32(text, *locale); });
            expect_sound(text, [&] { to_single(text, *locale); });
            expect_sound(text, [&] { to_boolean(text, *locale); });
            expect_sound(text, [&] { to_date(text, *locale); });
            expect_sound(text, [&] { val(text); });
            const bool converts = error_number([&] { to_double(text, *locale); }) == 0;
            EXPECT_EQ(converts, is_numeric(text, *locale)) << text;
        }
    }
}

TEST(RandomTexts, GoThroughUtf16AndBack) {
    Random random(3);
    for (int i = 0; i < 4'000; ++i) {
        const std::string text = any_text(random);
        const std::u16string units = to_utf16(text);
        EXPECT_EQ(units.size(), utf16_length(text));
        EXPECT_EQ(units, to_utf16(to_utf8(units)));
        EXPECT_EQ(to_upper(to_upper(text)), to_upper(text));
        EXPECT_TRUE(equal_ignoring_case(text, to_upper(text)));
        EXPECT_LE(trim(text).size(), text.size());
        EXPECT_EQ(text.empty(), split(text, ".").empty());
    }
}

TEST(RandomUnits, GoThroughUtf8AndBack) {
    Random random(4);
    for (int i = 0; i < 4'000; ++i) {
        std::u16string units(random() % 8, u'\0');
        for (char16_t& unit : units)
            unit = static_cast<char16_t>(random() % 2 ? 0xD800 + random() % 0x800 : random());
        EXPECT_EQ(units, to_utf16(to_utf8(units)));
    }
}

TEST(RandomNumbers, GoThroughTextAndBackWithin15Digits) {
    Random random(5);
    for (int i = 0; i < 4'000; ++i) {
        const auto bits = random();
        double number = 0;
        std::memcpy(&number, &bits, sizeof number);
        if (!std::isfinite(number)) continue;
        for (const Locale* locale : {&us, &de}) {
            const std::string text = to_text(number, *locale);
            if (std::fabs(number) >= 1.7976931348623e308) continue;
            EXPECT_LE(std::fabs(to_double(text, *locale) - number), std::fabs(number) * 5.1e-15 + 5e-324)
                << text;
        }
    }
}

TEST(RandomNumbers, AreReadAsTheNearestDouble) {
    Random random(8);
    for (int i = 0; i < 4'000; ++i) {
        std::string text;
        for (auto digits = 1 + random() % 30; digits > 0; --digits)
            text += static_cast<char>('0' + random() % 10);
        text.insert(random() % (text.size() + 1), ".");
        text += "E" + std::to_string(static_cast<int>(random() % 640) - 330);
        const double nearest = std::strtod(text.c_str(), nullptr);
        if (std::isinf(nearest)) {
            EXPECT_ERROR(6, to_double(text, us));
        } else {
            EXPECT_EQ(nearest, to_double(text, us)) << text;
        }
    }
}

TEST(RandomDates, GoThroughTextAndBackToTheSecond) {
    Random random(6);
    std::uniform_real_distribution<double> any(-657434, 2958465);
    for (int i = 0; i < 4'000; ++i) {
        const Date date{any(random)};
        for (const Locale* locale : {&us, &de, &fr}) {
            const std::string text = short_date(date, *locale) + " " + long_time(date, *locale);
            EXPECT_EQ(to_text(date, *locale), to_text(to_date(text, *locale), *locale)) << text;
        }
    }
}

TEST(RandomLocales, BreakNothing) {
    Random random(7);
    for (int i = 0; i < 2'000; ++i) {
        Locale locale;
        for (std::string* part :
             {&locale.decimal_separator, &locale.grouping_separator, &locale.currency_symbol,
              &locale.positive_sign, &locale.negative_sign, &locale.date_separator, &locale.time_separator,
              &locale.short_date, &locale.long_time, &locale.am, &locale.pm, &locale.months[0],
              &locale.short_months[1], &locale.days[2]}) {
            if (random() % 3 == 0) *part = any_text(random);
        }
        const std::string text = any_text(random);
        expect_sound(text, [&] { to_double(text, locale); });
        expect_sound(text, [&] { to_date(text, locale); });
        expect_sound(text, [&] { to_text(-1234.5, locale); });
        expect_sound(text, [&] { to_text(Date{static_cast<double>(random() % 60000) / 7}, locale); });
    }
}

} // namespace
} // namespace brx
