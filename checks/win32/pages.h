#pragma once

#include "desk/desk.h"

#include "common/values/calendar.h"
#include "desk/native_table.h"
#include "forms/button.h"
#include "forms/date_picker.h"
#include "forms/frame.h"
#include "forms/label.h"
#include "forms/list_rows.h"
#include "forms/list_view.h"
#include "forms/tab_strip.h"
#include "forms/text_box.h"
#include "screen.h"

#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

namespace brx::checks {

using Rows = std::vector<std::string>;

/// A form of tabs, a table on the first one and dates on the second one, in tab order before and behind them.
class Pages : public Form {
public:
    explicit Pages(Environment& on)
        : Form(on, {.name = "Pages", .caption = "Pages", .size = {420, 300}, .resizable = true}) {}

    std::string events;
    std::function<void()> on_load;
    std::function<void()> on_day;
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
                                         .Change = [this] { note("Day " + Day.text()); if (on_day) on_day(); }}};
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
        if (on_load) on_load();
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

class PagesTest : public OnWindows {
protected:
    using Story = std::function<void(Hands& hands, HWND control)>;

    /// Shows the form while a person acts who has the window of one of its controls in view.
    void show_page(Pages& form, const char* control, const Story& story) {
        show(form, [&](Hands& hands) {
            hands.form("Pages");
            story(hands, hands.control("Pages", control));
        });
    }
    /// Runs code of the form, as a handler does.
    static void run(Hands& hands, Form& form, const std::function<void()>& code) {
        hands.run([&] { form.run_event(code); });
    }
    static void set_scale(HWND control, int dpi) {
        const RECT proposed{10, 10, 20, 20};
        SendMessageW(GetParent(control), WM_DPICHANGED, MAKEWPARAM(dpi, dpi),
                     reinterpret_cast<LPARAM>(&proposed));
    }
    static void grow(HWND form, int width, int height) {
        RECT outer{};
        GetWindowRect(form, &outer);
        SetWindowPos(form, nullptr, 0, 0, outer.right - outer.left + width, outer.bottom - outer.top + height,
                     SWP_NOMOVE | SWP_NOZORDER);
    }
};

/// Notes the messages that reach a window, until the end. Made and destroyed by its thread.
class MessageLog {
public:
    explicit MessageLog(HWND window) : window_(window) {
        SetWindowSubclass(window, procedure, 77, reinterpret_cast<DWORD_PTR>(this));
    }
    ~MessageLog() { RemoveWindowSubclass(window_, procedure, 77); }
    MessageLog(const MessageLog&) = delete;
    MessageLog& operator=(const MessageLog&) = delete;

    std::vector<MSG> messages;

    std::ptrdiff_t count(UINT message) const {
        return std::count_if(messages.begin(), messages.end(),
                             [&](const MSG& each) { return each.message == message; });
    }

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam, UINT_PTR,
                                      DWORD_PTR self) noexcept {
        reinterpret_cast<MessageLog*>(self)->messages.push_back({window, message, wparam, lparam, 0, {}});
        return DefSubclassProc(window, message, wparam, lparam);
    }

    HWND window_;
};

} // namespace brx::checks
