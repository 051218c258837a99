// What a person does to pickers of dates and times, and what becomes of it.

#include "rules/page_form.h"
#include "rules/rule.h"

namespace brx::checks {

namespace {

class Dates : public RuleOf<PageForm> {
protected:
    Dates() {
        form().on_load = [this] { form().Tabs.select(2); };
    }
    /// The last thing that the form noted; whoever types a date comes by others on the way.
    std::string told_last() {
        const std::string all = told();
        const std::size_t end = all.rfind(". ", all.size() - 3);
        return all.substr(end == std::string::npos ? 0 : end + 2);
    }
};

} // namespace

TEST_F(Dates, APickerShowsWhatCodeSetsAndTellsEachOnce) {
    while_open([&] {
        EXPECT_EQ(person.reads("Day"), "2026-11-21");
        EXPECT_EQ(person.reads("Time"), "12:00:00");
        for (const int year : {1753, 1899, 1900, 9999}) {
            const std::string text = std::to_string(year) + "-02-28";
            for (int times = 0; times < 2; ++times)
                code([&] { form().Day.set_value(PageForm::day(year, 2, 28)); });
            EXPECT_EQ(person.reads("Day"), text);
            EXPECT_EQ(told(), "Day " + text + ". ");
        }
    });
}

TEST_F(Dates, WhatAPersonEntersBecomesTheValue) {
    while_open([&] {
        person.sets("Day", "2031-07-04");
        EXPECT_EQ(form().Day.text(), "2031-07-04");
        EXPECT_EQ(told_last(), "Day 2031-07-04. ");
        EXPECT_EQ(focused(), "Day");
        person.sets("Time", "09:08:07");
        EXPECT_EQ(form().Time.text(), "09:08:07");
        EXPECT_EQ(told_last(), "Time 09:08:07. ");
    });
}

TEST_F(Dates, TheOtherPartOfTheValueStays) {
    while_open([&] {
        const Date before{PageForm::day(2026, 1, 2).days + 0.25};
        code([&] {
            form().Time.set_value(before);
            form().Day.set_value(before);
        });
        person.sets("Time", "18:00:00");
        EXPECT_EQ(form().Time.value(), (Date{PageForm::day(2026, 1, 2).days + 0.75}));
        person.sets("Day", "2030-05-06");
        EXPECT_EQ(form().Day.value(), (Date{PageForm::day(2030, 5, 6).days + 0.25}));
    });
}

TEST_F(Dates, WhatTheHandlerSetsInsteadIsShown) {
    while_open([&] {
        form().on_day = [&] { form().Day.set_value(PageForm::day(2020, 2, 29)); };
        static_cast<void>(screen().set_date("Day", "2031-07-04"));
        EXPECT_EQ(person.reads("Day"), "2020-02-29");
        EXPECT_EQ(form().Day.text(), "2020-02-29");
    });
}

TEST_F(Dates, WhatAPersonDoesNotReachStaysAsItIs) {
    while_open([&] {
        code([&] { form().Day.set_enabled(false); });
        EXPECT_FALSE(screen().set_date("Day", "2031-07-04"));
        code([&] {
            form().Day.set_enabled(true);
            form().Tabs.select(1);
        });
        told();
        EXPECT_FALSE(screen().set_date("Day", "2031-07-04")) << "Another tab is in front.";
        EXPECT_EQ(form().Day.text(), "2026-11-21");
        EXPECT_EQ(told(), "");
    });
}

} // namespace brx::checks
