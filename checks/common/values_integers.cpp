#include "common/values_support.h"

#include <cmath>
#include <limits>

namespace brx {
namespace {

TEST(ToInt16, RoundsHalfToEven) {
    EXPECT_EQ(0, to_int16("0.5", us));
    EXPECT_EQ(2, to_int16("1.5", us));
    EXPECT_EQ(2, to_int16("2.5", us));
    EXPECT_EQ(4, to_int16("3.5", us));
    EXPECT_EQ(0, to_int16("-0.5", us));
    EXPECT_EQ(-2, to_int16("-1.5", us));
    EXPECT_EQ(-2, to_int16("-2,5", de));
    EXPECT_EQ(1, to_int16("0.50001", us));
    EXPECT_EQ(0, to_int16("0,49999", de));
    EXPECT_EQ(2, to_int16("25E-1", us));
}

TEST(ToInt16, HasItsLimitsWhereRoundingPutsThem) {
    EXPECT_EQ(32766, to_int16("32766", us));
    EXPECT_EQ(32767, to_int16("32767", us));
    EXPECT_EQ(32767, to_int16("32767.4999", us));
    EXPECT_ERROR(6, to_int16("32767.5", us));
    EXPECT_ERROR(6, to_int16("32768", us));
    EXPECT_EQ(-32768, to_int16("-32768", us));
    EXPECT_EQ(-32768, to_int16("-32768,5", de));
    EXPECT_ERROR(6, to_int16("-32768,5001", de));
    EXPECT_ERROR(6, to_int16("-32769", us));
    EXPECT_ERROR(6, to_int16("1E300", us));
    EXPECT_ERROR(6, to_int16("1E400", us));
}

TEST(ToInt16, RefusesWhatIsNoNumber) {
    EXPECT_ERROR(13, to_int16("", us));
    EXPECT_ERROR(13, to_int16("1x", us));
    EXPECT_ERROR(13, to_int16("1.5", fr));
}

TEST(ToInt16, FillsItsBitsWithHexadecimalAndOctal) {
    EXPECT_EQ(32767, to_int16("&H7FFF", us));
    EXPECT_EQ(-32768, to_int16("&H8000", us));
    EXPECT_EQ(-1, to_int16("&HFFFF", us));
    EXPECT_EQ(-1, to_int16("&H0000FFFF", us));
    EXPECT_ERROR(6, to_int16("&H10000", us));
    EXPECT_ERROR(6, to_int16("&HFFFFFFFF", us));
    EXPECT_EQ(-1, to_int16("&O177777", us));
    EXPECT_ERROR(6, to_int16("&O200000", us));
}

TEST(ToInt32, RoundsHalfToEven) {
    EXPECT_EQ(0, to_int32("0.5", us));
    EXPECT_EQ(2, to_int32("1,5", de));
    EXPECT_EQ(2, to_int32("2.5", us));
    EXPECT_EQ(-2, to_int32("-2.5", us));
    EXPECT_EQ(2147483646, to_int32("2147483646.5", us));
}

TEST(ToInt32, HasItsLimitsWhereRoundingPutsThem) {
    EXPECT_EQ(2147483647, to_int32("2147483647", us));
    EXPECT_EQ(2147483647, to_int32("2147483647,4999", de));
    EXPECT_ERROR(6, to_int32("2147483647.5", us));
    EXPECT_ERROR(6, to_int32("2147483648", us));
    EXPECT_EQ(std::numeric_limits<std::int32_t>::min(), to_int32("-2147483648", us));
    EXPECT_EQ(std::numeric_limits<std::int32_t>::min(), to_int32("-2147483648.5", us));
    EXPECT_ERROR(6, to_int32("-2147483648.51", us));
    EXPECT_ERROR(6, to_int32("-2147483649", us));
    EXPECT_ERROR(6, to_int32("1E10", us));
}

TEST(ToInt32, FillsItsBitsWithHexadecimalAndOctal) {
    EXPECT_EQ(65535, to_int32("&HFFFF", us));
    EXPECT_EQ(std::numeric_limits<std::int32_t>::min(), to_int32("&H80000000", us));
    EXPECT_EQ(-1, to_int32("&HFFFFFFFF", us));
    EXPECT_EQ(-1, to_int32("&O37777777777", us));
    EXPECT_ERROR(6, to_int32("&H100000000", us));
    EXPECT_ERROR(6, to_int32("&H10000000000000000", us));
    EXPECT_ERROR(13, to_int32("&H", us));
}

TEST(ToInt, RefusesDoublesThatAreNoNumbers) {
    const double none = std::numeric_limits<double>::quiet_NaN();
    const double endless = std::numeric_limits<double>::infinity();
    EXPECT_ERROR(6, to_int16(none));
    EXPECT_ERROR(6, to_int32(none));
    EXPECT_ERROR(6, to_int16(endless));
    EXPECT_ERROR(6, to_int32(-endless));
    EXPECT_ERROR(6, to_int32(1e300));
    EXPECT_EQ(2, to_int32(2.5));
    EXPECT_EQ(-32768, to_int16(-32768.5));
}

TEST(ToBoolean, TakesTheNamesInAnyLetterCase) {
    for (const char* text : {"True", "true", "TRUE", "tRuE", "#TRUE#"})
        EXPECT_TRUE(to_boolean(text, us)) << text;
    for (const char* text : {"False", "false", "FALSE", "#FALSE#"})
        EXPECT_FALSE(to_boolean(text, us)) << text;
    EXPECT_TRUE(to_boolean("WAHR", de));
    EXPECT_TRUE(to_boolean("true", de));
    EXPECT_FALSE(to_boolean("falsch", de));
    EXPECT_FALSE(to_boolean("FALSE", de));
    EXPECT_FALSE(to_boolean("Faux", fr));
    EXPECT_ERROR(13, to_boolean("Wahr", us));
}

TEST(ToBoolean, TakesNumbers) {
    EXPECT_FALSE(to_boolean("0", us));
    EXPECT_FALSE(to_boolean("0.0", us));
    EXPECT_FALSE(to_boolean("&H0", us));
    EXPECT_FALSE(to_boolean("1E-400", us));
    EXPECT_TRUE(to_boolean("1", us));
    EXPECT_TRUE(to_boolean("-1", us));
    EXPECT_TRUE(to_boolean("0.5", us));
    EXPECT_TRUE(to_boolean("0,5", de));
    EXPECT_ERROR(6, to_boolean("1E400", us));
}

TEST(ToBoolean, RefusesEverythingElse) {
    for (const char* text : {"", " ", " True", "True ", "T", "Yes", "#true#", "abc"})
        EXPECT_ERROR(13, to_boolean(text, us));
}

} // namespace
} // namespace brx
