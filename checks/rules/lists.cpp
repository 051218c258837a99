// What a person does to list boxes and drop-down lists, and what becomes of it.

#include "rules/list_form.h"
#include "rules/rule.h"

namespace brx::checks {

namespace {

class Lists : public RuleOf<ListForm> {
protected:
    Lists() {
        form().on_load = [this] {
            add_three(form().Box);
            add_three(form().Combo);
        };
    }
};

} // namespace

TEST_F(Lists, APressOnTheSelectedLineIsAClickInAListBoxOnly) {
    while_open([&] {
        for (int times = 0; times < 2; ++times) {
            person.picks("Box", "two");
            EXPECT_EQ(told(), "Click1 ");
        }
        person.picks("Combo", "two");
        EXPECT_EQ(told(), "Combo1 ");
        person.picks("Combo", "two");
        EXPECT_EQ(told(), "") << "It is selected.";
        EXPECT_FALSE(screen().choose("Box", 3));
        EXPECT_FALSE(screen().choose("Combo", 3));
    });
}

TEST_F(Lists, CodeThatSelectsAnotherLineIsAClickToo) {
    while_open([&] {
        code([&] { form().Box.select(2); });
        EXPECT_EQ(told(), "Click2 ");
        code([&] {
            form().Box.select(2);
            form().Box.select(-1);
        });
        EXPECT_EQ(told(), "");
        EXPECT_EQ(person.sees("Box").selected, -1);
    });
}

TEST_F(Lists, ADoubleClickOnALineComesAfterItsClick) {
    while_open([&] {
        for (int times = 0; times < 2; ++times) {
            person.double_clicks("Box", "one");
            EXPECT_EQ(told(), "Click0 DblClick ");
        }
        EXPECT_FALSE(screen().double_click("Box", 3)) << "There is no such line.";
        EXPECT_EQ(told(), "");
    });
}

TEST_F(Lists, TheSecondClickMissesWhatTheFirstOneTookAway) {
    for (const Story& take_away :
         {Story([&] { form().unload(); }), Story([&] { form().Box.set_enabled(false); }), Story([&] {
              form().show_message({"Hello", 0, "Greeting"});
          })}) {
        form().on_click = take_away;
        while_open([&] {
            static_cast<void>(screen().double_click("Box", 0));
            EXPECT_EQ(told(), "Click0 ");
        });
        EXPECT_EQ(told(), "");
    }
}

TEST_F(Lists, TheKeysOfAListBoxMoveFromLineToLine) {
    while_open([&] {
        person.hits(Key::up);
        EXPECT_EQ(told(), "Click0 ") << "The first key comes to the first line.";
        person.hits(Key::up);
        EXPECT_EQ(told(), "") << "It stays there.";
        person.hits(Key::down);
        person.hits(Key::end);
        person.hits(Key::home);
        EXPECT_EQ(told(), "Click1 Click2 Click0 ");
        person.hits(Key::enter);
        EXPECT_EQ(told(), "Press ") << "Enter is the default button's.";
    });
}

TEST_F(Lists, ACharacterChoosesTheNextLineOfAListBoxThatBeginsWithIt) {
    form().on_load = [&] {
        for (const char* each : {"apple", "pear", "plum", " blank", "\xC3\x84pfel"})
            form().Box.add_line(each);
    };
    while_open([&] {
        for (const auto& [typed, line] : {std::pair{"p", 1}, {"p", 2}, {"p", 1}, {"a", 0}}) {
            person.types(typed);
            EXPECT_EQ(told(), "Click" + std::to_string(line) + " ") << "Round the end.";
        }
        static_cast<void>(screen().type("x"));
        person.hits(Key::space);
        EXPECT_EQ(person.reads("Box"), "apple") << "Nothing begins so, and something is selected.";
        EXPECT_EQ(told(), "");
    });
}

TEST_F(Lists, TheBlankSelectsTheFirstLineWhereNoneIsSelected) {
    while_open([&] {
        person.hits(Key::space);
        EXPECT_EQ(told(), "Click0 ");
    });
}

TEST_F(Lists, AListFilledAnewWithAsManyLinesShowsTheNewOnes) {
    while_open([&] {
        code([&] {
            for (ListControl* list :
                 {static_cast<ListControl*>(&form().Box), static_cast<ListControl*>(&form().Combo)}) {
                list->clear();
                for (const char* each : {"four", "five", "six"}) list->add_line(each);
                list->select(2);
            }
        });
        for (const char* list : {"Box", "Combo"}) {
            EXPECT_EQ(person.lines_of(list), (Lines{"four", "five", "six"}));
            EXPECT_EQ(person.reads(list), "six");
        }
        EXPECT_EQ(told(), "Click2 Combo2 ");
    });
}

TEST_F(Lists, ALineInsertedAboveMovesTheSelectionAlong) {
    while_open([&] {
        person.picks("Box", "two");
        told();
        code([&] { form().Box.insert_line(0, "zero"); });
        EXPECT_EQ(person.lines_of("Box"), (Lines{"zero", "one", "two", "three"}));
        EXPECT_EQ(person.sees("Box").selected, 2);
        EXPECT_EQ(told(), "");
    });
}

TEST_F(Lists, TheArrowsChooseInADropDownList) {
    while_open([&] {
        person.goes_to("Combo");
        person.hits(Key::down);
        person.hits(Key::down);
        EXPECT_EQ(person.reads("Combo"), "two");
        EXPECT_EQ(told(), "Combo0 Combo1 ");
    });
}

TEST_F(Lists, ADisabledOneTakesNoInput) {
    while_open([&] {
        code([&] {
            form().Box.set_enabled(false);
            form().Combo.set_enabled(false);
        });
        EXPECT_FALSE(screen().choose("Box", 1));
        EXPECT_FALSE(screen().double_click("Box", 1));
        EXPECT_FALSE(screen().choose("Combo", 1));
        EXPECT_EQ(told(), "");
    });
}

} // namespace brx::checks
