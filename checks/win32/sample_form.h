#pragma once

#include "desk/desk.h"

#include "forms/button.h"
#include "forms/check_box.h"
#include "forms/frame.h"
#include "forms/label.h"
#include "forms/list_control.h"
#include "forms/text_box.h"

#include <functional>

namespace brx::checks {

/// A form with controls of most kinds, nested and anchored. Its button does what the check wants.
class Sample : public Form {
public:
    explicit Sample(Environment& on, bool resizable = false, const char* font = "")
        : Form(on, {.name = "Sample",
                    .caption = "Sample",
                    .size = {301, 201},
                    .resizable = resizable,
                    .font_family = font}) {}

    std::function<void()> on_press;

    // clang-format off
    TextBox  Box   {*this, "Box",    {.place = {11, 11, 101, 23}, .tab = 1, .anchor = Anchor::stretch_width}};
    TextBox  Fixed {*this, "Fixed",  {.place = {112, 11, 51, 23}, .tab = 2, .display_only = true,
                                      .anchor = Anchor::right}};
    Frame    Group {*this, "Group",  {.place = {11, 41, 201, 101}, .caption = "Group", .tab = 3,
                                      .anchor = Anchor::stretch_width | Anchor::stretch_height}};
    Panel    Area  {Group, "Area",   {.place = {7, 17, 101, 71}, .tab = 4,
                                      .anchor = Anchor::right | Anchor::stretch_height}};
    ListBox  List  {Area,  "List",   {.place = {5, 5, 51, 41}, .tab = 5, .anchor = Anchor::bottom}};
    Label    Data  {*this, "Data",   {.place = {11, 150, 61, 15}, .caption = "short", .tab = 6, .mnemonic = false}};
    CheckBox Tick  {*this, "Tick",   {.place = {90, 150, 61, 17}, .caption = "Tick", .tab = 7, .value = 2}};
    Button   Press {*this, "Press",  {.place = {215, 170, 75, 23}, .caption = "Press", .tab = 8,
                                      .anchor = Anchor::right | Anchor::bottom,
                                      .Click = [this] { if (on_press) on_press(); }}};
    // clang-format on
};

/// The font that a window writes with.
inline LOGFONTW font_of(HWND window) {
    LOGFONTW font{};
    GetObjectW(reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0)), sizeof font, &font);
    return font;
}

} // namespace brx::checks
