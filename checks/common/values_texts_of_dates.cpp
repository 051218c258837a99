#include "common/values_support.h"

#include <limits>

namespace brx {
namespace {

constexpr double second = 1.0 / 86400;

TEST(DateToText, GivesShortDateAndLongTime) {
    EXPECT_EQ("1/2/2026 1:04:05 PM", to_text(Date{46024 + (13 * 3600 + 4 * 60 + 5) * second}, us));
    EXPECT_EQ("2.1.2026 13:04:05", to_text(Date{46024 + (13 * 3600 + 4 * 60 + 5) * second}, de));
    EXPECT_EQ("02/01/2026 13:04:05", to_text(Date{46024 + (13 * 3600 + 4 * 60 + 5) * second}, fr));
}

TEST(DateToText, LeavesOutMidnightAndTheZeroDay) {
    EXPECT_EQ("1/2/2026", to_text(Date{46024}, us));
    EXPECT_EQ("2.1.2026", to_text(Date{46024}, de));
    EXPECT_EQ("6:00:00 AM", to_text(Date{0.25}, us));
    EXPECT_EQ("06:00:00", to_text(Date{0.25}, de));
    EXPECT_EQ("12:00:00 AM", to_text(Date{0}, us));
    EXPECT_EQ("00:00:00", to_text(Date{0}, de));
    EXPECT_EQ("6:00:00 AM", to_text(Date{-0.25}, us));
    EXPECT_EQ("12/29/1899 6:00:00 AM", to_text(Date{-1.25}, us));
}

TEST(DateToText, RoundsToSecondsAlsoIntoTheNextDay) {
    EXPECT_EQ("12:00:01 AM", to_text(Date{0.5001 * second}, us));
    EXPECT_EQ("12:00:00 AM", to_text(Date{0.4999 * second}, us));
    EXPECT_EQ("11:59:59 PM", to_text(Date{1 - 0.6 * second}, us));
    EXPECT_EQ("12/31/1899", to_text(Date{1 - 0.4 * second}, us));
    EXPECT_EQ("1/2/2000", to_text(Date{36526.9999999}, us));
    EXPECT_EQ("12:00:00 AM", to_text(Date{-1.9999999}, us)) << "from the day before the zero day into it";
}

TEST(DateToText, HasItsLimitsAtTheEndsOfTheCalendar) {
    EXPECT_EQ("1/1/100", to_text(Date{-657434}, us));
    EXPECT_EQ("1/1/100 6:00:00 PM", to_text(Date{-657434.75}, us));
    EXPECT_ERROR(5, to_text(Date{-657435}, us));
    EXPECT_EQ("12/31/9999", to_text(Date{2958465}, us));
    EXPECT_EQ("12/31/9999 11:59:59 PM", to_text(Date{2958465.99999999}, us));
    EXPECT_ERROR(5, to_text(Date{2958466}, us));
    EXPECT_ERROR(5, to_text(Date{1e300}, us));
    EXPECT_ERROR(5, to_text(Date{std::numeric_limits<double>::quiet_NaN()}, us));
}

TEST(ShortDateAndLongTime, AreNeverLeftOut) {
    EXPECT_EQ("12/30/1899", short_date(Date{0.25}, us));
    EXPECT_EQ("30.12.1899", short_date(Date{0.25}, de));
    EXPECT_EQ("12:00:00 AM", long_time(Date{46024}, us));
    EXPECT_EQ("1:04:05 PM", long_time(Date{46024 + (13 * 3600 + 4 * 60 + 5) * second}, us));
}

TEST(ShortDateAndLongTime, FillThePicturesOfTheLocale) {
    Locale locale = de;
    locale.short_date = "dddd, d. MMMM yy '(''dd'')' ddd MMM M MM d dd y yyyy";
    locale.long_time = "h 'Uhr' hh H HH m mm s ss t tt";
    const Date date{46024 + (9 * 3600 + 4 * 60 + 5) * second};
    EXPECT_EQ("Freitag, 2. Januar 26 ('dd') Fr. Jan 1 01 2 02 26 2026", short_date(date, locale));
    EXPECT_EQ("9 Uhr 09 9 09 4 04 5 05 A AM", long_time(date, locale));
    locale.am = "ä.";
    locale.long_time = "t tt";
    EXPECT_EQ("ä ä.", long_time(date, locale));
    locale.am = "";
    EXPECT_EQ(" ", long_time(date, locale));
}

TEST(ShortDateAndLongTime, TakeMoreLettersForTheLongestField) {
    Locale locale = us;
    locale.short_date = "ddddd MMMMM yyy yyyyy";
    locale.long_time = "hhh HHH mmm sss ttt";
    const Date date{46024 + (9 * 3600 + 4 * 60 + 5) * second};
    EXPECT_EQ("Friday January 2026 2026", short_date(date, locale));
    EXPECT_EQ("09 09 04 05 AM", long_time(date, locale));
}

TEST(ShortDateAndLongTime, TakeQuotesAsTheSystemDoes) {
    Locale locale = us;
    const auto filled = [&](const char* picture) {
        locale.short_date = picture;
        return short_date(Date{46024}, locale);
    };
    EXPECT_EQ("a'b", filled("'a''b'"));
    EXPECT_EQ("'", filled("''''"));
    EXPECT_EQ("dd", filled("'dd"));
    EXPECT_EQ("2", filled("d'"));
    EXPECT_EQ("2", filled("d''"));
    EXPECT_EQ("2 2", filled("d ''d"));
}

TEST(ShortDateAndLongTime, ComeBackAsTheSameDate) {
    for (const Locale* locale : {&us, &de, &fr}) {
        for (const double days : {46024.25, 2.75, -657434.0, -1.5, 2958465.5}) {
            const std::string text = short_date(Date{days}, *locale) + " " + long_time(Date{days}, *locale);
            EXPECT_EQ(days, to_date(text, *locale).days) << text;
        }
    }
}

} // namespace
} // namespace brx
