// Where the focus is, and which text it selects: what is typed then tells.

#include "rules/rule.h"

#include "forms/button.h"
#include "forms/check_box.h"
#include "forms/label.h"
#include "forms/tab_strip.h"
#include "forms/text_box.h"

namespace brx::checks {

namespace {

class FieldForm : public Form {
public:
    explicit FieldForm(Environment& on)
        : Form(on, {.name = "Fields", .caption = "Fields", .size = {300, 200}}) {}

    std::string events;
    std::function<void()> on_load = [] {};
    std::function<void()> on_press = [] {};

    // clang-format off
    TextBox  Shown  {*this, "Shown",  {.place = {100, 10, 90, 23}, .tab = 1, .text = "shown", .display_only = true}};
    Label    Label1 {*this, "Label1", {.place = {10, 44, 80, 15}, .caption = "&One:", .tab = 2}};
    TextBox  One    {*this, "One",    {.place = {100, 40, 90, 23}, .tab = 3, .text = "alpha",
                                       .GotFocus = [this] { events += "Got "; }, .LostFocus = [this] { events += "Lost "; }}};
    Label    Label2 {*this, "Label2", {.place = {10, 74, 80, 15}, .caption = "&Both:", .tab = 4}};
    TextBox  Two    {*this, "Two",    {.place = {100, 70, 90, 23}, .tab = 5, .text = "beta"}};
    Label    Label3 {*this, "Label3", {.place = {10, 104, 80, 15}, .caption = "&Both:", .tab = 6}};
    TextBox  Three  {*this, "Three",  {.place = {100, 100, 90, 23}, .tab = 7, .text = "gamma"}};
    CheckBox Tick   {*this, "Tick",   {.place = {100, 130, 90, 17}, .caption = "Tick", .tab = 8}};
    Button   Press  {*this, "Press",  {.place = {10, 150, 75, 23}, .caption = "Press", .tab = 9,
                                       .Click = [this] { on_press(); }}};
    Button   Leave  {*this, "Leave",  {.place = {90, 150, 75, 23}, .caption = "Leave", .tab = 10}};
    // clang-format on

    void Form_Load() override {
        on_load();
        events.clear();
    }
};

class FocusOf : public RuleOf<FieldForm> {
protected:
    /// What becomes of the box's text when "x" is typed.
    std::string typed_into(const char* box) {
        EXPECT_EQ(focused(), box);
        person.types("x");
        return person.reads(box);
    }
};

class TabbedForm : public Form {
public:
    explicit TabbedForm(Environment& on)
        : Form(on, {.name = "Tabbed", .caption = "Tabbed", .size = {300, 200}}) {}
    std::string events;
    // clang-format off
    TabStrip Tabs  {*this, "Tabs",   {.place = {0, 0, 300, 150}, .captions = {"&1 One", "&2 Two"}, .tab = 9, .Click = [this] {
                                          First.set_visible(Tabs.selected() == 1);
                                          Second.set_visible(Tabs.selected() == 2);
                                      }}};
    TextBox  First {*this, "First",  {.place = {20, 40, 90, 23}, .tab = 1, .text = "first"}};
    TextBox  Second{*this, "Second", {.place = {20, 40, 90, 23}, .tab = 2, .text = "second", .visible = false}};
    // clang-format on
};

class FocusOnTabs : public RuleOf<TabbedForm> {};

} // namespace

TEST_F(FocusOf, AFormStartsInTheFirstBoxThatCanBeFilledWithItsTextSelected) {
    while_open([&] { EXPECT_EQ(typed_into("One"), "x"); });
    form().on_load = [&] { form().One.set_enabled(false); };
    while_open([&] { EXPECT_EQ(typed_into("Two"), "x"); });
    form().on_load = [&] { form().Three.set_focus(); };
    while_open([&] { EXPECT_EQ(typed_into("Three"), "x"); });
    form().on_load = [&] { form().Tick.set_focus(); };
    while_open([&] { EXPECT_EQ(focused(), "Tick"); });
    form().on_load = [] {};
    while_open([&] { EXPECT_EQ(focused(), "One") << "Wherever it was the last time."; });
}

TEST_F(FocusOf, ABoxThatOnlyDisplaysIsReachedByTabAndNeverWrittenInto) {
    while_open([&] {
        person.hits(Key::back_tab);
        EXPECT_EQ(focused(), "Shown");
        static_cast<void>(screen().type("x"));
        EXPECT_EQ(person.reads("Shown"), "shown");
    });
}

TEST_F(FocusOf, TheTextOfABoxIsSelectedByTabAndByItsLetterAlsoWhereTwoShareIt) {
    while_open([&] {
        person.uses_accelerator('b');
        EXPECT_EQ(focused(), "Two");
        person.uses_accelerator('b');
        EXPECT_EQ(typed_into("Three"), "x");
        person.uses_accelerator('o');
        EXPECT_EQ(focused(), "One");
        person.hits(Key::end);
        EXPECT_EQ(typed_into("One"), "alphax");
        person.uses_accelerator('o');
        EXPECT_EQ(typed_into("One"), "x") << "The focus was there already.";
        person.hits(Key::tab);
        EXPECT_EQ(typed_into("Two"), "x");
    });
}

TEST_F(FocusOf, TheMousePlacesTheCaret) {
    while_open([&] {
        person.goes_to("Two");
        EXPECT_EQ(typed_into("Two"), "betax");
        person.goes_to("One");
        EXPECT_EQ(typed_into("One"), "alphax") << "It was selected when the form opened.";
    });
}

TEST_F(FocusOf, MovesFireLostAndGotFocus) {
    while_open([&] {
        EXPECT_EQ(told(), "Got ") << "As the form opened.";
        person.goes_to("Tick");
        EXPECT_EQ(told(), "Lost ");
        person.goes_to("One");
        person.goes_to("One");
        EXPECT_EQ(told(), "Got ");
    });
}

TEST_F(FocusOf, MovesOnFromAControlThatIsDisabled) {
    form().on_press = [&] { form().Press.set_enabled(false); };
    while_open([&] {
        person.presses("Press");
        EXPECT_EQ(focused(), "Leave");
        EXPECT_FALSE(screen().focus("Press"));
        code([&] { form().Leave.set_enabled(false); });
        EXPECT_EQ(focused(), "Shown") << "Behind the last one the first follows.";
    });
}

TEST_F(FocusOf, IsNowhereWhereNothingCanHaveIt) {
    form().on_press = [&] {
        for (Control* each : form().controls()) each->set_enabled(false);
    };
    while_open([&] {
        person.presses("Press");
        EXPECT_EQ(focused(), "none");
        EXPECT_EQ(form().focused(), nullptr);
    });
}

TEST_F(FocusOnTabs, WhatComesWithATabIsSelected) {
    while_open([&] {
        person.hits(Key::end);
        person.hits(Key::next_tab);
        EXPECT_EQ(focused(), "Second");
        person.types("x");
        EXPECT_EQ(person.reads("Second"), "x");
        person.uses_accelerator('1');
        EXPECT_EQ(focused(), "First");
        person.types("y");
        EXPECT_EQ(person.reads("First"), "y");
    });
}

} // namespace brx::checks
