#include "common/values/text.h"
#include "common/values/unicode.h"
#include "common/values/utf16.h"

#include <gtest/gtest.h>

#include <locale.h>
#include <wctype.h>

namespace brx {
namespace {

using namespace std::string_literals;
using Parts = std::vector<std::string>;

TEST(Trim, TakesBlanksOnly) {
    EXPECT_EQ("a b", trim("  a b "));
    EXPECT_EQ("", trim("   "));
    EXPECT_EQ("", trim(""));
    EXPECT_EQ("\ta\n", trim(" \ta\n "));
    EXPECT_EQ("\u00A0a", trim("\u00A0a "));
}

TEST(ToUpper, MapsTheWholeOfUnicode) {
    EXPECT_EQ("ABC XYZ 123", to_upper("abc XYZ 123"));
    EXPECT_EQ("ÄÖÜÉÇŸ", to_upper("äöüéçÿ"));
    EXPECT_EQ("ΑΒΓΣΣ", to_upper("αβγσς"));
    EXPECT_EQ("ПРИВЕТ", to_upper("привет"));
    EXPECT_EQ("STRAßE", to_upper("straße")) << "one letter stays one letter";
    EXPECT_EQ("IIİ", to_upper("iıİ")) << "no locale changes it";
    EXPECT_EQ("\U00010400", to_upper("\U00010428"));
}

TEST(ToUpper, LeavesMalformedBytesAndSurrogatesAlone) {
    EXPECT_EQ("A\xFF"s
              "B\xC3"s,
              to_upper("a\xFF"s
                       "b\xC3"s));
    EXPECT_EQ("\xED\xA0\x80"s
              "A",
              to_upper("\xED\xA0\x80"s
                       "a"));
    EXPECT_EQ("A\0B"s, to_upper("a\0b"s));
}

TEST(ToUpper, AgreesWithTheCLibraryForEveryCodePoint) {
    const locale_t locale = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    ASSERT_TRUE(locale);
    int different = 0;
    for (char32_t c = 0; c <= 0x10FFFF; ++c) {
        if (to_upper(c) != static_cast<char32_t>(towupper_l(static_cast<wint_t>(c), locale))) ++different;
    }
    EXPECT_EQ(0, different);
    freelocale(locale);
}

TEST(EqualIgnoringCase, ComparesCapitals) {
    EXPECT_TRUE(equal_ignoring_case("Plant.Server.1", "PLANT.server.1"));
    EXPECT_TRUE(equal_ignoring_case("ÄÖ", "äö"));
    EXPECT_TRUE(equal_ignoring_case("", ""));
    EXPECT_FALSE(equal_ignoring_case("a", "b"));
    EXPECT_FALSE(equal_ignoring_case("a", "a "));
    EXPECT_FALSE(equal_ignoring_case("e", "é"));
    EXPECT_FALSE(equal_ignoring_case("ss", "ß"));
}

TEST(Split, GivesOnePartMoreThanSeparators) {
    EXPECT_EQ((Parts{"a", "b", "c"}), split("a.b.c", "."));
    EXPECT_EQ((Parts{"a"}), split("a", "."));
    EXPECT_EQ((Parts{"", "a", "", ""}), split(".a..", "."));
    EXPECT_EQ((Parts{"a", "b"}), split("a::b", "::"));
    EXPECT_EQ(Parts{}, split("", "."));
    EXPECT_EQ((Parts{"a.b"}), split("a.b", ""));
}

TEST(Utf16, KeepsEveryText) {
    const std::u16string text = u"a\u00E4\u20AC\U0001F600\0z"s;
    EXPECT_EQ("aä€\U0001F600\0z"s, to_utf8(text));
    EXPECT_EQ(text, to_utf16(to_utf8(text)));
    EXPECT_EQ("\U00010000", to_utf8(u"\U00010000"));
    EXPECT_EQ("x\U0010FFFF", to_utf8(u"x\U0010FFFF")) << "a pair at the end";
    EXPECT_EQ(std::size_t{2}, utf16_length("\U00010000"));
    EXPECT_EQ(std::size_t{1}, utf16_length("\uFFFF"));
    EXPECT_EQ(u"", to_utf16(""));
}

TEST(Utf16, KeepsUnpairedSurrogates) {
    const std::u16string high(1, char16_t{0xD83D});
    const std::u16string low(1, char16_t{0xDE00});
    EXPECT_EQ("\xED\xA0\xBD", to_utf8(high));
    for (const std::u16string& text : {high, low, low + high, high + high + low, u"a" + high + u"b" + low}) {
        EXPECT_EQ(text, to_utf16(to_utf8(text)));
    }
}

TEST(Utf16, KeepsEveryPairOfUnits) {
    const char16_t edges[] = {0,      0x7F,   0x80,   0x7FF,  0x800,  0xD7FF,
                              0xD800, 0xDBFF, 0xDC00, 0xDFFF, 0xE000, 0xFFFF};
    for (const char16_t a : edges) {
        for (const char16_t b : edges) {
            for (const char16_t c : edges) {
                const std::u16string text = {a, b, c};
                EXPECT_EQ(text, to_utf16(to_utf8(text)));
            }
        }
    }
}

TEST(Utf16, ReplacesEachMalformedByte) {
    EXPECT_EQ(u"a\uFFFDb", to_utf16("a\xFF"s
                                    "b"));
    EXPECT_EQ(u"\uFFFD", to_utf16("\xC3")) << "cut off";
    EXPECT_EQ(u"\uFFFD\uFFFD", to_utf16("\xE2\x82")) << "cut off";
    EXPECT_EQ(u"\uFFFD\uFFFD", to_utf16("\xC0\x80")) << "longer than need be";
    EXPECT_EQ(u"\uFFFD\uFFFD\uFFFD", to_utf16("\xE0\x80\x80")) << "longer than need be";
    EXPECT_EQ(u"\uFFFD\uFFFD\uFFFD\uFFFD", to_utf16("\xF4\x90\x80\x80")) << "beyond Unicode";
    for (const char* four : {"\x80\x90\x80\x80", "\x81\x80\x80\x80", "\xC1\xBF\x80\x80", "\xF5\x80\x80\x80",
                             "\xF8\x90\x80\x80", "\xFF\xBF\xBF\xBF"})
        EXPECT_EQ(u"\uFFFD\uFFFD\uFFFD\uFFFD", to_utf16(four));
    EXPECT_EQ(u"\uFFFD(", to_utf16("\xC3("));
    EXPECT_EQ(u"\uFFFDä", to_utf16("\xC3ä"));
}

TEST(Utf16, CountsUnits) {
    EXPECT_EQ(0U, utf16_length(""));
    EXPECT_EQ(3U, utf16_length("aä€"));
    EXPECT_EQ(2U, utf16_length("\U0001F600"));
    EXPECT_EQ(1U, utf16_length("\xED\xA0\xBD"));
    EXPECT_EQ(2U, utf16_length("\xFF\xFE"));
}

TEST(CodePoints, BecomeReplacementsOutsideUnicode) {
    std::string text;
    append_code_point(text, 0x110000);
    append_code_point(text, malformed_byte);
    EXPECT_EQ("\uFFFD\uFFFD", text);
    EXPECT_EQ(U"a\uFFFD€", to_code_points("a\xFF€"));
    EXPECT_EQ(u"\uFFFD", utf16_of<char16_t>("\x80"));
    EXPECT_EQ(u"\x7F", utf16_of<char16_t>("\x7F"));
}

TEST(CodePoints, WhiteSpaceIsWhatTheSystemSkips) {
    std::u32string all;
    for (char32_t c = 0; c <= 0x10FFFF; ++c)
        if (is_white_space(c)) all += c;
    EXPECT_EQ(
        U"\t\n\v\f\r \u0085\u00A0\u1680\u2000\u2001\u2002\u2003\u2004\u2005\u2006\u2007\u2008\u2009\u200A"
        U"\u2028\u2029\u202F\u205F\u3000",
        all);
}

} // namespace
} // namespace brx
