#include "one_page.h"

using namespace brx;
using namespace brx::checks;

namespace {

struct ListViews : testing::Test, OnePage {
    ListView& list = form.list;

    void add_three() {
        for (const char* each : {"Item", "Value"}) list.add_column(each, 80);
        for (const char* each : {"a", "b", "c"}) list.add(each, "Row " + std::string(each));
    }
    using Positions = std::vector<int>;
};

} // namespace

TEST_F(ListViews, RemovingTheSelectedRowOrOneAboveItIsAnotherSelection) {
    while_open([&] {
        add_three();
        list.select(2);
        StandIn window(list);
        form.repaint();
        window.seen = Aspect::none;
        list.remove(3);
        form.repaint();
        EXPECT_FALSE(has(window.seen, Aspect::selection));
        list.remove(1);
        form.repaint();
        EXPECT_TRUE(has(window.seen, Aspect::selection));
        EXPECT_EQ(list.selected(), 1);
    });
}

TEST_F(ListViews, RowsAreFoundByTheirPositionAndByTheirKey) {
    while_open([&] {
        add_three();
        EXPECT_EQ(list.count(), 3);
        EXPECT_EQ(list.row(1).text(), "Row a");
        EXPECT_EQ(&list.row("c"), &list.row(3));
        EXPECT_EQ(list.row(2).key(), "b");
        EXPECT_EQ(list.find("c"), &list.row(3));
        EXPECT_EQ(list.find("B"), nullptr);
        EXPECT_EQ(number_of_error([&] { list.row(0); }), 35600);
        EXPECT_EQ(number_of_error([&] { list.row(4); }), 35600);
        EXPECT_EQ(number_of_error([&] { list.row("B"); }), 35601) << "Keys are compared exactly.";
        EXPECT_EQ(number_of_error([&] { list.row(""); }), 35601);
        EXPECT_EQ(number_of_error([&] { list.add("b", "again"); }), 35602);
        EXPECT_EQ(list.count(), 3);
        list.add("", "x");
        list.add("", "y");
        EXPECT_EQ(list.count(), 5) << "Rows without a key are as many as there are.";
        EXPECT_EQ(list.selected(), 0) << "Adding selects nothing.";
    });
}

TEST_F(ListViews, CellsAreEmptyUntilTheyAreSetAndExistForEachColumn) {
    while_open([&] {
        EXPECT_EQ(list.add("plain", "Plain").text(), "Plain") << "A row has its own text without columns.";
        EXPECT_EQ(marked_rows(list.read().rows), Notes{"Plain"});
        EXPECT_EQ(number_of_error([&] { list.row(1).set_text(1, "x"); }), 35600);
        list.clear();
        add_three();
        ListRow& row = list.row("b");
        EXPECT_EQ(row.text(1), "");
        EXPECT_EQ(row.look(1), CellLook{});
        EXPECT_FALSE(row.look(1).bold);
        EXPECT_EQ(row.look(1).fore_color, color::window_text);
        row.set_text(1, "7");
        row.set_look(1, {.bold = true, .fore_color = color::red});
        row.set_text("New");
        EXPECT_EQ(row.text(1), "7");
        EXPECT_EQ(row.text(0), "New");
        EXPECT_EQ(row.look(1), (CellLook{.bold = true, .fore_color = color::red}));
        EXPECT_TRUE(row.reads(1, "7"));
        EXPECT_FALSE(row.reads(1, ""));
        EXPECT_FALSE(row.reads(2, "")) << "There is no such column.";
        EXPECT_EQ(number_of_error([&] { row.text(2); }), 35600);
        EXPECT_EQ(number_of_error([&] { row.text(-1); }), 35600);
        EXPECT_EQ(number_of_error([&] { row.set_text(2, "x"); }), 35600);
        EXPECT_EQ(number_of_error([&] { row.look(2); }), 35600);
        EXPECT_EQ(number_of_error([&] { row.set_look(2, {}); }), 35600);
        row.set_tag(42);
        EXPECT_EQ(list.row(2).tag(), 42);
        EXPECT_EQ(list.row(1).tag(), 0);
        EXPECT_EQ(marked_rows(list.read().rows), (Notes{"Row a | ", "New | *red:7*", "Row c | "}));
        list.add_column("State", 10);
        EXPECT_EQ(row.text(2), "");
    });
}

