#pragma once

#include "forms/focus.h"
#include "forms/text_box.h"

#include <cstdint>
#include <functional>
#include <string>

namespace brx::checks {

/// A form with boxes that note what happens to them.
class BoxForm : public Form {
public:
    explicit BoxForm(Environment& on) : Form(on, {.name = "Boxes", .caption = "Boxes", .size = {300, 150}}) {}

    std::string events;
    std::function<void(std::int32_t&)> on_key_press = [](std::int32_t&) {};
    std::function<void()> on_change = [] {};
    std::function<void()> on_load = [] {};
    std::string initial = "start";

    // clang-format off
    TextBox Box  {*this, "Box",   {.place = {10, 10, 200, 23}, .tab = 1,
                                   .Change = [this] { events += "Change "; on_change(); },
                                   .KeyDown = [this](std::int32_t key) { events += "Down" + std::to_string(key) + " "; },
                                   .KeyPress = [this](std::int32_t& key) {
                                       events += "Press" + std::to_string(key) + " ";
                                       on_key_press(key);
                                   },
                                   .KeyUp = [this](std::int32_t key) { events += "Up" + std::to_string(key) + " "; }}};
    TextBox Fixed{*this, "Fixed", {.place = {10, 40, 200, 23}, .tab = 2, .text = "fixed", .display_only = true,
                                   .Change = [this] { events += "FixedChange "; }}};
    TextBox Other{*this, "Other", {.place = {10, 70, 200, 23}, .tab = 3, .text = "other text",
                                   .GotFocus = [this] { hlxFocus::select_text(Other); }}};
    // clang-format on

    void Form_Load() override {
        Box.set_text(initial);
        on_load();
        events.clear();
    }
};

} // namespace brx::checks
