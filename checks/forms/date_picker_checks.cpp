#include "one_page.h"

using namespace brx;
using namespace brx::checks;

namespace {

struct DatePickers : testing::Test, OnePage {
    DatePicker& day = form.day;
    DatePicker& time = form.time;

    void while_open(const std::function<void()>& story) {
        OnePage::while_open([&] {
            form.tabs.select(2);
            form.notes.clear();
            story();
        });
    }
};

constexpr int noon = 12 * 3600;

} // namespace

TEST_F(DatePickers, TextIsTheDateOrTheTimeOfDay) {
    while_open([&] {
        day.set_value(date(1601, 1, 2, noon));
        time.set_value(date(1601, 1, 2, 13 * 3600 + 4 * 60 + 5));
        EXPECT_EQ(day.text(), "1601-01-02");
        EXPECT_EQ(time.text(), "13:04:05");
    });
}

TEST_F(DatePickers, AnotherValueIsReadAgainAsAValue) {
    while_open([&] {
        Reading seen;
        day.set_value(date(2026, 11, 21));
        day.read(Aspect::value, seen);
        EXPECT_EQ(seen.text, "2026-11-21");
        seen = {};
        day.read(Aspect::colors, seen);
        EXPECT_EQ(seen.text, "");
    });
}

TEST_F(DatePickers, ValuesGoFrom1601To9999) {
    while_open([&] {
        day.set_value(date(1601, 1, 1));
        EXPECT_EQ(day.text(), "1601-01-01");
        day.set_value(date(9999, 12, 31, 86'399));
        EXPECT_EQ(day.text(), "9999-12-31");
        form.notes.clear();
        EXPECT_EQ(number_of_error([&] { day.set_value(date(1600, 12, 31, 86'399)); }), 5);
        EXPECT_EQ(number_of_error([&] { day.set_value({2'958'466.0}); }), 5);
        EXPECT_EQ(day.text(), "9999-12-31");
        EXPECT_EQ(form.notes, Notes{});
    });
}

TEST_F(DatePickers, ItIsAccurateToTheSecond) {
    while_open([&] {
        time.set_value({46'000.0 + 1.0 / 86'400 + 0.4 / 86'400});
        EXPECT_EQ(time.value(), (to_date({.day = 46'000, .second = 1})));
        form.notes.clear();
        time.set_value({46'000.0 + 1.3 / 86'400});
        EXPECT_EQ(form.notes, Notes{}) << "It is the same second.";
    });
}

TEST_F(DatePickers, EachShowingStartsWithTheZeroDate) {
    while_open([&] { day.set_value(date(2026, 11, 21)); });
    while_open([&] { EXPECT_EQ(day.text(), "1899-12-30"); });
}

TEST_F(DatePickers, AWindowIsToldAboutAnotherValue) {
    while_open([&] {
        StandIn window(day);
        day.set_value(day.value());
        day.flush();
        EXPECT_EQ(window.seen, Aspect::none);
        day.set_value(date(2026, 11, 21));
        day.flush();
        EXPECT_EQ(window.seen, Aspect::value);
    });
}
