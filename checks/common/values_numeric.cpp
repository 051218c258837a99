#include "common/values_support.h"

#include "common/values/number_text.h"

#include <cmath>
#include <limits>
#include <string>

namespace brx {
namespace {

TEST(IsNumeric, TakesDigitsInEveryLocale) {
    for (const Locale* locale : {&us, &de, &fr}) {
        EXPECT_TRUE(is_numeric("0", *locale));
        EXPECT_TRUE(is_numeric("12345678901234567890", *locale));
    }
}

TEST(IsNumeric, RefusesTextsWithoutANumber) {
    for (const char* text :
         {"", " ", "\t", "-", "+", "()", ".", ",", "$", "E", "E5", ".E5", "&", "&H", "&O", "abc", "True"}) {
        EXPECT_FALSE(is_numeric(text, us)) << text;
    }
}

TEST(IsNumeric, TakesBlanksAroundButNotInside) {
    EXPECT_TRUE(is_numeric("  1  ", us));
    EXPECT_TRUE(is_numeric("\t1\r\n", us));
    EXPECT_TRUE(is_numeric("\u00A01\u3000", us));
    EXPECT_TRUE(is_numeric("- 1", us));
    EXPECT_TRUE(is_numeric("1 -", us));
    EXPECT_FALSE(is_numeric("1 2", us));
    EXPECT_FALSE(is_numeric("1 E5", us));
    EXPECT_FALSE(is_numeric("1E 5", us));
}

TEST(IsNumeric, TakesEachSignOnceBeforeOrAfter) {
    EXPECT_EQ(-1, to_double("-1", us));
    EXPECT_EQ(-1, to_double("1-", us));
    EXPECT_EQ(1, to_double("+1", us));
    EXPECT_EQ(1, to_double("1+", us));
    EXPECT_EQ(-1, to_double("+1-", us));
    for (const char* text : {"--1", "-1-", "1--", "++1", "+1+", "1++"})
        EXPECT_FALSE(is_numeric(text, us)) << text;
}

TEST(IsNumeric, TakesBracketsForNegative) {
    EXPECT_EQ(-1, to_double("(1)", us));
    EXPECT_EQ(-1, to_double("( 1 )", us));
    EXPECT_EQ(-1.5, to_double("(1,5)", de));
    EXPECT_EQ(-1, to_double("(-1)", us));
    for (const char* text : {"(1", "1)", "((1))", "(1))", "()1", "(-1", ")1("})
        EXPECT_FALSE(is_numeric(text, us)) << text;
}

TEST(IsNumeric, TakesTheCurrencySignOfTheLocaleOnce) {
    EXPECT_EQ(5, to_double("$5", us));
    EXPECT_EQ(5, to_double("5 $", us));
    EXPECT_EQ(-5, to_double("-$5", us));
    EXPECT_EQ(-5, to_double("$-5", us));
    EXPECT_EQ(-5, to_double("($5)", us));
    EXPECT_EQ(1234.5, to_double("€1.234,5", de));
    EXPECT_EQ(1234.5, to_double("1 234,5 €", fr));
    EXPECT_FALSE(is_numeric("€5", us));
    EXPECT_FALSE(is_numeric("$5", de));
    EXPECT_FALSE(is_numeric("$5$", us));
    EXPECT_FALSE(is_numeric("$$5", us));
}

TEST(IsNumeric, KnowsNoAmountsWithExponentOrHexadecimalDigits) {
    EXPECT_FALSE(is_numeric("$1E5", us));
    EXPECT_FALSE(is_numeric("$&H1", us));
    EXPECT_FALSE(is_numeric("&H1$", us));
}

TEST(IsNumeric, UsesTheSeparatorsOfMoneyBehindACurrencySign) {
    Locale swiss = us;
    swiss.currency_symbol = "CHF";
    swiss.decimal_separator = ",";
    swiss.grouping_separator = "’";
    swiss.money_grouping_separator = "'";
    EXPECT_EQ(1234.5, to_double("CHF 1'234.5", swiss));
    EXPECT_EQ(1234.5, to_double("1’234,5", swiss));
    EXPECT_FALSE(is_numeric("1234.5", swiss));
}

TEST(IsNumeric, TakesGroupingAnywhereBehindTheFirstDigit) {
    EXPECT_EQ(1234567, to_double("1,234,567", us));
    EXPECT_EQ(123, to_double("1,2,3", us));
    EXPECT_EQ(12, to_double("1,,2", us));
    EXPECT_EQ(1, to_double("1,", us));
    EXPECT_EQ(12.5, to_double("1,2.5", us));
    EXPECT_EQ(15, to_double("1.5", de));
    EXPECT_EQ(1234, to_double("1\u00A0234", fr));
    EXPECT_EQ(1234, to_double("1 234", fr));
    Locale narrow = fr;
    narrow.grouping_separator = "\u202F";
    EXPECT_EQ(1234, to_double("1\u202F234", narrow));
    EXPECT_FALSE(is_numeric("1 234", narrow));
    EXPECT_FALSE(is_numeric(",1", us));
}

TEST(IsNumeric, TakesOneDecimalSeparatorOfTheLocale) {
    EXPECT_EQ(1.5, to_double("1.5", us));
    EXPECT_EQ(1.5, to_double("1,5", de));
    EXPECT_EQ(1.5, to_double("1,5", fr));
    EXPECT_EQ(0.5, to_double(".5", us));
    EXPECT_EQ(5, to_double("5.", us));
    EXPECT_FALSE(is_numeric("1.2.3", us));
    EXPECT_FALSE(is_numeric("1,2,3", de));
    EXPECT_FALSE(is_numeric("1.5", fr));
    EXPECT_FALSE(is_numeric("1:5", us));
    EXPECT_FALSE(is_numeric("1/5", us));
}

TEST(IsNumeric, TakesTheMinusSignOfTheLocaleOnly) {
    Locale locale = us;
    locale.negative_sign = "~";
    EXPECT_EQ(-5, to_double("~5", locale));
    EXPECT_EQ(1e-5, to_double("1E~5", locale));
    EXPECT_FALSE(is_numeric("-5", locale));
    EXPECT_FALSE(is_numeric("1E-5", locale));
}

TEST(IsNumeric, TakesExponentsWithEAndD) {
    for (const char* text : {"1E5", "1e5", "1D5", "1d5", "1E+5", "1d+05", "10E4", "1000000E-1"}) {
        EXPECT_EQ(100000, to_double(text, us)) << text;
    }
    EXPECT_EQ(0.015, to_double("1,5E-2", de));
    for (const char* text : {"1E", "1E+", "1E--5", "1E5.5", "1E5E5", "1EE5", "1E5,5"})
        EXPECT_FALSE(is_numeric(text, us)) << text;
}

TEST(IsNumeric, TakesHexadecimalAndOctal) {
    EXPECT_EQ(255, to_double("&HFF", us));
    EXPECT_EQ(0xABCDEF, to_double("&habcdef", us));
    EXPECT_EQ(0xABCDEF, to_double("&HABCDEF", us));
    EXPECT_EQ(255, to_double("&hff", de));
    EXPECT_EQ(15, to_double(" &O17 ", us));
    EXPECT_EQ(15, to_double("&o17", us));
    for (const char* text :
         {"&H", "&O", "&HG", "&O8", "&17", "&HFF&", "&H F", "&H1.5", "&H-1", "0xFF", "FF"}) {
        EXPECT_FALSE(is_numeric(text, us)) << text;
    }
}

TEST(IsNumeric, RefusesWhatNoDoubleHolds) {
    EXPECT_TRUE(is_numeric("1.7976931348623157E308", us));
    EXPECT_FALSE(is_numeric("1.7976931348623159E308", us));
    EXPECT_FALSE(is_numeric("1E309", us));
    EXPECT_TRUE(is_numeric("1E-400", us));
    EXPECT_TRUE(is_numeric("&HFFFFFFFFFFFFFFFF", us));
    EXPECT_FALSE(is_numeric("&H10000000000000000", us));
}

TEST(ToDouble, IsExactAtItsLimits) {
    EXPECT_EQ(std::numeric_limits<double>::max(), to_double("1.7976931348623157E308", us));
    EXPECT_EQ(std::numeric_limits<double>::max(), to_double("1.7976931348623158E308", us));
    EXPECT_ERROR(6, to_double("1.7976931348623159E308", us));
    EXPECT_ERROR(6, to_double("-1E309", us));
    EXPECT_ERROR(6, to_double("1E99999999999999999999", us));
    EXPECT_EQ(5e-324, to_double("4.94E-324", us));
    EXPECT_EQ(0, to_double("1E-400", us));
    EXPECT_EQ(0, to_double("1E-99999999999999999999", us));
    EXPECT_EQ(0, to_double("0E99999999999999999999", us));
    EXPECT_EQ(0.1, to_double("0.1", us));
    EXPECT_EQ(0.1, to_double("0,1", de));
    EXPECT_EQ(9007199254740992.0, to_double("9007199254740993", us));
    EXPECT_EQ(1e22, to_double("1" + std::string(22, '0'), us));
    EXPECT_EQ(1e-5, to_double("0." + std::string(400, '0') + "1E396", us));
}

TEST(ToDouble, TellsTooLargeFromTooSmall) {
    const std::string zeros(400, '0');
    EXPECT_EQ(0, to_double("0." + zeros + "1", us));
    EXPECT_EQ(0, to_double("1E-" + zeros + "400", us));
    EXPECT_EQ(0, to_double("1" + zeros + "E-800", us));
    EXPECT_ERROR(6, to_double("0." + zeros + "1E800", us));
    EXPECT_ERROR(6, to_double("1" + std::string(1400, '0') + "E-1090", us));
    for (const char digit : std::string("123456789"))
        EXPECT_ERROR(6, to_double(digit + zeros + "." + zeros + "1", us)) << digit;
}

TEST(NearestDouble, KeepsTheSignOfWhatNoDoubleHolds) {
    EXPECT_EQ(std::numeric_limits<double>::infinity(), nearest_double("1e309"));
    EXPECT_EQ(-std::numeric_limits<double>::infinity(), nearest_double("-1e309"));
    EXPECT_FALSE(std::signbit(nearest_double("1e-400")));
    EXPECT_TRUE(std::signbit(nearest_double("-1e-400")));
}

TEST(ToDouble, ReadsHexadecimalUpTo32BitsAsASigned32BitInteger) {
    EXPECT_EQ(65535, to_double("&HFFFF", us));
    EXPECT_EQ(2147483647, to_double("&H7FFFFFFF", us));
    EXPECT_EQ(-2147483648.0, to_double("&H80000000", us));
    EXPECT_EQ(-1, to_double("&HFFFFFFFF", us));
    EXPECT_EQ(4294967296.0, to_double("&H100000000", us));
    EXPECT_EQ(18446744073709551616.0, to_double("&HFFFFFFFFFFFFFFFF", us));
    EXPECT_ERROR(6, to_double("&H10000000000000000", us));
    EXPECT_EQ(-1, to_double("&O37777777777", us));
}

TEST(ToDouble, RefusesWhatIsNoNumber) {
    EXPECT_ERROR(13, to_double("", us));
    EXPECT_ERROR(13, to_double("abc", us));
    EXPECT_ERROR(13, to_double("True", us));
    EXPECT_ERROR(13, to_double("1,5,", fr));
}

TEST(ToSingle, IsExactAtItsLimits) {
    EXPECT_EQ(0.1F, to_single("0.1", us));
    EXPECT_EQ(0.1F, to_single("0,1", de));
    EXPECT_EQ(16777216.0F, to_single("16777217", us));
    EXPECT_EQ(std::numeric_limits<float>::max(), to_single("3.4028235E38", us));
    EXPECT_EQ(std::numeric_limits<float>::max(), to_single("3,40282356E38", de));
    EXPECT_ERROR(6, to_single("3.40282357E38", us));
    EXPECT_ERROR(6, to_single("-3.40282357E38", us));
    EXPECT_ERROR(6, to_single("1E39", us));
    EXPECT_ERROR(6, to_single("1E309", us));
    const double limit = 0x1.FFFFFFp+127; // half-way to the next one, if there were one
    EXPECT_ERROR(6, to_single(limit));
    EXPECT_EQ(std::numeric_limits<float>::max(), to_single(std::nextafter(limit, 0)));
    EXPECT_EQ(std::numeric_limits<float>::denorm_min(), to_single("1.4E-45", us));
    EXPECT_EQ(0.0F, to_single("1E-46", us));
    EXPECT_ERROR(13, to_single("", us));
}

} // namespace
} // namespace brx
