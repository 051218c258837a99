// What a person does to tabs and to what lies on their pages.

#include "rules/page_form.h"
#include "rules/rule.h"

namespace brx::checks {

namespace {

class Tabs : public RuleOf<PageForm> {
protected:
    int selected() {
        EXPECT_EQ(screen().look("Tabs").selected, form().Tabs.selected() - 1);
        return form().Tabs.selected();
    }
};

} // namespace

TEST_F(Tabs, ShowTheirCaptionsAndTheSelectedOne) {
    while_open([&] {
        EXPECT_EQ(person.lines_of("Tabs"), (Lines{"&1 Items", "&2 Times", "&3 More"}));
        EXPECT_EQ(selected(), 1);
        code([&] {
            form().Tabs.select(1);
            form().Tabs.select(2);
        });
        EXPECT_EQ(selected(), 2);
        EXPECT_EQ(told(), "Tab 2. ");
    });
}

TEST_F(Tabs, AClickOnOneSelectsItAndBringsTheFocus) {
    while_open([&] {
        EXPECT_EQ(focused(), "Before");
        EXPECT_TRUE(screen().choose("Tabs", 1));
        EXPECT_EQ(told(), "Tab 2. ");
        EXPECT_EQ(focused(), "Tabs");
        EXPECT_TRUE(person.sees("Day").visible);
        EXPECT_FALSE(person.sees("Name").visible);
        EXPECT_TRUE(screen().choose("Tabs", 1));
        EXPECT_EQ(told(), "") << "It is selected.";
        EXPECT_FALSE(screen().choose("Tabs", 3)) << "There is no such tab.";
    });
}

TEST_F(Tabs, ControlAndTabTurnThemWhereverTheFocusIs) {
    while_open([&] {
        for (const char* each : {"Before", "Tabs", "OK"}) {
            person.goes_to(each);
            for (int times = 0; times < 3; ++times) person.hits(Key::next_tab);
            person.hits(Key::previous_tab);
            EXPECT_EQ(told(), "Tab 2. Tab 3. Tab 1. Tab 3. ");
            EXPECT_EQ(selected(), 3);
            EXPECT_EQ(focused(), each) << "The focus stays where it can.";
            code([&] { form().Tabs.select(1); });
            told();
        }
        person.goes_to("Name");
        person.hits(Key::next_tab);
        EXPECT_EQ(focused(), "Before") << "It was on what went.";
    });
}

TEST_F(Tabs, TheArrowKeysSelectTheNeighbour) {
    while_open([&] {
        person.goes_to("Tabs");
        person.hits(Key::right);
        EXPECT_EQ(selected(), 2);
        person.hits(Key::left);
        person.hits(Key::left);
        EXPECT_EQ(told(), "Tab 2. Tab 1. ");
        EXPECT_EQ(focused(), "Tabs");
    });
}

TEST_F(Tabs, TheAcceleratorOfOneSelectsIt) {
    while_open([&] {
        person.uses_accelerator('2');
        EXPECT_EQ(told(), "Tab 2. ");
        EXPECT_EQ(selected(), 2);
        EXPECT_EQ(focused(), "Before");
        static_cast<void>(screen().accelerator('7'));
        EXPECT_EQ(told(), "");
    });
}

TEST_F(Tabs, OfTheSameAcceleratorTwiceTheNextOneGetsTheFocusAndNeitherIsPressed) {
    while_open([&] {
        code([&] { form().Third.set_visible(true); });
        person.uses_accelerator('3');
        EXPECT_EQ(focused(), "Tabs");
        person.uses_accelerator('3');
        EXPECT_EQ(focused(), "Third");
        EXPECT_EQ(told(), "");
        code([&] { form().Third.set_enabled(false); });
        person.uses_accelerator('3');
        EXPECT_EQ(told(), "Tab 3. ");
    });
}

TEST_F(Tabs, AcceleratorsOfWhatIsHiddenAreDead) {
    while_open([&] {
        static_cast<void>(screen().accelerator('h'));
        EXPECT_EQ(told(), "");
        person.uses_accelerator('g');
        EXPECT_EQ(told(), "Go. ") << "The other one with this letter is on another tab.";
        person.uses_accelerator('2');
        told();
        person.uses_accelerator('g');
        person.uses_accelerator('h');
        EXPECT_EQ(told(), "Give. Hide. ");
        person.goes_to("Before");
        static_cast<void>(screen().accelerator('n'));
        EXPECT_EQ(focused(), "Before") << "The label is on the first tab.";
    });
}

TEST_F(Tabs, DisabledOnesTakeNoInput) {
    while_open([&] {
        code([&] { form().Tabs.set_enabled(false); });
        static_cast<void>(screen().key(Key::next_tab));
        static_cast<void>(screen().accelerator('2'));
        EXPECT_FALSE(screen().choose("Tabs", 1));
        EXPECT_EQ(selected(), 1);
        EXPECT_EQ(told(), "");
    });
}

} // namespace brx::checks
