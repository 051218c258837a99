// What the keyboard does to a form.

#include "rules/desk_form.h"
#include "rules/rule.h"

namespace brx::checks {

namespace {

class Keyboard : public RuleOf<DeskForm> {};

class PlainForm : public Form {
public:
    explicit PlainForm(Environment& on)
        : Form(on, {.name = "Plain", .caption = "Plain", .size = {100, 50}}) {}
    std::string events;
    Button OK{*this, "OK", {.place = {10, 10, 75, 23}, .caption = "OK", .is_default = true}};
};

class PlainKeyboard : public RuleOf<PlainForm> {};

} // namespace

TEST_F(Keyboard, EnterInATextBoxPressesTheDefaultButton) {
    while_open([&] {
        EXPECT_EQ(focused(), "Name");
        person.hits(Key::enter);
        EXPECT_EQ(told(), "OK ");
    });
}

TEST_F(Keyboard, EnterPressesTheButtonWithTheFocus) {
    while_open([&] {
        person.goes_to("Apply");
        person.hits(Key::enter);
        EXPECT_EQ(told(), "Apply ");
    });
}

TEST_F(Keyboard, EnterDoesNothingWhileTheDefaultButtonIsDisabled) {
    while_open([&] {
        code([&] { form().OK.set_enabled(false); });
        static_cast<void>(screen().key(Key::enter));
        EXPECT_EQ(told(), "");
    });
}

TEST_F(Keyboard, EnterGoesToABoxThatTakesItAndNowhereElse) {
    while_open([&] {
        person.hits(Key::tab);
        person.types("a");
        person.hits(Key::enter);
        EXPECT_EQ(person.reads("Search"), "a");
        EXPECT_EQ(told(), "");
        EXPECT_EQ(form().typed, (std::vector<std::int32_t>{'a', 13}));
    });
}

TEST_F(Keyboard, EscapePressesTheCancelButtonWhileItCanBePressed) {
    while_open([&] {
        person.hits(Key::escape);
        EXPECT_EQ(told(), "Cancel ");
        code([&] { form().Cancel.set_enabled(false); });
        static_cast<void>(screen().key(Key::escape));
        EXPECT_EQ(told(), "");
        person.is_at("Desk");
    });
}

TEST_F(PlainKeyboard, EscapeDoesNothingWhereThereIsNoCancelButton) {
    while_open([&] {
        static_cast<void>(screen().key(Key::escape));
        person.is_at("Plain");
    });
}

TEST_F(Keyboard, TabGoesThroughTheControlsInTabOrderAndBack) {
    while_open([&] {
        for (const char* each : {"Name", "Search", "ReadOnly", "Tick", "Choice", "Apply", "OK", "Cancel"}) {
            EXPECT_EQ(focused(), each);
            EXPECT_EQ(form().focused() ? form().focused()->name() : "", each);
            person.hits(Key::tab);
        }
        EXPECT_EQ(focused(), "Name");
        person.hits(Key::back_tab);
        EXPECT_EQ(focused(), "Cancel");
    });
}

TEST_F(Keyboard, TheAcceleratorOfALabelMovesTheFocusToTheControlThatItNames) {
    while_open([&] {
        person.hits(Key::tab);
        person.uses_accelerator('n');
        EXPECT_EQ(focused(), "Name");
    });
}

TEST_F(Keyboard, TheAcceleratorOfAButtonPressesItAndThatOfACheckBoxTicksIt) {
    while_open([&] {
        person.uses_accelerator('a');
        EXPECT_EQ(told(), "Apply ");
        person.uses_accelerator('t');
        EXPECT_EQ(person.sees("Tick").selected, 1);
        EXPECT_EQ(form().Tick.value(), 1);
    });
}

TEST_F(Keyboard, AnAmpersandInDataIsNoAccelerator) {
    while_open([&] {
        static_cast<void>(screen().accelerator('z'));
        EXPECT_EQ(focused(), "Name");
    });
}

TEST_F(Keyboard, TheBlankPressesTheButtonWithTheFocusAndTicksACheckBox) {
    while_open([&] {
        person.goes_to("Apply");
        person.hits(Key::space);
        EXPECT_EQ(told(), "Apply ");
        person.goes_to("Tick");
        for (const int value : {1, 0}) {
            person.hits(Key::space);
            EXPECT_EQ(person.sees("Tick").selected, value);
            EXPECT_EQ(form().Tick.value(), value);
        }
    });
}

TEST_F(Keyboard, WhatIsDisabledOrHiddenCannotBePressed) {
    while_open([&] {
        code([&] {
            form().Apply.set_enabled(false);
            form().OK.set_visible(false);
            form().Group.set_enabled(false);
        });
        for (const char* each : {"Apply", "OK", "Tick"}) EXPECT_FALSE(screen().press(each)) << each;
        code([&] {
            form().Group.set_enabled(true);
            form().Group.set_visible(false);
        });
        EXPECT_FALSE(screen().toggle("Tick")) << "Its frame is hidden.";
        EXPECT_EQ(told(), "");
    });
}

} // namespace brx::checks
