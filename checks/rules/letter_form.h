#pragma once

#include "forms/button.h"
#include "forms/check_box.h"
#include "forms/label.h"
#include "forms/list_control.h"
#include "forms/tab_strip.h"
#include "forms/text_box.h"

#include <string>

namespace brx::checks {

/// A form on which letters lead to several controls.
class LetterForm : public Form {
public:
    explicit LetterForm(Environment& on)
        : Form(on, {.name = "Letters", .caption = "Letters", .size = {400, 240}}) {}

    std::string events;

    // clang-format off
    Label    Caption {*this, "Caption",  {.place = {10, 10, 80, 15}, .caption = "&Name:", .tab = 1}};
    TextBox  Name    {*this, "Name",     {.place = {100, 10, 80, 23}, .tab = 2}};
    TextBox  Shown   {*this, "Shown",    {.place = {190, 10, 80, 23}, .tab = 3, .text = "x", .display_only = true}};
    ComboBox Choice  {*this, "Choice",   {.place = {280, 10, 80, 23}, .tab = 4}};
    Button   Edit    {*this, "Edit",     {.place = {10, 40, 75, 23}, .caption = "&C. Edit", .tab = 5,
                                          .Click = [this] { events += "Edit "; }}};
    Button   Remove  {*this, "Remove",   {.place = {90, 40, 75, 23}, .caption = "&D. Remove", .tab = 6,
                                          .Click = [this] { events += "Remove "; }}};
    CheckBox Tick    {*this, "Tick",     {.place = {10, 70, 75, 17}, .caption = "Ti&ck", .tab = 7}};
    Button   Close   {*this, "Close",    {.place = {90, 70, 75, 23}, .caption = "&Close", .tab = 8,
                                          .Click = [this] { events += "Close "; }}};
    TabStrip Tabs    {*this, "Tabs",     {.place = {10, 100, 300, 100}, .captions = {"&1 One", "&2 Two"}, .tab = 9}};
    // clang-format on

    void Form_Load() override {
        for (const char* each : {"one", "none"}) Choice.add_line(each);
    }
};

} // namespace brx::checks