TEST_F(ListViews, RemovingTheSelectedRowSelectsNone) {
    while_open([&] {
        add_three();
        list.select(2);
        list.remove(3);
        EXPECT_EQ(list.selected(), 2);
        list.remove(1);
        EXPECT_EQ(list.selected(), 1) << "It is the same row.";
        EXPECT_EQ(list.row(1).key(), "b");
        list.remove(1);
        EXPECT_EQ(list.selected(), 0);
        EXPECT_EQ(number_of_error([&] { list.remove(1); }), 35600);
        EXPECT_EQ(number_of_error([&] { list.row("b"); }), 35601);
        list.add("b", "B again");
        list.select(1);
        list.clear();
        EXPECT_EQ(list.count(), 0);
        EXPECT_EQ(list.selected(), 0);
        EXPECT_EQ(list.columns().size(), 2U) << "The columns stay.";
        list.add("b", "and again");
        EXPECT_EQ(form.notes, Notes{});
    });
}

TEST_F(ListViews, WhatIsReadAgainReplacesWhatWasRead) {
    while_open([&] {
        add_three();
        Reading seen = list.read();
        list.select(2);
        list.read(Aspect::lines, seen);
        EXPECT_EQ(seen.columns, (Notes{"Item", "Value"}));
        EXPECT_EQ(seen.selected, 1);
        EXPECT_EQ(seen.rows.size(), 3U);
        list.select(3);
        list.read(Aspect::selection, seen);
        EXPECT_EQ(seen.selected, 2);
        EXPECT_EQ(seen.text, "Row c");
    });
}

TEST_F(ListViews, SelectingTakesARowThatIsThereOrNone) {
    while_open([&] {
        add_three();
        list.select(3);
        EXPECT_EQ(list.selected(), 3);
        EXPECT_EQ(number_of_error([&] { list.select(4); }), 35600);
        EXPECT_EQ(number_of_error([&] { list.select(-1); }), 35600);
        EXPECT_EQ(list.selected(), 3);
        list.select(0);
        EXPECT_EQ(list.selected(), 0);
        EXPECT_EQ(form.notes, Notes{}) << "Nothing fires.";
    });
}

TEST_F(ListViews, TheKeyboardStartsFromTheRowThatWasSelected) {
    while_open([&] {
        for (int i = 1; i <= 6; ++i) list.add("", "Row " + std::to_string(i));
        EXPECT_EQ(list.focus_row(), 0);
        EXPECT_EQ(row_from_keyboard(list, 1), 1);
        EXPECT_EQ(row_from_keyboard(list, -1), 1);
        list.select(4);
        EXPECT_EQ(row_from_keyboard(list, 1), 5);
        EXPECT_EQ(row_from_keyboard(list, -9), 1);
        EXPECT_EQ(row_from_keyboard(list, 9), 6);
        list.select(0);
        EXPECT_EQ(list.focus_row(), 4);
        EXPECT_EQ(row_from_keyboard(list, 1), 4);
        list.remove(2);
        EXPECT_EQ(list.focus_row(), 3);
        list.remove(3);
        EXPECT_EQ(list.focus_row(), 3) << "The row in its place.";
        list.select(4);
        list.remove(4);
        EXPECT_EQ(list.focus_row(), 3) << "It was the last one.";
        list.clear();
        EXPECT_EQ(list.focus_row(), 0);
        for (const char* each : {"one", "two", "three"}) list.add("", each);
        list.select(2);
        list.remove(3);
        EXPECT_EQ(list.focus_row(), 2) << "It became the last one.";
    });
}

