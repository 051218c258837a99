#pragma once

#include "forms/button.h"
#include "forms/list_control.h"

#include <functional>
#include <string>

namespace brx::checks {

/// A list box and a drop-down list.
class ListForm : public Form {
public:
    explicit ListForm(Environment& on)
        : Form(on, {.name = "Lists", .caption = "Lists", .size = {400, 300}}) {}

    std::string events;
    std::function<void()> on_load = [] {};
    std::function<void()> on_click = [] {};

    // clang-format off
    ListBox  Box  {*this, "Box",   {.place = {10, 10, 150, 100}, .tab = 1,
                                    .Click = [this] { events += "Click" + std::to_string(Box.selected()) + " "; on_click(); },
                                    .DblClick = [this] { events += "DblClick "; }}};
    ComboBox Combo{*this, "Combo", {.place = {200, 10, 150, 23}, .tab = 2,
                                    .Click = [this] { events += "Combo" + std::to_string(Combo.selected()) + " "; }}};
    Button   Press{*this, "Press", {.place = {10, 200, 75, 23}, .caption = "Press", .tab = 3, .is_default = true,
                                    .Click = [this] { events += "Press "; }}};
    // clang-format on

    using Form::show_message;

    void Form_Load() override {
        on_load();
        events.clear();
    }
};

inline void add_three(ListControl& list) {
    for (const char* each : {"one", "two", "three"}) list.add_line(each);
}

} // namespace brx::checks
