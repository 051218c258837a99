#pragma once

#include "common/values/calendar.h"
#include "forms/date_picker.h"
#include "forms/list_rows.h"
#include "forms/list_view.h"
#include "forms/tab_strip.h"
#include "one_form.h"
#include "screen.h"
#include "stand_in.h"

#include <gtest/gtest.h>

namespace brx::checks {

/// A form of tabs, with a table without columns on the first one and pickers on the second one.
class BarePages : public Form {
public:
    explicit BarePages(Environment& environment)
        : Form(environment, {.name = "BarePages", .caption = "Pages", .size = {300, 200}}) {}

    Notes notes;

    // clang-format off
    TextBox    box   {*this,  "box",    {.place = {0, 0, 50, 23}, .tab = 1}};
    TabStrip   tabs  {*this,  "tabs",   {.place = {0, 30, 300, 150}, .captions = {"&1 One", "&2 Two", "Thr&ee"}, .tab = 2,
                                         .Click = [this] { notes.push_back("tabs " + std::to_string(tabs.selected())); turn(); }}};
    Panel      first {*this,  "first",  {.place = {5, 50, 290, 120}, .tab = 3}};
    Label      label {first,  "label",  {.place = {0, 0, 50, 15}, .caption = "&List:", .tab = 4}};
    ListView   list  {first,  "list",   {.place = {0, 20, 100, 80}, .tab = 5,
                                         .DblClick = [this] { notes.push_back("list twice " + std::to_string(list.selected())); }}};
    Button     go    {first,  "go",     {.place = {110, 0, 75, 23}, .caption = "&Go", .tab = 6}};
    Panel      second{*this,  "second", {.place = {5, 50, 290, 120}, .tab = 7, .visible = false}};
    DatePicker day   {second, "day",    {.place = {0, 0, 90, 23}, .tab = 8,
                                         .Change = [this] { notes.push_back("day " + day.text()); }}};
    DatePicker time  {second, "time",   {.place = {0, 30, 90, 23}, .part = DatePart::time, .tab = 9,
                                         .Change = [this] { notes.push_back("time " + time.text()); }}};
    ListView   plain {second, "plain",  {.place = {0, 60, 90, 40}, .tab = 11}};
    Button     give  {second, "give",   {.place = {110, 0, 75, 23}, .caption = "&Give", .tab = 10}};
    // clang-format on

private:
    void turn() {
        first.set_visible(tabs.selected() == 1);
        second.set_visible(tabs.selected() == 2);
    }
};

/// Shows the form and runs `story` while it is open.
struct OnePage {
    FakeHost host;
    ScriptedEngine engine;
    Environment environment{engine, host, host, Locale{}};
    BarePages form{environment};

    void while_open(const std::function<void()>& story) {
        engine.while_open = [&](Form&) {
            form.notes.clear();
            story();
        };
        form.show_modal();
    }
    static Date date(int year, unsigned month, unsigned day, int second = 0) {
        return to_date({.day = day_number(year, month, day).value(), .second = second});
    }
};

} // namespace brx::checks
