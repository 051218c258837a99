#include "common/values_support.h"

#include <string>

namespace brx {
namespace {

TEST(Val, ReadsTheNumberThatATextBeginsWith) {
    EXPECT_EQ(0, val("0"));
    EXPECT_EQ(123, val("123"));
    EXPECT_EQ(12.5, val("12.5"));
    EXPECT_EQ(12, val("12abc"));
    EXPECT_EQ(12, val("12,5"));
    EXPECT_EQ(1.2, val("1.2.3"));
    EXPECT_EQ(0.5, val(".5"));
    EXPECT_EQ(5, val("5."));
    EXPECT_EQ(24, val("24 and 57"));
    EXPECT_EQ(2457, val("2 45 7"));
}

TEST(Val, GivesZeroWhenNothingCanBeRead) {
    for (const char* text : {"", " ", "abc", "-", "+", ".", "-.", "$5", "(5)", "E5", ".E5", "&", "&H", "&O",
                             "&G1", "&17", "€", "True", ",5"}) {
        EXPECT_EQ(0, val(text)) << text;
    }
}

TEST(Val, SkipsBlanksTabsAndLineFeedsAnywhere) {
    EXPECT_EQ(1615198, val("    1615 198th Street N.E."));
    EXPECT_EQ(-12.5e2, val(" -\t1 2 .\n5 E 2"));
    EXPECT_EQ(255, val(" & H F F &"));
    EXPECT_EQ(1, val("1\r2"));
    EXPECT_EQ(1, val("1\u00A02"));
}

TEST(Val, TakesOneSign) {
    EXPECT_EQ(-5, val("-5"));
    EXPECT_EQ(5, val("+5"));
    EXPECT_EQ(0, val("--5"));
    EXPECT_EQ(5, val("5-"));
    EXPECT_EQ(0, val("-&H10"));
}

TEST(Val, TakesExponentsWithEAndD) {
    EXPECT_EQ(1500, val("1.5E3"));
    EXPECT_EQ(1500, val("1.5e3"));
    EXPECT_EQ(1500, val("1.5D3"));
    EXPECT_EQ(1500, val("1.5d+3"));
    EXPECT_EQ(0.0015, val("1.5e-3"));
    EXPECT_EQ(1.5, val("1.5E"));
    EXPECT_EQ(1.5, val("1.5E+"));
    EXPECT_EQ(1.5, val("1.5Ex"));
    EXPECT_EQ(100, val("1E2.5"));
}

TEST(Val, WrapsHexadecimalAndOctalLikeIntegersOfTheirSize) {
    EXPECT_EQ(255, val("&HFF"));
    EXPECT_EQ(32767, val("&H7FFF"));
    EXPECT_EQ(-32768, val("&H8000"));
    EXPECT_EQ(-1, val("&hFFFF"));
    EXPECT_EQ(0xABCDEF, val("&habcdef"));
    EXPECT_EQ(65535, val("&HFFFF&"));
    EXPECT_EQ(65536, val("&H10000"));
    EXPECT_EQ(2147483647, val("&H7FFFFFFF"));
    EXPECT_EQ(-1, val("&HFFFFFFFF"));
    EXPECT_EQ(4294967296.0, val("&H100000000"));
    EXPECT_EQ(-1, val("&HFFFFFFFFFFFFFFFF"));
    EXPECT_EQ(8, val("&O10"));
    EXPECT_EQ(1, val("&o18"));
    EXPECT_EQ(-1, val("&O177777"));
    EXPECT_EQ(171, val("&HABG"));
    for (const char* end : {"/", ":", "@", "G", "`", "g", "ä"}) EXPECT_EQ(26, val(std::string("&H1A") + end));
}

TEST(Val, StopsAtADigitThatDoesNotFitInto64Bits) {
    EXPECT_EQ(0x1p60, val("&H1000000000000000"));
    EXPECT_EQ(0x1p60, val("&H10000000000000000"));
    EXPECT_EQ(-1, val("&HFFFFFFFFFFFFFFFF0"));
    EXPECT_EQ(-1, val("&O1777777777777777777777"));
    EXPECT_EQ(0x1p61, val("&O2000000000000000000000"));
}

TEST(Val, OverflowsBeyondADouble) {
    EXPECT_EQ(1e308, val("1E308"));
    EXPECT_ERROR(6, val("1E309"));
    EXPECT_ERROR(6, val("-1E999999999999999999999"));
    EXPECT_EQ(0, val("1E-400"));
    EXPECT_ERROR(6, val(std::string(400, '9')));
}

} // namespace
} // namespace brx
