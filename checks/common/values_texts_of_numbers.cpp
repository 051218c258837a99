#include "common/values_support.h"

#include <cmath>
#include <limits>

namespace brx {
namespace {

TEST(ToText, GivesIntegersInDecimal) {
    EXPECT_EQ("0", to_text(std::int16_t{0}, us));
    EXPECT_EQ("-32768", to_text(std::int16_t{-32768}, us));
    EXPECT_EQ("2147483647", to_text(std::int32_t{2147483647}, de));
    EXPECT_EQ("-2147483648", to_text(std::numeric_limits<std::int32_t>::min(), us));
}

TEST(ToText, GivesDoublesWithAtMost15Digits) {
    EXPECT_EQ("0", to_text(0.0, us));
    EXPECT_EQ("0", to_text(-0.0, us));
    EXPECT_EQ("0.1", to_text(0.1, us));
    EXPECT_EQ("0,1", to_text(0.1, de));
    EXPECT_EQ("-1.5", to_text(-1.5, us));
    EXPECT_EQ("0.3", to_text(0.1 + 0.2, us));
    EXPECT_EQ("3.14159265358979", to_text(3.14159265358979324, us));
    EXPECT_EQ("0,333333333333333", to_text(1.0 / 3, de));
    EXPECT_EQ("123456789012345", to_text(123456789012345.0, us));
    EXPECT_EQ("999999999999999", to_text(999999999999999.0, us));
}

TEST(ToText, RoundsAHalfAwayFromZero) {
    EXPECT_EQ("135051825096409", to_text(135051825096408.5, us));
    EXPECT_EQ("-135051825096409", to_text(-135051825096408.5, us));
    EXPECT_EQ("135051825096410", to_text(135051825096409.5, us));
    EXPECT_EQ("1.677722E+07", to_text(16777215.0F, us));
    EXPECT_EQ("1.048577E+07", to_text(10485765.0F, us));
}

TEST(ToText, UsesAnExponentForVeryLargeAndVerySmallDoubles) {
    EXPECT_EQ("100000000000000", to_text(1e14, us));
    EXPECT_EQ("1E+15", to_text(1e15, us));
    EXPECT_EQ("1.23456789012346E+15", to_text(1234567890123456.0, us));
    EXPECT_EQ("1,23456789012346E+15", to_text(1234567890123456.0, de));
    EXPECT_EQ("1E+15", to_text(999999999999999.9, us));
    EXPECT_EQ("0.0001", to_text(0.0001, us));
    EXPECT_EQ("1E-05", to_text(0.00001, us));
    EXPECT_EQ("1E+100", to_text(1e100, us));
    EXPECT_EQ("1.79769313486232E+308", to_text(std::numeric_limits<double>::max(), us));
    EXPECT_EQ("4.94065645841247E-324", to_text(std::numeric_limits<double>::denorm_min(), us));
}

TEST(ToText, GivesSinglesWithAtMost7Digits) {
    EXPECT_EQ("0.1", to_text(0.1F, us));
    EXPECT_EQ("0,1", to_text(0.1F, de));
    EXPECT_EQ("0.3333333", to_text(1.0F / 3, us));
    EXPECT_EQ("1234567", to_text(1234567.0F, us));
    EXPECT_EQ("9999999", to_text(9999999.0F, us));
    EXPECT_EQ("1E+07", to_text(1e7F, us));
    EXPECT_EQ("1.234568E+07", to_text(12345678.0F, us));
    EXPECT_EQ("3.402823E+38", to_text(std::numeric_limits<float>::max(), us));
    EXPECT_EQ("1E-05", to_text(0.00001F, us));
}

TEST(ToText, NamesWhatIsNoFiniteNumber) {
    const double endless = std::numeric_limits<double>::infinity();
    EXPECT_EQ("1.#INF", to_text(endless, us));
    EXPECT_EQ("-1.#INF", to_text(-endless, us));
    const double none = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ("1.#QNAN", to_text(none, us));
    EXPECT_EQ("-1.#IND", to_text(std::copysign(none, -1.0), us));
}

TEST(ToText, GivesCurrencyWithTheDecimalsItHas) {
    EXPECT_EQ("0", to_text(Currency{0}, us));
    EXPECT_EQ("1", to_text(Currency{10000}, us));
    EXPECT_EQ("1.5", to_text(Currency{15000}, us));
    EXPECT_EQ("1,5", to_text(Currency{15000}, de));
    EXPECT_EQ("-0.0005", to_text(Currency{-5}, us));
    EXPECT_EQ("1234.5678", to_text(Currency{12345678}, us));
    EXPECT_EQ("922337203685477.5807", to_text(Currency{std::numeric_limits<std::int64_t>::max()}, us));
    EXPECT_EQ("-922337203685477.5808", to_text(Currency{std::numeric_limits<std::int64_t>::min()}, us));
}

TEST(ToText, GivesAPlainMinusWhateverTheLocalesIs) {
    Locale locale = us;
    locale.negative_sign = "~";
    EXPECT_EQ("-5", to_text(std::int16_t{-5}, locale));
    EXPECT_EQ("-5", to_text(std::int32_t{-5}, locale));
    EXPECT_EQ("-1.5", to_text(-1.5F, locale));
    EXPECT_EQ("-1.5E-07", to_text(-1.5e-7, locale));
    EXPECT_EQ("-1.5", to_text(Currency{-15000}, locale));
}

TEST(ToText, GivesBooleansByTheNamesOfTheLocale) {
    EXPECT_EQ("True", to_text(true, us));
    EXPECT_EQ("False", to_text(false, us));
    EXPECT_EQ("Wahr", to_text(true, de));
}

TEST(ToText, ComesBackAsTheSameNumber) {
    for (const double number : {0.0, 1.5, -0.25, 123456.789, 1e15, 1.5e-7, 1e300}) {
        for (const Locale* locale : {&us, &de, &fr})
            EXPECT_EQ(number, to_double(to_text(number, *locale), *locale));
    }
}

} // namespace
} // namespace brx
