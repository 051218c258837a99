#include "desk/desk.h"

#include "forms/button.h"
#include "forms/label.h"
#include "forms/tab_strip.h"
#include "forms/text_box.h"

namespace brx::checks {

namespace {

// What a box selects when the focus comes to it.
class FocusTest : public OnWindows {};

class Fields : public Form {
public:
    explicit Fields(Environment& on)
        : Form(on, {.name = "Fields", .caption = "Fields", .size = {300, 200}}) {}

    // clang-format off
    TextBox  Shown  {*this, "Shown",  {.place = {100, 10, 90, 23}, .tab = 1, .text = "shown", .display_only = true}};
    Label    Label1 {*this, "Label1", {.place = {10, 44, 80, 15}, .caption = "&One:", .tab = 2}};
    TextBox  One    {*this, "One",    {.place = {100, 40, 90, 23}, .tab = 3, .text = "alpha"}};
    Label    Label2 {*this, "Label2", {.place = {10, 74, 80, 15}, .caption = "&Both:", .tab = 4}};
    TextBox  Two    {*this, "Two",    {.place = {100, 70, 90, 23}, .tab = 5, .text = "beta"}};
    Label    Label3 {*this, "Label3", {.place = {10, 104, 80, 15}, .caption = "&Both:", .tab = 6}};
    TextBox  Three  {*this, "Three",  {.place = {100, 100, 90, 23}, .tab = 7, .text = "gamma"}};
    Button   Press  {*this, "Press",  {.place = {10, 150, 75, 23}, .caption = "Press", .tab = 8}};
    // clang-format on
};

/// What of the text of the box with the focus is selected.
std::wstring selected_in(const Hands& hands) {
    DWORD from = 0;
    DWORD to = 0;
    SendMessageW(hands.focus(), EM_GETSEL, reinterpret_cast<WPARAM>(&from), reinterpret_cast<LPARAM>(&to));
    return Hands::text(hands.focus()).substr(from, to - from);
}

} // namespace

TEST_F(FocusTest, AFormStartsInTheFirstBoxThatCanBeFilledWithItsTextSelected) {
    Fields form(environment);
    show(form, [&](Hands& hands) {
        hands.form("Fields");
        EXPECT_EQ(hands.focus(), hands.control("Fields", "One"));
        EXPECT_EQ(selected_in(hands), L"alpha");
        hands.keys({VK_SHIFT, VK_TAB});
        EXPECT_EQ(hands.focus(), hands.control("Fields", "Shown"));
        EXPECT_EQ(selected_in(hands), L"shown");
    });
}

TEST_F(FocusTest, TheTextOfABoxIsSelectedByTabAndByItsLetterAlsoWhereTwoShareIt) {
    Fields form(environment);
    show(form, [&](Hands& hands) {
        hands.form("Fields");
        hands.keys({VK_MENU, 'B'});
        EXPECT_EQ(selected_in(hands), L"beta");
        hands.keys({VK_MENU, 'B'});
        EXPECT_EQ(selected_in(hands), L"gamma");
        hands.keys({VK_MENU, 'O'});
        EXPECT_EQ(selected_in(hands), L"alpha");
        hands.key(VK_END);
        EXPECT_EQ(selected_in(hands), L"");
        hands.keys({VK_MENU, 'O'});
        EXPECT_EQ(selected_in(hands), L"alpha") << "The focus is there already.";
        hands.key(VK_TAB);
        EXPECT_EQ(selected_in(hands), L"beta");
        hands.keys({VK_MENU, 'B'});
        hands.type("new");
        EXPECT_EQ(Hands::text(hands.control("Fields", "Three")), L"new");
        hands.run([&] { EXPECT_EQ(form.Three.text(), "new"); });
    });
}

TEST_F(FocusTest, TheMousePlacesTheCaret) {
    Fields form(environment);
    show(form, [&](Hands& hands) {
        hands.form("Fields");
        hands.click(hands.control("Fields", "Two"), 80, 10);
        EXPECT_EQ(selected_in(hands), L"");
        hands.type("x");
        EXPECT_EQ(Hands::text(hands.focus()), L"betax");
        hands.click(hands.control("Fields", "One"), 80, 10);
        EXPECT_EQ(selected_in(hands), L"") << "It was selected when the form opened.";
    });
}

TEST_F(FocusTest, WhatComesWithATabIsSelected) {
    class Tabbed : public Form {
    public:
        explicit Tabbed(Environment& on)
            : Form(on, {.name = "Tabbed", .caption = "Tabbed", .size = {300, 200}}) {}
        TabStrip Tabs{
            *this,
            "Tabs",
            {.place = {0, 0, 300, 150}, .captions = {"&1 One", "&2 Two"}, .tab = 9, .Click = [this] {
                 First.set_visible(Tabs.selected() == 1);
                 Second.set_visible(Tabs.selected() == 2);
             }}};
        TextBox First{*this, "First", {.place = {20, 40, 90, 23}, .tab = 1, .text = "first"}};
        TextBox Second{
            *this, "Second", {.place = {20, 40, 90, 23}, .tab = 2, .text = "second", .visible = false}};
    };
    Tabbed form(environment);
    show(form, [&](Hands& hands) {
        hands.form("Tabbed");
        hands.key(VK_END);
        hands.keys({VK_CONTROL, VK_TAB});
        EXPECT_EQ(hands.focus(), hands.control("Tabbed", "Second"));
        EXPECT_EQ(selected_in(hands), L"second");
        hands.keys({VK_MENU, '1'});
        EXPECT_EQ(hands.focus(), hands.control("Tabbed", "First"));
        EXPECT_EQ(selected_in(hands), L"first");
    });
}

} // namespace brx::checks
