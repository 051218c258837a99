// Letters that are typed where the focus has no use for them.

#include "rules/letter_form.h"
#include "rules/rule.h"

namespace brx::checks {

namespace {

class Letters : public RuleOf<LetterForm> {};

} // namespace

TEST_F(Letters, DoWhatTheyDoWithAltWhereTheFocusTakesNoCharacters) {
    while_open([&] {
        for (const char* from : {"Close", "Tick"}) {
            person.goes_to(from);
            person.types("d");
            EXPECT_EQ(told(), "Remove ") << from;
            person.goes_to(from);
            person.types("n");
            EXPECT_EQ(focused(), "Name") << from;
        }
        person.goes_to("Close");
        person.types("2");
        EXPECT_EQ(form().Tabs.selected(), 2);
    });
}

TEST_F(Letters, AreABoxesOwnOtherwise) {
    while_open([&] {
        person.types("dc2");
        EXPECT_EQ(person.reads("Name"), "dc2");
        person.hits(Key::tab);
        EXPECT_EQ(focused(), "Shown");
        static_cast<void>(screen().type("dnc2"));
        EXPECT_EQ(focused(), "Shown");
        EXPECT_EQ(told(), "");
        EXPECT_EQ(form().Tabs.selected(), 1);
    });
}

TEST_F(Letters, ThatSeveralShareGoFromOneToTheNextAndPressNone) {
    while_open([&] {
        person.goes_to("Remove");
        for (const char* next : {"Tick", "Close", "Edit", "Tick"}) {
            person.types("c");
            EXPECT_EQ(focused(), next);
        }
        for (const char* next : {"Close", "Edit", "Tick"}) {
            person.uses_accelerator('c');
            EXPECT_EQ(focused(), next);
        }
        EXPECT_EQ(told(), "");
        EXPECT_EQ(form().Tick.value(), 0);
    });
}

} // namespace brx::checks
