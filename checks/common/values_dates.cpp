#include "common/values_support.h"

#include "common/values/calendar.h"

#include <array>
#include <ctime>

namespace brx {
namespace {

constexpr int year = 2026;

/// The date in a text, as text: day and time without regard to any locale; "" when it is none.
std::string read(std::string_view text, const Locale& locale = us) {
    const auto date = read_date(text, locale, year);
    if (!date) return "";
    Locale plain;
    plain.short_date = "yyyy-MM-dd";
    plain.long_time = "HH:mm:ss";
    return to_text(*date, plain);
}

TEST(ReadDate, FollowsTheOrderOfTheLocale) {
    EXPECT_EQ("2026-01-02", read("1/2/2026"));
    EXPECT_EQ("2026-02-01", read("1.2.2026", de));
    EXPECT_EQ("2026-02-01", read("1/2/2026", fr));
    Locale swedish = us;
    swedish.date_order = DateOrder::year_month_day;
    EXPECT_EQ("2001-02-03", read("1-2-3", swedish));
}

TEST(ReadDate, TakesAnotherOrderWhereThatOfTheLocaleMakesNoDate) {
    EXPECT_EQ("2026-02-13", read("13/2/2026"));
    EXPECT_EQ("2026-02-13", read("2/13/2026", de));
    EXPECT_EQ("2026-01-02", read("2026-01-02", de));
    EXPECT_EQ("2026-01-02", read("2026/1/2"));
    EXPECT_EQ("2026-01-31", read("2026/31/1"));
}

TEST(ReadDate, TakesSeveralSeparators) {
    EXPECT_EQ("2026-01-02", read("1-2-2026"));
    EXPECT_EQ("2026-01-02", read("1 2 2026"));
    EXPECT_EQ("2026-01-02", read("1,2,2026"));
    EXPECT_EQ("2026-01-02", read("1,2"));
    EXPECT_EQ("2026-01-02", read("1//2"));
    EXPECT_EQ("2026-01-02", read(" 1 / 2 / 2026 "));
    EXPECT_EQ("", read("1.2.2026")) << "the full stop is one of times here";
    EXPECT_EQ("", read("1/2/"));
    EXPECT_EQ("", read("1,2,2026,"));
    EXPECT_EQ("", read("/1/2"));
    EXPECT_EQ("", read("1/2/3/4"));
    EXPECT_EQ("", read("1 2 3 4"));
    EXPECT_EQ("", read("1//2/3"));
    EXPECT_EQ("", read("1/2//3"));
}

TEST(ReadDate, TakesNamesOfMonthsAndDaysInAnyLetterCase) {
    EXPECT_EQ("2026-03-05", read("5 March 2026"));
    EXPECT_EQ("2026-03-05", read("MAR 5, 2026"));
    EXPECT_EQ("2026-03-05", read("Thursday, March 5, 2026"));
    EXPECT_EQ("2026-03-05", read("5-mar-2026"));
    EXPECT_EQ("2026-03-05", read("2026 March 5"));
    EXPECT_EQ("2026-03-05", read("5. März 2026", de));
    EXPECT_EQ("2026-03-05", read("DONNERSTAG, 5. MÄRZ 2026", de));
    EXPECT_EQ("2026-08-05", read("5 août 2026", fr));
    EXPECT_EQ("2026-01-05", read("5 janv. 2026", fr));
    EXPECT_EQ("", read("5 March 2026", de));
    EXPECT_EQ("", read("5 Marchx 2026"));
    EXPECT_EQ("", read("March"));
}

TEST(ReadDate, TakesTheLongestNameThatFits) {
    Locale locale = us;
    locale.months[0] = "Ju";
    EXPECT_EQ("2026-06-05", read("5 June 2026", locale));
    EXPECT_EQ("2026-01-05", read("5 Ju 2026", locale));
}

TEST(ReadDate, TakesAMonthsNameBeforeADaysNameOfTheSameLetters) {
    Locale spanish = fr;
    spanish.short_months[2] = spanish.short_days[1] = "mar";
    EXPECT_EQ("2026-03-05", read("5 mar 2026", spanish));
}

TEST(ReadDate, TakesASecondNameOfAMonthForItsNumber) {
    EXPECT_EQ("2026-03-03", read("March March"));
    EXPECT_EQ("2005-03-03", read("March March 5"));
    EXPECT_EQ("2005-03-03", read("5 March March"));
}

TEST(ReadDate, FillsUpWhatIsLeftOut) {
    EXPECT_EQ("2026-01-02", read("1/2"));
    EXPECT_EQ("2026-02-01", read("1.2", de));
    EXPECT_EQ("2026-03-05", read("March 5"));
    EXPECT_EQ("2002-03-01", read("March 1 2"));
    EXPECT_EQ("2001-03-02", read("1 2 March"));
    EXPECT_EQ("2031-03-01", read("March 2031"));
    EXPECT_EQ("2031-02-01", read("31 Feb"));
    EXPECT_EQ("2029-02-01", read("2/29")) << "2026 has no such day, so it is a month and its year";
    EXPECT_EQ("", read("1"));
    EXPECT_EQ("", read("20260102"));
}

TEST(ReadDate, PlacesTwoDigitYearsInTheWindow) {
    EXPECT_EQ("2000-01-02", read("1/2/00"));
    EXPECT_EQ("2049-01-02", read("1/2/49"));
    EXPECT_EQ("1950-01-02", read("1/2/50"));
    EXPECT_EQ("1999-01-02", read("1/2/99"));
    EXPECT_EQ("100-01-02", read("1/2/100"));
    Locale older = us;
    older.two_digit_year_max = 2029;
    EXPECT_EQ("2029-01-02", read("1/2/29", older));
    EXPECT_EQ("1930-01-02", read("1/2/30", older));
}

TEST(ReadDate, KnowsTheCalendar) {
    EXPECT_EQ("2024-02-29", read("2/29/2024"));
    EXPECT_EQ("", read("2/29/2023"));
    EXPECT_EQ("", read("2/29/1900"));
    EXPECT_EQ("2000-02-29", read("2/29/2000"));
    EXPECT_EQ("", read("4/31/2026"));
    EXPECT_EQ("", read("0/1/2026"));
    EXPECT_EQ("", read("1/0/2026"));
    EXPECT_EQ("9999-12-31", read("12/31/9999"));
    EXPECT_EQ("", read("1/1/10000"));
    EXPECT_EQ("", read("1/1/99999999999999999999"));
}

TEST(ReadDate, TakesTimes) {
    EXPECT_EQ("13:04:05", read("13:04:05"));
    EXPECT_EQ("13:04:00", read("13:04"));
    EXPECT_EQ("13:04:05", read("1:04:05 PM"));
    EXPECT_EQ("13:04:05", read("1:4:5pm"));
    EXPECT_EQ("01:04:00", read("1:04 AM"));
    EXPECT_EQ("00:30:00", read("12:30 AM"));
    EXPECT_EQ("12:30:00", read("12:30 PM"));
    EXPECT_EQ("13:00:00", read("1 PM"));
    EXPECT_EQ("13:00:00", read("1 p"));
    EXPECT_EQ("01:00:00", read("1 a"));
    EXPECT_EQ("13:04:00", read("13.04"));
    EXPECT_EQ("23:59:59", read("23:59:59"));
    for (const char* text : {"24:00", "1:60", "1:2:60", "PM 1:02", "1:02 AM PM", "1:2:3:4", "1:2 3:4",
                             "1:", ":1", "AM", "1:02 a.m."}) {
        EXPECT_EQ("", read(text)) << text;
    }
}

TEST(ReadDate, TakesDateAndTimeInEitherOrder) {
    EXPECT_EQ("2026-01-02 13:04:05", read("1/2/2026 1:04:05 PM"));
    EXPECT_EQ("2026-01-02 13:04:05", read("1:04:05 PM 1/2/2026"));
    EXPECT_EQ("2026-01-02 13:04:05", read("2.1.2026 13:04:05", de));
    EXPECT_EQ("2026-01-02 13:00:00", read("1/2/2026 1 PM"));
    EXPECT_EQ("2026-01-02 13:04:00", read("1/2 13:04"));
    EXPECT_EQ("1899-12-29 06:00:00", read("12/29/1899 6:00"));
    EXPECT_EQ("2026-02-03 01:00:00", read("1 a 2/3"));
    EXPECT_EQ("2003-01-02 01:00:00", read("1:00 1 2 3"));
    EXPECT_EQ("", read("1:00 1 2 3 4"));
    EXPECT_EQ("", read("1 2 3 4 1:00"));
    EXPECT_EQ("", read("1/2/2026 13"));
    EXPECT_EQ("", read("1/2:3:4"));
    EXPECT_EQ("", read("1/2/2026 x"));
}

TEST(ReadDate, TakesALetterForADesignatorOnlyWhereNoOtherFollows) {
    Locale locale = us;
    locale.days[6] = "zondag";
    locale.months[4] = "àvril";
    for (const char* name : {"April", "zondag April", "àvril"}) {
        EXPECT_NE("", read(std::string("1:02 a ") + name + " 5 2026", locale)) << name;
        EXPECT_EQ("", read(std::string("1:02 a") + name + " 5 2026", locale)) << name;
    }
}

TEST(ReadDate, CountsTheTimeAwayFromZeroBeforeTheZeroDay) {
    EXPECT_EQ(-1.25, read_date("12/29/1899 6:00", us, year)->days);
    EXPECT_EQ(1.25, read_date("12/31/1899 6:00", us, year)->days);
    EXPECT_EQ(0.25, read_date("6:00", us, year)->days);
}

TEST(ReadDate, AColonDividesTimesWhateverTheUsersSeparatorIs) {
    Locale locale = us;
    locale.time_separator = "h";
    EXPECT_EQ(0.25, read_date("6:00", locale, year)->days);
    EXPECT_EQ(0.25, read_date("6h00", locale, year)->days);
}

TEST(DayNumber, CountsTheDaysOfTheCalendar) {
    EXPECT_EQ(0, day_number(1899, 12, 30));
    EXPECT_EQ(-657434, day_number(100, 1, 1));
    EXPECT_EQ(2958465, day_number(9999, 12, 31));
    EXPECT_EQ(std::nullopt, day_number(99, 12, 31));
    EXPECT_EQ(std::nullopt, day_number(10000, 1, 1));
    EXPECT_EQ(std::nullopt, day_number(2026, 2, 29));
}

TEST(DayNumber, KnowsNoNumbersThatTheCalendarsTypesCannotHold) {
    EXPECT_EQ(std::nullopt, day_number(65536 + 2026, 1, 1));
    EXPECT_EQ(std::nullopt, day_number(2026, 256 + 1, 1));
    EXPECT_EQ(std::nullopt, day_number(2026, 1, 256 + 1));
}

TEST(ToDate, TakesANumberOfDaysForWhatIsNoDate) {
    EXPECT_EQ(36526, to_date("36526", us).days);
    EXPECT_EQ(36526.5, to_date("36526,5", de).days);
    EXPECT_EQ(-1, to_date("-1", us).days);
    EXPECT_ERROR(6, to_date("2958466", us));
    EXPECT_ERROR(6, to_date("-657435", us));
    EXPECT_EQ(2958465, to_date("2958465", us).days);
    EXPECT_EQ(-657434, to_date("-657434", us).days);
    EXPECT_ERROR(13, to_date("", us));
    EXPECT_ERROR(13, to_date("yesterday", us));
}

TEST(ToDate, AddsTheCurrentYear) {
    const std::time_t now = std::time(nullptr);
    std::array<char, 8> digits{};
    std::strftime(digits.data(), digits.size(), "%Y", std::localtime(&now));
    EXPECT_EQ(std::to_string(current_year()), digits.data());
    const Date date = to_date("January 5", us);
    EXPECT_EQ(day_number(current_year(), 1, 5), static_cast<int>(date.days));
}

} // namespace
} // namespace brx
