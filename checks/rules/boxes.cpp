// What a person types into boxes, and what becomes of it.

#include "rules/box_form.h"
#include "rules/rule.h"

namespace brx::checks {

namespace {

class Boxes : public RuleOf<BoxForm> {
protected:
    Boxes() { form().initial = ""; }
    std::string reads() {
        EXPECT_EQ(person.reads("Box"), form().Box.text());
        return form().Box.text();
    }
};

} // namespace

TEST_F(Boxes, ATypedCharacterGoesDownPressChangeUp) {
    while_open([&] {
        person.types("a");
        EXPECT_EQ(reads(), "a");
        EXPECT_EQ(told(), "Down65 Press97 Change Up65 ");
    });
}

TEST_F(Boxes, AHandlerDiscardsOrReplacesTheTypedCharacter) {
    form().on_key_press = [](std::int32_t& key) {
        if (key == 'b') key = 0;
        if (key == 'c') key = 'C';
    };
    while_open([&] {
        person.types("abcd");
        EXPECT_EQ(reads(), "aCd");
    });
}

TEST_F(Boxes, PastingChangesTheTextWithoutKeyPressOfItsCharacters) {
    while_open([&] {
        person.pastes("pasted \xE4\xB8\xAD");
        EXPECT_EQ(reads(), "pasted \xE4\xB8\xAD");
        EXPECT_EQ(told(), "Change ");
    });
}

TEST_F(Boxes, PastingByKeyReachesNoKeyPressAndBackspaceDoes) {
    form().on_key_press = [](std::int32_t& key) { key = 0; };
    while_open([&] {
        person.pastes_by_key("12x");
        EXPECT_EQ(reads(), "12x");
        EXPECT_EQ(told().find("Press"), std::string::npos);
        person.hits(Key::backspace);
        EXPECT_EQ(reads(), "12x");
        EXPECT_NE(told().find("Press8 "), std::string::npos);
    });
}

TEST_F(Boxes, TextSetByCodeIsShownAndToldWhereItIsAnother) {
    while_open([&] {
        for (const char* expected : {"Change ", ""}) {
            code([&] { form().Box.set_text("by code"); });
            EXPECT_EQ(reads(), "by code");
            EXPECT_EQ(told(), expected);
        }
    });
}

TEST_F(Boxes, AHandlerCorrectsWhatIsTypedAndTheCaretStays) {
    form().on_change = [&] {
        std::string upper = form().Box.text();
        for (char& each : upper)
            if (each >= 'a' && each <= 'z') each = static_cast<char>(each - 'a' + 'A');
        form().Box.set_text(upper);
    };
    while_open([&] {
        person.types("abc");
        EXPECT_EQ(reads(), "ABC");
    });
}

TEST_F(Boxes, ADisplayOnlyBoxTakesTheFocusButNoText) {
    while_open([&] {
        person.hits(Key::tab);
        EXPECT_EQ(focused(), "Fixed");
        static_cast<void>(screen().type("a"));
        static_cast<void>(screen().key(Key::erase));
        EXPECT_FALSE(screen().paste("pasted"));
        EXPECT_EQ(person.reads("Fixed"), "fixed");
        EXPECT_EQ(told(), "");
        code([&] { form().Fixed.set_text("other"); });
        EXPECT_EQ(person.reads("Fixed"), "other");
        EXPECT_EQ(told(), "FixedChange ");
    });
}

TEST_F(Boxes, ABoxThatAHandlerDisablesPassesTheFocusOn) {
    form().on_change = [&] {
        form().Box.set_enabled(false);
        form().Fixed.set_visible(false);
    };
    while_open([&] {
        person.types("a");
        EXPECT_EQ(focused(), "Other");
        EXPECT_FALSE(person.sees("Box").enabled);
        EXPECT_FALSE(person.sees("Fixed").visible);
    });
}

TEST_F(Boxes, AClickIntoABoxThatSelectsItsTextLeavesItSelectedOnce) {
    while_open([&] {
        person.goes_to("Other");
        person.goes_to("Other");
        person.types("x");
        EXPECT_EQ(person.reads("Other"), "other textx") << "The second click places the caret.";
        person.hits(Key::tab);
        person.goes_to("Other");
        person.types("y");
        EXPECT_EQ(person.reads("Other"), "y");
    });
}

TEST_F(Boxes, WhatTakesNoInputKeepsItsText) {
    while_open([&] {
        code([&] { form().Box.set_enabled(false); });
        EXPECT_FALSE(screen().focus("Box"));
        code([&] { form().Box.set_text("set"); });
        EXPECT_EQ(reads(), "set");
    });
}

} // namespace brx::checks