TEST_F(ListViews, TypingFindsTheNextRowThatBeginsSoRoundTheEnd) {
    while_open([&] {
        for (const char* each : {"Apple", "Pear", "Plum", "apricot"}) list.add("", each);
        EXPECT_EQ(row_beginning_with(list, "p", 1), 2);
        EXPECT_EQ(row_beginning_with(list, "P", 3), 3);
        EXPECT_EQ(row_beginning_with(list, "ap", 2), 4) << "Whatever the case.";
        EXPECT_EQ(row_beginning_with(list, "app", 3), 1);
        EXPECT_EQ(row_beginning_with(list, "lum", 1), 0);
        EXPECT_EQ(row_beginning_with(list, "a", 5), 1);
        EXPECT_EQ(row_beginning_with(list, "p", 0), 2) << "No row was selected.";
        list.clear();
        EXPECT_EQ(row_beginning_with(list, "a", 1), 0);
    });
}

TEST_F(ListViews, AnEngineIsToldExactlyWhatReadsDifferently) {
    while_open([&] {
        add_three();
        StandIn window(list);
        ListView::Changes changes = list.take_changes();
        EXPECT_TRUE(changes.rows);
        EXPECT_TRUE(changes.columns);
        EXPECT_EQ(changes.positions, Positions{}) << "All of them are new.";

        list.row(2).set_text("Row b");
        list.row(2).set_text(1, "");
        list.row(2).set_look(1, {});
        list.row(2).set_tag(1);
        list.select(1);
        list.select(1);
        list.flush();
        EXPECT_EQ(window.seen, Aspect::selection) << "Nothing else is different.";
        window.seen = Aspect::none;
        list.select(1);
        list.flush();
        EXPECT_EQ(window.seen, Aspect::none);

        list.row(3).set_text(1, "x");
        list.row(1).set_look(0, {.bold = true});
        list.row(3).set_text(1, "y");
        list.flush();
        EXPECT_EQ(window.seen, Aspect::lines);
        changes = list.take_changes();
        EXPECT_FALSE(changes.rows);
        EXPECT_FALSE(changes.columns);
        EXPECT_EQ(changes.positions, (Positions{1, 3}));
        changes = list.take_changes();
        EXPECT_FALSE(changes.rows);
        EXPECT_EQ(changes.positions, Positions{}) << "They are told once.";

        window.seen = Aspect::none;
        list.add_column("More", 10);
        list.flush();
        EXPECT_EQ(window.seen, Aspect::lines);
        EXPECT_TRUE(list.take_changes().columns);

        list.row(3).set_text(1, "z");
        list.remove(3);
        changes = list.take_changes();
        EXPECT_TRUE(changes.rows);
        EXPECT_EQ(changes.positions, Positions{});
        list.row(2).set_text(1, "z");
        EXPECT_EQ(list.take_changes().positions, Positions{2});

        list.add_column("State", 10);
        changes = list.take_changes();
        EXPECT_TRUE(changes.columns);
        EXPECT_FALSE(changes.rows);
        list.row(1).set_text(1, "p");
        list.forget_changes();
        EXPECT_EQ(list.take_changes().positions, Positions{});
        list.row(1).set_text(1, "q");
        list.clear();
        changes = list.take_changes();
        EXPECT_TRUE(changes.rows);
        EXPECT_EQ(changes.positions, Positions{});
        list.clear();
        EXPECT_FALSE(list.take_changes().rows) << "It was empty.";
    });
}

TEST_F(ListViews, EachShowingStartsWithoutRowsAndColumns) {
    while_open([&] {
        add_three();
        list.select(2);
    });
    while_open([&] {
        EXPECT_EQ(list.count(), 0);
        EXPECT_EQ(list.columns().size(), 0U);
        EXPECT_EQ(list.selected(), 0);
        EXPECT_EQ(list.focus_row(), 0);
        list.add("a", "There is none of this key");
    });
}

TEST_F(ListViews, EnterIsTheirsOnlyWhereItOpensASelectedRow) {
    while_open([&] {
        add_three();
        EXPECT_FALSE(list.takes_enter());
        list.select(2);
        EXPECT_TRUE(list.takes_enter());
        EXPECT_TRUE(list.user_double_click());
        EXPECT_EQ(form.notes, (Notes{"list twice 2"}));
        list.select(0);
        EXPECT_FALSE(list.takes_enter());
        EXPECT_TRUE(form.plain.columns().empty());
        form.plain.add("", "Row");
        form.plain.select(1);
        EXPECT_FALSE(form.plain.takes_enter()) << "Nothing opens there.";
    });
}
