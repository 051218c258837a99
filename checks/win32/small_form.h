#pragma once

#include "desk/desk.h"

#include "forms/button.h"
#include "forms/text_box.h"

#include <functional>

namespace brx::checks {

/// A small form whose button does what the check wants.
class Small : public Form {
public:
    explicit Small(Environment& on, const char* name = "Small")
        : Form(on, {.name = name, .caption = name, .size = {200, 100}}) {}

    std::function<void()> on_press;

    TextBox Text{*this, "Text", {.place = {10, 10, 100, 23}, .tab = 1}};
    Button Press{*this, "Press", {.place = {10, 40, 75, 23}, .caption = "&Press", .tab = 2, .Click = [this] {
                                      if (on_press) on_press();
                                  }}};
    Button Close{*this, "Close", {.place = {100, 40, 75, 23}, .caption = "Close", .tab = 3, .Click = [this] {
                                      unload();
                                  }}};
};

} // namespace brx::checks
