#pragma once

#include "common/values/calendar.h"
#include "forms/button.h"
#include "forms/date_picker.h"
#include "forms/frame.h"
#include "forms/label.h"
#include "forms/list_view.h"
#include "forms/tab_strip.h"
#include "forms/text_box.h"

#include <functional>
#include <string>

namespace brx::checks {

/// A form of tabs, a table on the first one and dates on the second one, in tab order before and behind them.
class PageForm : public Form {
public:
    explicit PageForm(Environment& on, const char* name = "Pages")
        : Form(on, {.name = name, .caption = "Pages", .size = {420, 300}, .resizable = true}) {}

    std::string events;
    std::function<void()> on_load = [] {};
    std::function<void()> on_day = [] {};
    std::function<void()> on_twice = [] {};

    // clang-format off
    TextBox    Before{*this,  "Before", {.place = {10, 268, 60, 23}, .tab = 1, .anchor = Anchor::bottom}};
    TabStrip   Tabs  {*this,  "Tabs",   {.place = {10, 10, 400, 250}, .captions = {"&1 Items", "&2 Times", "&3 More"},
                                         .tab = 2, .anchor = Anchor::stretch_width | Anchor::stretch_height,
                                         .Click = [this] { note("Tab " + std::to_string(Tabs.selected())); turn(); }}};
    Panel      First {*this,  "First",  {.place = {16, 36, 388, 218}, .tab = 3,
                                         .anchor = Anchor::stretch_width | Anchor::stretch_height}};
    Label      Named {First,  "Named",  {.place = {4, 7, 50, 15}, .caption = "&Name:", .tab = 4}};
    TextBox    Name  {First,  "Name",   {.place = {60, 4, 100, 23}, .tab = 5}};
    Button     Go    {First,  "Go",     {.place = {170, 4, 75, 23}, .caption = "&Go", .tab = 6,
                                         .Click = [this] { note("Go"); }}};
    ListView   List  {First,  "List",   {.place = {4, 34, 380, 180}, .tab = 7,
                                         .anchor = Anchor::stretch_width | Anchor::stretch_height,
                                         .DblClick = [this] { note("Twice " + std::to_string(List.selected())); on_twice(); }}};
    Panel      Second{*this,  "Second", {.place = {16, 36, 388, 218}, .tab = 8, .visible = false,
                                         .anchor = Anchor::stretch_width | Anchor::stretch_height}};
    DatePicker Day   {Second, "Day",    {.place = {60, 4, 120, 23}, .tab = 9,
                                         .Change = [this] { note("Day " + Day.text()); on_day(); }}};
    DatePicker Time  {Second, "Time",   {.place = {190, 4, 120, 23}, .part = DatePart::time, .tab = 10,
                                         .Change = [this] { note("Time " + Time.text()); }}};
    Button     Give  {Second, "Give",   {.place = {60, 40, 75, 23}, .caption = "&Give", .tab = 11,
                                         .Click = [this] { note("Give"); }}};
    Button     Hide  {Second, "Hide",   {.place = {145, 40, 75, 23}, .caption = "&Hide", .tab = 12,
                                         .Click = [this] { note("Hide"); }}};
    Button     Third {*this,  "Third",  {.place = {80, 268, 75, 23}, .caption = "&3rd", .tab = 13, .visible = false,
                                         .anchor = Anchor::bottom, .Click = [this] { note("Third"); }}};
    Button     OK    {*this,  "OK",     {.place = {335, 268, 75, 23}, .caption = "OK", .tab = 14, .is_default = true,
                                         .anchor = Anchor::right | Anchor::bottom, .Click = [this] { note("OK"); }}};
    // clang-format on

    void Form_Load() override {
        List.add_column("Item", 150);
        List.add_column("Value", 80);
        List.add_column("State", 80);
        Day.set_value(day(2026, 11, 21));
        Time.set_value(Date{0.5});
        on_load();
        events.clear();
    }

    static Date day(int year, unsigned month, unsigned of_month) {
        return to_date({.day = day_number(year, month, of_month).value(), .second = 0});
    }
    /// Rows "Row 1", "Row 2" and so on, with their number as the value.
    void add_rows(int count) {
        for (int i = 1; i <= count; ++i)
            List.add("", "Row " + std::to_string(i)).set_text(1, std::to_string(i));
    }
    void note(const std::string& event) { events += event + ". "; }

private:
    void turn() {
        First.set_visible(Tabs.selected() == 1);
        Second.set_visible(Tabs.selected() == 2);
    }
};

} // namespace brx::checks
