// What a person does to a table, and what becomes of it.

#include "rules/page_form.h"
#include "rules/rule.h"

namespace brx::checks {

namespace {

class Tables : public RuleOf<PageForm> {
protected:
    /// With so many rows and the focus in the table.
    void with_rows(int count, const Story& story) {
        form().on_load = [this, count] { form().add_rows(count); };
        while_open([&] {
            person.goes_to("List");
            story();
        });
    }
    /// Of the row that is selected, counted from 1; 0 for none.
    int selected() {
        EXPECT_EQ(screen().look("List").selected, form().List.selected() - 1);
        return form().List.selected();
    }
    int after(Key key) {
        person.hits(key);
        return selected();
    }
};

} // namespace

TEST_F(Tables, AClickSelectsARowAndBringsTheFocus) {
    with_rows(3, [&] {
        person.goes_to("Name");
        EXPECT_TRUE(screen().choose("List", 1));
        EXPECT_EQ(selected(), 2);
        EXPECT_EQ(focused(), "List");
        EXPECT_FALSE(screen().choose("List", 3)) << "There is no such row.";
        EXPECT_EQ(told(), "");
    });
}

TEST_F(Tables, ADoubleClickTellsSoOnItsRow) {
    with_rows(3, [&] {
        EXPECT_TRUE(screen().double_click("List", 1));
        EXPECT_EQ(told(), "Twice 2. ");
        EXPECT_FALSE(screen().double_click("List", 3));
        EXPECT_EQ(told(), "");
    });
}

TEST_F(Tables, TheKeysMoveTheSelection) {
    with_rows(60, [&] {
        EXPECT_EQ(after(Key::down), 1) << "The first key comes to the first row.";
        EXPECT_EQ(after(Key::down), 2);
        EXPECT_EQ(after(Key::down), 3);
        EXPECT_EQ(after(Key::up), 2);
        EXPECT_EQ(after(Key::end), 60);
        EXPECT_EQ(after(Key::home), 1);
        EXPECT_EQ(after(Key::up), 1);
    });
}

TEST_F(Tables, TheKeysGoOnInThePlaceOfARemovedRow) {
    with_rows(9, [&] {
        code([&] {
            form().List.select(5);
            form().List.remove(5);
        });
        EXPECT_EQ(selected(), 0);
        EXPECT_EQ(after(Key::down), 5);
        EXPECT_EQ(after(Key::down), 6);
        code([&] { form().List.select(0); });
        EXPECT_EQ(after(Key::end), 8);
    });
}

TEST_F(Tables, TypingGoesToTheRowThatBeginsSo) {
    form().on_load = [&] {
        for (const char* each : {"Apple", "Pear", "Plum", "\xC3\x84pfel"}) form().List.add("", each);
    };
    while_open([&] {
        person.goes_to("List");
        person.types("pl");
        EXPECT_EQ(selected(), 3);
    });
}

TEST_F(Tables, TheBlankSelectsWhereNoRowIsSelectedAndNeverEndsASelection) {
    with_rows(9, [&] {
        EXPECT_EQ(after(Key::space), 1);
        EXPECT_EQ(after(Key::space), 1);
        code([&] {
            form().List.select(5);
            form().List.remove(5);
        });
        EXPECT_EQ(after(Key::space), 5);
    });
}

TEST_F(Tables, EnterOpensTheSelectedRowAndPressesTheDefaultButtonElsewhere) {
    with_rows(3, [&] {
        person.hits(Key::enter);
        EXPECT_EQ(told(), "OK. ") << "No row is selected.";
        EXPECT_TRUE(screen().choose("List", 1));
        person.hits(Key::enter);
        EXPECT_EQ(told(), "Twice 2. ");
        EXPECT_EQ(selected(), 2);
        person.goes_to("Name");
        person.hits(Key::enter);
        EXPECT_EQ(told(), "OK. ") << "The focus is elsewhere.";
    });
}

TEST_F(Tables, EnterOpensARowOnceAlsoWhereThatBringsAnotherForm) {
    PageForm inner(environment(), "Inner");
    form().on_twice = [&] { inner.show_modal(); };
    with_rows(3, [&] {
        person.hits(Key::down);
        person.hits(Key::enter);
        person.is_at("Inner");
        EXPECT_EQ(inner.events, "") << "Its default button has not been pressed.";
        person.closes_the_window();
        person.is_at("Pages");
        EXPECT_EQ(told(), "Twice 1. ");
    });
}

TEST_F(Tables, RowsComeAndGoAndTheSelectionStaysWithItsRow) {
    with_rows(3, [&] {
        EXPECT_TRUE(screen().choose("List", 1));
        code([&] { form().List.remove(1); });
        EXPECT_EQ(selected(), 1);
        EXPECT_EQ(person.lines_of("List"), (Lines{"Row 2 | 2 | ", "Row 3 | 3 | "}));
        code([&] { form().List.remove(1); });
        EXPECT_EQ(selected(), 0);
    });
}

TEST_F(Tables, ADisabledOneTakesNoInput) {
    with_rows(3, [&] {
        code([&] { form().First.set_enabled(false); });
        EXPECT_FALSE(screen().choose("List", 1));
        EXPECT_FALSE(screen().double_click("List", 1));
        EXPECT_EQ(selected(), 0);
        EXPECT_EQ(told(), "");
    });
}

} // namespace brx::checks
