#pragma once

#include "forms/button.h"
#include "forms/check_box.h"
#include "forms/frame.h"
#include "forms/label.h"
#include "forms/list_control.h"
#include "forms/text_box.h"

#include <cstdint>
#include <string>
#include <vector>

namespace brx::checks {

/// A form with one of everything that the keyboard reaches, which notes what was pressed.
class DeskForm : public Form {
public:
    explicit DeskForm(Environment& on) : Form(on, {.name = "Desk", .caption = "Desk", .size = {400, 200}}) {}

    std::string events;
    std::vector<std::int32_t> typed;

    // clang-format off
    Label   Caption  {*this, "Caption",   {.place = {10, 10, 80, 15}, .caption = "&Name:", .tab = 1}};
    TextBox Name     {*this, "Name",      {.place = {100, 10, 80, 23}, .tab = 2}};
    TextBox Search   {*this, "Search",    {.place = {100, 40, 80, 23}, .tab = 3, .takes_enter = true,
                                           .KeyPress = [this](std::int32_t& key) { typed.push_back(key); }}};
    Label   Data     {*this, "Data",      {.place = {10, 70, 80, 15}, .caption = "&Zoo", .tab = 4, .mnemonic = false}};
    TextBox ReadOnly {*this, "ReadOnly",  {.place = {100, 70, 80, 23}, .tab = 5, .text = "x", .display_only = true}};
    Frame   Group    {*this, "Group",     {.place = {200, 10, 180, 100}, .caption = "Group", .tab = 6}};
    CheckBox Tick    {Group, "Tick",      {.place = {10, 20, 80, 17}, .caption = "&Tick", .tab = 7}};
    TextBox Hidden   {Group, "Hidden",    {.place = {10, 40, 80, 23}, .tab = 8, .visible = false}};
    TextBox Disabled {Group, "Disabled",  {.place = {10, 65, 80, 23}, .tab = 9, .enabled = false}};
    ComboBox Choice  {*this, "Choice",    {.place = {10, 120, 100, 23}, .tab = 10}};
    Button  Apply    {*this, "Apply",     {.place = {130, 160, 75, 23}, .caption = "&Apply", .tab = 11,
                                           .Click = [this] { events += "Apply "; }}};
    Button  OK       {*this, "OK",        {.place = {210, 160, 75, 23}, .caption = "OK", .tab = 12, .is_default = true,
                                           .Click = [this] { events += "OK "; }}};
    Button  Cancel   {*this, "Cancel",    {.place = {290, 160, 75, 23}, .caption = "Cancel", .tab = 13,
                                           .is_cancel = true, .Click = [this] { events += "Cancel "; }}};
    // clang-format on

    void Form_Load() override {
        for (const char* each : {"one", "two", "three"}) Choice.add_line(each);
        Choice.select(0);
    }
};

} // namespace brx::checks
