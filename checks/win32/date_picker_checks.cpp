#include "pages.h"

namespace brx::checks {

namespace {

class DatePickerTest : public PagesTest {
protected:
    /// Shows the page with the dates; the picker has the focus, its first field selected.
    void show_picker(PageForm& form, const char* control, const Story& story) {
        form.on_load = [&] { form.Tabs.select(2); };
        show_page(form, control, [&](Hands& hands, HWND picker) {
            hands.click(picker, 5, 10);
            EXPECT_EQ(hands.focus(), picker);
            form.events.clear();
            story(hands, picker);
            hands.run([&] {
                EXPECT_EQ(date_text(picker), dynamic_cast<DatePicker&>(*find(form, control)).text());
            });
        });
    }
    static Control* find(const Form& form, const std::string& name) {
        for (Control* each : form.controls())
            if (each->name() == name) return each;
        return nullptr;
    }
    /// Field by field, as a person would. The last one stays as it was typed.
    static void enter(Hands& hands, HWND picker, const std::string& text) {
        const std::vector<std::string> fields = date_fields(picker, text);
        for (const std::string& field : fields) {
            if (&field != &fields.front()) hands.key(VK_RIGHT);
            hands.type(field);
        }
    }
};

} // namespace

TEST_F(DatePickerTest, ATimeIsSetWithUpAndDownAndADayWithACalendar) {
    PageForm form(environment);
    show_picker(form, "Time", [&](Hands& hands, HWND picker) {
        EXPECT_TRUE(GetWindowLongW(picker, GWL_STYLE) & DTS_UPDOWN);
        EXPECT_FALSE(GetWindowLongW(hands.control("Pages", "Day"), GWL_STYLE) & DTS_UPDOWN);
        EXPECT_EQ(date_text(picker), "12:00:00");
        hands.key(VK_RIGHT); // to the minutes
        hands.key(VK_UP);
        EXPECT_EQ(form.events, "Time 12:01:00. ");
        hands.key(VK_DOWN);
        EXPECT_EQ(form.events, "Time 12:01:00. Time 12:00:00. ");
    });
}

TEST_F(DatePickerTest, WhatWasTypedLastCountsWhenEnterOrAnAcceleratorPressesAButton) {
    PageForm form(environment);
    show_picker(form, "Day", [&](Hands& hands, HWND picker) {
        // Of the two digits that the first field has room for.
        const bool day_first = date_fields(picker, "2026-11-21").front() == "21";
        hands.type("4");
        hands.key(VK_RETURN);
        const std::string fourth = day_first ? "2026-11-04" : "2026-04-21";
        EXPECT_EQ(form.Day.text(), fourth);
        EXPECT_EQ(form.events, "Day " + fourth + ". OK. ");
        EXPECT_EQ(hands.focus(), picker);
        form.events.clear();
        hands.type("5");
        hands.keys({VK_MENU, 'G'});
        const std::string fifth = day_first ? "2026-11-05" : "2026-05-21";
        EXPECT_EQ(form.Day.text(), fifth);
        EXPECT_EQ(form.events, "Day " + fifth + ". Give. ");
    });
}

TEST_F(DatePickerTest, WhatTheControlRefusesIsNotShown) {
    PageForm form(environment);
    show_picker(form, "Day", [&](Hands& hands, HWND picker) {
        run(hands, form, [&] {
            SendMessageW(picker, WM_KEYDOWN, VK_UP, 1);
            EXPECT_EQ(date_text(picker), "2026-11-21");
        });
        EXPECT_EQ(form.events, "");
    });
}

TEST_F(DatePickerTest, TheCalendarDropsDownAndADayIsPickedInIt) {
    PageForm form(environment);
    show_picker(form, "Day", [&](Hands& hands, HWND picker) {
        RECT client{};
        GetClientRect(picker, &client);
        PostMessageW(picker, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(client.right - 6, client.bottom / 2));
        PostMessageW(picker, WM_LBUTTONUP, 0, MAKELPARAM(client.right - 6, client.bottom / 2));
        HWND calendar = nullptr;
        ASSERT_TRUE(Hands::eventually([&] {
            calendar = reinterpret_cast<HWND>(SendMessageW(picker, DTM_GETMONTHCAL, 0, 0));
            return calendar && IsWindowVisible(calendar);
        }));
        EXPECT_EQ(form.events, "");
        // The day of the month that lies some rows down in the calendar.
        RECT days{};
        GetClientRect(calendar, &days);
        hands.click(calendar, days.right / 2, days.bottom / 2);
        EXPECT_FALSE(IsWindow(calendar) && IsWindowVisible(calendar));
        EXPECT_NE(form.Day.text(), "2026-11-21");
        EXPECT_EQ(form.Day.text().substr(0, 8), "2026-11-");
        EXPECT_EQ(form.events, "Day " + form.Day.text() + ". ");
    });
}

} // namespace brx::checks
