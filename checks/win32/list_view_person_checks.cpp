// What a person does to a table, and what becomes of it.

#include "pages.h"

namespace brx::checks {

namespace {

class ListViewPersonTest : public PagesTest {
protected:
    void show_rows(PageForm& form, int count, const Story& story) {
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
    PageForm form(environment);
    show_rows(form, 3, [&](Hands& hands, HWND list) {
        POINT point{};
        point_on_row(list, 2, point);
        hands.double_click(list, 200, point.y);
        EXPECT_EQ(form.events, "Twice 3. ") << "Anywhere in its columns.";
        hands.double_click(list, beside.x, beside.y);
        EXPECT_EQ(form.events, "Twice 3. Twice 0. ");
        EXPECT_EQ(selected_row_of(list), -1);
    });
}

TEST_F(ListViewPersonTest, TheKeysOfPagesMoveTheSelection) {
    PageForm form(environment);
    show_rows(form, 60, [&](Hands& hands, HWND) {
        hands.key(VK_END);
        EXPECT_EQ(form.List.selected(), 60);
        hands.key(VK_PRIOR);
        EXPECT_LT(form.List.selected(), 58);
        EXPECT_GT(form.List.selected(), 30);
        hands.key(VK_NEXT);
        EXPECT_EQ(form.List.selected(), 60);
    });
}

TEST_F(ListViewPersonTest, EachKeyIsToldOnceAndNeverAsNoSelectionInBetween) {
    PageForm form(environment);
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

TEST_F(ListViewPersonTest, WhatTheControlRefusesIsNotShown) {
    PageForm form(environment);
    show_rows(form, 5, [&](Hands& hands, HWND list) {
        click_row(hands, list, 1);
        // It is the code's turn while a tool comes, as where a server's wrapper waits for messages.
        run(hands, form, [&] {
            LVITEMW item{};
            item.state = item.stateMask = LVIS_SELECTED;
            SendMessageW(list, LVM_SETITEMSTATE, 3, reinterpret_cast<LPARAM>(&item));
            EXPECT_EQ(selected_row_of(list), 1);
        });
        EXPECT_EQ(form.List.selected(), 2);
        EXPECT_EQ(form.events, "");
    });
}

TEST_F(ListViewPersonTest, ADisabledTableTakesNoInput) {
    PageForm form(environment);
    show_rows(form, 5, [&](Hands& hands, HWND list) {
        run(hands, form, [&] { form.First.set_enabled(false); });
        EXPECT_FALSE(IsWindowEnabled(list));
        click_row(hands, list, 1); // messages reach it all the same
        EXPECT_EQ(form.List.selected(), 0);
    });
}

TEST_F(ListViewPersonTest, WhatToolsSelectIsAPersonsDoing) {
    PageForm form(environment);
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
    PageForm form(environment);
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
