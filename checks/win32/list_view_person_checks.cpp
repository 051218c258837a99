// What a person does to a table, and what becomes of it.

#include "pages.h"

namespace brx::checks {

namespace {

class ListViewPersonTest : public PagesTest {
protected:
    void show_rows(Pages& form, int count, const Story& story) {
        form.on_load = [&form, count] { form.add_rows(count); };
        show_page(form, "List", [&](Hands& hands, HWND list) {
            hands.run([&] { SetFocus(list); });
            story(hands, list);
            hands.run([&] { EXPECT_EQ(selected_row_of(list), form.List.selected() - 1); });
        });
    }
    static void click_row(Hands& hands, HWND list, int row) {
        POINT point{};
        ASSERT_TRUE(point_on_row(list, row, point)) << row;
        hands.click(list, point.x, point.y);
    }
};

constexpr POINT beside = {50, 170};

} // namespace

TEST_F(ListViewPersonTest, AClickSelectsARowAndOneBesideTheRowsNone) {
    Pages form(environment);
    show_rows(form, 3, [&](Hands& hands, HWND list) {
        hands.run([&] { SetFocus(hands.control("Pages", "Name")); });
        click_row(hands, list, 1);
        EXPECT_EQ(form.List.selected(), 2);
        EXPECT_EQ(selected_row_of(list), 1);
        EXPECT_EQ(hands.focus(), list);
        POINT point{};
        point_on_row(list, 2, point);
        hands.click(list, 200, point.y);
        EXPECT_EQ(form.List.selected(), 3) << "Anywhere in its columns.";
        hands.click(list, beside.x, beside.y);
        EXPECT_EQ(form.List.selected(), 0);
        EXPECT_EQ(selected_row_of(list), -1);
    });
}

TEST_F(ListViewPersonTest, ADoubleClickTellsSoOnTheRowAndBesideTheRows) {
    Pages form(environment);
    show_rows(form, 3, [&](Hands& hands, HWND list) {
        POINT point{};
        point_on_row(list, 1, point);
        hands.double_click(list, point.x, point.y);
        EXPECT_EQ(form.events, "Twice 2. ");
        hands.double_click(list, beside.x, beside.y);
        EXPECT_EQ(form.events, "Twice 2. Twice 0. ");
    });
}

TEST_F(ListViewPersonTest, TheKeysMoveTheSelection) {
    Pages form(environment);
    show_rows(form, 60, [&](Hands& hands, HWND list) {
        const auto row_after = [&](WORD key) {
            hands.key(key);
            EXPECT_EQ(selected_row_of(list), form.List.selected() - 1);
            return form.List.selected();
        };
        EXPECT_EQ(row_after(VK_DOWN), 1) << "The first key comes to the first row.";
        EXPECT_EQ(row_after(VK_DOWN), 2);
        EXPECT_EQ(row_after(VK_DOWN), 3);
        EXPECT_EQ(row_after(VK_UP), 2);
        EXPECT_EQ(row_after(VK_END), 60);
        const int page_up = row_after(VK_PRIOR);
        EXPECT_LT(page_up, 58);
        EXPECT_GT(page_up, 30);
        EXPECT_EQ(row_after(VK_HOME), 1);
        EXPECT_EQ(row_after(VK_UP), 1);
        run(hands, form, [&] {
            form.List.select(10);
            form.List.remove(10);
        });
        EXPECT_EQ(form.List.selected(), 0);
        EXPECT_EQ(row_after(VK_DOWN), 10) << "The row in the removed one's place.";
        EXPECT_EQ(row_after(VK_DOWN), 11);
        run(hands, form, [&] { form.List.select(0); });
        EXPECT_EQ(row_after(VK_END), 59);
    });
}

TEST_F(ListViewPersonTest, EachKeyIsToldOnceAndNeverAsNoSelectionInBetween) {
    Pages form(environment);
    show_rows(form, 5, [&](Hands& hands, HWND list) {
        hands.key(VK_DOWN);
        hands.key(VK_DOWN);
        hands.run([&] {
            const MessageLog log(list);
            SendMessageW(list, WM_KEYDOWN, VK_DOWN, 1);
            EXPECT_EQ(form.List.selected(), 3);
            EXPECT_EQ(log.count(LVM_SETITEMSTATE), 0) << "What it shows already is not set again.";
        });
    });
}

TEST_F(ListViewPersonTest, TypingGoesToTheRowThatBeginsSo) {
    Pages form(environment);
    form.on_load = [&] {
        for (const char* each : {"Apple", "Pear", "Plum", "\xC3\x84pfel"}) form.List.add("", each);
    };
    show_page(form, "List", [&](Hands& hands, HWND list) {
        hands.run([&] { SetFocus(list); });
        hands.type("pl");
        EXPECT_EQ(form.List.selected(), 3);
        EXPECT_EQ(selected_row_of(list), 2);
    });
}

TEST_F(ListViewPersonTest, TheBlankSelectsWhereNoRowIsSelectedAndNeverEndsASelection) {
    Pages form(environment);
    show_rows(form, 9, [&](Hands& hands, HWND) {
        hands.key(VK_SPACE);
        EXPECT_EQ(form.List.selected(), 1);
        hands.key(VK_SPACE);
        EXPECT_EQ(form.List.selected(), 1);
        run(hands, form, [&] {
            form.List.select(5);
            form.List.remove(5);
        });
        hands.key(VK_SPACE);
        EXPECT_EQ(form.List.selected(), 5);
    });
}

TEST_F(ListViewPersonTest, EnterOpensTheSelectedRowAndPressesTheDefaultButtonElsewhere) {
    Pages form(environment);
    show_rows(form, 3, [&](Hands& hands, HWND list) {
        hands.key(VK_RETURN);
        EXPECT_EQ(form.events, "OK. ") << "No row is selected.";
        form.events.clear();
        hands.key(VK_DOWN);
        hands.key(VK_DOWN);
        hands.key(VK_RETURN);
        EXPECT_EQ(form.events, "Twice 2. ");
        EXPECT_EQ(selected_row_of(list), 1);
        form.events.clear();
        hands.run([&] { SetFocus(hands.control("Pages", "Name")); });
        hands.key(VK_RETURN);
        EXPECT_EQ(form.events, "OK. ") << "The focus is elsewhere.";
    });
}

TEST_F(ListViewPersonTest, EnterOpensARowOnceAlsoWhenThatBringsAnotherForm) {
    Pages form(environment);
    Pages inner(environment);
    int opened = 0;
    form.on_twice = [&] {
        ++opened;
        inner.show_modal();
    };
    show_rows(form, 3, [&](Hands& hands, HWND list) {
        hands.key(VK_DOWN);
        Hands::strike({VK_RETURN});
        EXPECT_TRUE(Hands::eventually([&] { return inner.loaded(); }));
        hands.wait_until_idle();
        EXPECT_EQ(inner.events, "") << "Its default button has not been pressed.";
        hands.run([&] { inner.user_close(); });
        EXPECT_TRUE(Hands::eventually([&] { return IsWindowEnabled(GetParent(list)) != FALSE; }));
        hands.wait_until_idle();
    });
    EXPECT_EQ(opened, 1);
}

TEST_F(ListViewPersonTest, WhatTheControlRefusesIsNotShown) {
    Pages form(environment);
    show_rows(form, 5, [&](Hands& hands, HWND list) {
        click_row(hands, list, 1);
        POINT point{};
        point_on_row(list, 3, point);
        // It is the code's turn while input comes, as where a server's wrapper waits for messages.
        run(hands, form, [&] {
            SendMessageW(list, WM_KEYDOWN, VK_DOWN, 1);
            EXPECT_EQ(selected_row_of(list), 1);
            SendMessageW(list, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(point.x, point.y));
            SendMessageW(list, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(point.x, point.y));
            EXPECT_EQ(selected_row_of(list), 1);
        });
        EXPECT_EQ(form.List.selected(), 2);
        EXPECT_EQ(form.events, "");
    });
}

TEST_F(ListViewPersonTest, ADisabledTableTakesNoInput) {
    Pages form(environment);
    show_rows(form, 5, [&](Hands& hands, HWND list) {
        run(hands, form, [&] { form.First.set_enabled(false); });
        EXPECT_FALSE(IsWindowEnabled(list));
        click_row(hands, list, 1); // messages reach it all the same
        EXPECT_EQ(form.List.selected(), 0);
    });
}

TEST_F(ListViewPersonTest, WhatToolsSelectIsAPersonsDoing) {
    Pages form(environment);
    show_rows(form, 5, [&](Hands& hands, HWND list) {
        const auto select = [&](int row, UINT state) {
            hands.run([&] {
                LVITEMW item{};
                item.state = state;
                item.stateMask = LVIS_SELECTED;
                SendMessageW(list, LVM_SETITEMSTATE, static_cast<WPARAM>(row),
                             reinterpret_cast<LPARAM>(&item));
            });
        };
        select(3, LVIS_SELECTED);
        EXPECT_EQ(form.List.selected(), 4);
        select(-1, 0);
        EXPECT_EQ(form.List.selected(), 0);
    });
}

TEST_F(ListViewPersonTest, AClickOnAHeaderDoesNothing) {
    Pages form(environment);
    show_rows(form, 5, [&](Hands& hands, HWND list) {
        click_row(hands, list, 1);
        const auto header = reinterpret_cast<HWND>(SendMessageW(list, LVM_GETHEADER, 0, 0));
        hands.click(header, 20, 5);
        EXPECT_EQ(form.List.selected(), 2);
        EXPECT_EQ(cell_text(list, 0, 0), "Row 1");
        EXPECT_EQ(hands.focus(), list);
    });
}

} // namespace brx::checks
