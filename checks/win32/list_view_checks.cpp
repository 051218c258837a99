// A table as it is shown.

#include "high_contrast.h"
#include "looks.h"
#include "pages.h"
#include "sample_form.h"

namespace brx::checks {

namespace {

class ListViewTest : public PagesTest {
protected:
    /// Shows the form with so many rows in its table.
    void show_rows(PageForm& form, int count, const Story& story) {
        form.on_load = [&form, count] { form.add_rows(count); };
        show_page(form, "List", [&](Hands& hands, HWND list) {
            story(hands, list);
            hands.run([&] {
                Rows held = marked_rows(form.List.read().rows);
                held.resize(std::min<std::size_t>(held.size(), 100));
                EXPECT_EQ(table_rows(list, 100), held) << "the window lags behind";
                EXPECT_EQ(selected_row_of(list), form.List.selected() - 1);
                EXPECT_EQ(row_count(list), form.List.count());
            });
        });
    }
    static int width(HWND list, int column) {
        return static_cast<int>(SendMessageW(list, LVM_GETCOLUMNWIDTH, static_cast<WPARAM>(column), 0));
    }
    static RECT cell(HWND list, int row, int column) {
        RECT place{};
        place.left = LVIR_BOUNDS;
        place.top = column;
        SendMessageW(list, LVM_GETSUBITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&place));
        return place;
    }
    /// How many pixels of a cell are more red than anything else.
    static int red_pixels(Hands& hands, HWND list, int row, int column) {
        int found = 0;
        hands.run([&] {
            UpdateWindow(list);
            const RECT place = cell(list, row, column);
            const HDC dc = GetDC(list);
            for (int y = place.top; y < place.bottom; ++y)
                for (int x = place.left; x < place.right; ++x) {
                    const COLORREF color = GetPixel(dc, x, y);
                    if (GetRValue(color) > 200 && GetGValue(color) < 80 && GetBValue(color) < 80) ++found;
                }
            ReleaseDC(list, dc);
        });
        return found;
    }
};

} // namespace

TEST_F(ListViewTest, ColumnsAndRowsShowAsTheControlHasThem) {
    PageForm form(environment);
    show_rows(form, 3, [&](Hands&, HWND list) {
        EXPECT_EQ(column_captions(list), (Rows{"Item", "Value", "State"}));
        EXPECT_EQ(table_rows(list, 100), (Rows{"Row 1 | 1 | ", "Row 2 | 2 | ", "Row 3 | 3 | "}));
        EXPECT_EQ(selected_row_of(list), -1) << "Adding rows selects none.";
        const auto style = static_cast<DWORD>(GetWindowLongW(list, GWL_STYLE));
        EXPECT_EQ(style & LVS_TYPEMASK, DWORD{LVS_REPORT});
        EXPECT_TRUE(style & LVS_OWNERDATA);
        EXPECT_TRUE(style & LVS_SINGLESEL);
        EXPECT_TRUE(style & LVS_SHOWSELALWAYS);
        EXPECT_TRUE(style & LVS_NOSORTHEADER);
        EXPECT_TRUE(GetWindowLongW(list, GWL_EXSTYLE) & WS_EX_CLIENTEDGE);
        EXPECT_TRUE(SendMessageW(list, LVM_GETEXTENDEDLISTVIEWSTYLE, 0, 0) & LVS_EX_FULLROWSELECT);
        EXPECT_EQ(width(list, 0), 150);
        EXPECT_EQ(width(list, 1), 80);
    });
}

TEST_F(ListViewTest, WhatIsUnchangedSendsNoMessageAndDrawsNothing) {
    PageForm form(environment);
    show_rows(form, 20, [&](Hands& hands, HWND list) {
        run(hands, form, [&] { form.List.select(2); });
        hands.wait_until_idle();
        hands.run([&] {
            UpdateWindow(list);
            const MessageLog log(list);
            form.run_event([&] {
                for (int position = 1; position <= 20; ++position) {
                    form.List.row(position).set_text(1, std::to_string(position));
                    form.List.row(position).set_look(1, {});
                }
                form.List.select(3);
                form.List.select(2);
                form.List.set_enabled(true);
                form.List.set_visible(true);
            });
            EXPECT_EQ(log.messages.size(), 0U) << log.messages.front().message;
            EXPECT_FALSE(GetUpdateRect(list, nullptr, FALSE));
        });
    });
}

TEST_F(ListViewTest, OnlyTheRowsThatReadDifferentlyAreDrawnAgain) {
    PageForm form(environment);
    show_rows(form, 20, [&](Hands& hands, HWND list) {
        hands.wait_until_idle();
        hands.run([&] {
            UpdateWindow(list);
            const MessageLog log(list);
            form.run_event([&] {
                form.List.row(2).set_text(2, "good");
                form.List.row(3).set_look(1, {.bold = true});
                form.List.row(5).set_text(1, "new");
            });
            std::vector<std::pair<WPARAM, LPARAM>> drawn;
            for (const MSG& each : log.messages)
                if (each.message == LVM_REDRAWITEMS) drawn.emplace_back(each.wParam, each.lParam);
            EXPECT_EQ(drawn, (std::vector<std::pair<WPARAM, LPARAM>>{{1, 2}, {4, 4}}));
            EXPECT_EQ(log.count(LVM_SETITEMCOUNT), 0);
            RECT again{};
            GetUpdateRect(list, &again, FALSE);
            EXPECT_EQ(again.top, cell(list, 1, 0).top);
            EXPECT_EQ(again.bottom, cell(list, 4, 0).bottom);
        });
    });
}

TEST_F(ListViewTest, AHundredThousandRowsAreThereAtOnce) {
    PageForm form(environment);
    show_rows(form, 0, [&](Hands& hands, HWND list) {
        hands.run([&] {
            const MessageLog log(list);
            const ULONGLONG begin = GetTickCount64();
            form.run_event([&] {
                form.add_rows(100'000);
                form.List.select(90'000);
            });
            EXPECT_LT(GetTickCount64() - begin, 2'000U);
            EXPECT_EQ(log.count(LVM_SETITEMCOUNT), 1);
            EXPECT_LT(log.messages.size(), 40U) << "Rows are asked for when they are drawn.";
        });
        EXPECT_EQ(row_count(list), 100'000);
        EXPECT_EQ(cell_text(list, 99'999, 0), "Row 100000");
        EXPECT_EQ(selected_row_of(list), 89'999);
        run(hands, form, [&] { form.List.clear(); });
        EXPECT_EQ(row_count(list), 0);
    });
}

TEST_F(ListViewTest, CellsAreBoldAndRedOneByOne) {
    PageForm form(environment);
    show_rows(form, 4, [&](Hands& hands, HWND list) {
        run(hands, form, [&] {
            form.List.row(2).set_text(2, "WWWWW");
            form.List.row(2).set_look(2, {.bold = true, .fore_color = color::red});
            form.List.row(3).set_look(0, {.bold = true});
        });
        EXPECT_EQ(table_rows(list, 10),
                  (Rows{"Row 1 | 1 | ", "Row 2 | 2 | *red:WWWWW*", "*Row 3* | 3 | ", "Row 4 | 4 | "}));
        EXPECT_GT(red_pixels(hands, list, 1, 2), 20);
        EXPECT_EQ(red_pixels(hands, list, 1, 1), 0);
        EXPECT_EQ(red_pixels(hands, list, 2, 2), 0);
        run(hands, form, [&] { form.List.select(2); });
        EXPECT_EQ(red_pixels(hands, list, 1, 2), 0) << "Nothing is red where the selection is.";
    });
}

TEST_F(ListViewTest, InHighContrastARedCellIsBoldOnly) {
    PageForm form(environment);
    show_rows(form, 2, [&](Hands& hands, HWND list) {
        const HighContrast chosen;
        run(hands, form, [&] {
            form.List.row(2).set_text(2, "WWWWW");
            form.List.row(2).set_look(2, {.bold = true, .fore_color = color::red});
        });
        EXPECT_EQ(table_rows(list, 2), (Rows{"Row 1 | 1 | ", "Row 2 | 2 | *WWWWW*"}));
        EXPECT_EQ(red_pixels(hands, list, 1, 2), 0);
    });
}

TEST_F(ListViewTest, RowsComeAndGoAndTheSelectionStaysWithItsRow) {
    PageForm form(environment);
    show_rows(form, 10, [&](Hands& hands, HWND list) {
        run(hands, form, [&] { form.List.select(5); });
        run(hands, form, [&] { form.List.remove(2); });
        EXPECT_EQ(selected_row_of(list), 3);
        EXPECT_EQ(cell_text(list, 3, 0), "Row 5");
        run(hands, form, [&] { form.List.add("", "More"); });
        EXPECT_EQ(selected_row_of(list), 3);
        EXPECT_EQ(cell_text(list, 9, 0), "More");
        run(hands, form, [&] { form.List.remove(4); });
        EXPECT_EQ(selected_row_of(list), -1);
        EXPECT_EQ(form.List.selected(), 0);
        const auto focus = [&] {
            return SendMessageW(list, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_FOCUSED);
        };
        EXPECT_EQ(focus(), 3) << "The keyboard stays near.";
        run(hands, form, [&] {
            form.List.clear();
            form.add_rows(2);
        });
        EXPECT_EQ(selected_row_of(list), -1);
    });
}

TEST_F(ListViewTest, WhatCodeSelectsComesIntoViewAndGetsTheKeyboard) {
    PageForm form(environment);
    show_rows(form, 200, [&](Hands& hands, HWND list) {
        const auto is_in_view = [&](int row) {
            const auto top = static_cast<int>(SendMessageW(list, LVM_GETTOPINDEX, 0, 0));
            return row >= top && row < top + static_cast<int>(SendMessageW(list, LVM_GETCOUNTPERPAGE, 0, 0));
        };
        EXPECT_FALSE(is_in_view(149));
        run(hands, form, [&] { form.List.select(150); });
        EXPECT_TRUE(is_in_view(149));
        EXPECT_EQ(selected_row_of(list), 149);
        EXPECT_EQ(SendMessageW(list, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_FOCUSED), 149);
        run(hands, form, [&] { form.List.row(150).set_text(1, "x"); });
        EXPECT_TRUE(is_in_view(149));
        run(hands, form, [&] { form.List.add("", "More"); });
        EXPECT_TRUE(is_in_view(149)) << "Other rows do not scroll it.";
    });
}

TEST_F(ListViewTest, ColumnsGrowWithTheScaleAndKeepTheWidthsThatAPersonGaveThem) {
    PageForm form(environment);
    show_rows(form, 3, [&](Hands& hands, HWND list) {
        const auto height = [&] { return cell(list, 1, 0).top - cell(list, 0, 0).top; };
        const LONG row_height = height();
        SendMessageW(list, LVM_SETCOLUMNWIDTH, 1, 60);
        run(hands, form, [&] {
            form.List.row(1).set_text(1, "x");
            form.add_rows(3);
            form.List.add_column("Last", 40);
        });
        EXPECT_EQ(width(list, 1), 60);
        EXPECT_EQ(width(list, 3), 40);
        EXPECT_EQ(column_captions(list), (Rows{"Item", "Value", "State", "Last"}));
        set_scale(list, 192);
        EXPECT_EQ(width(list, 0), 300);
        EXPECT_EQ(width(list, 1), 120);
        EXPECT_NEAR(static_cast<double>(height()), 2.0 * static_cast<double>(row_height), 6.0);
        set_scale(list, 96);
        EXPECT_EQ(width(list, 1), 60);
        EXPECT_NEAR(static_cast<double>(height()), static_cast<double>(row_height), 1.0);
        EXPECT_EQ(font_of(list).lfHeight,
                  font_of(reinterpret_cast<HWND>(SendMessageW(list, LVM_GETHEADER, 0, 0))).lfHeight);
    });
}

TEST_F(ListViewTest, ColumnsShareTheRoomOfALargerFormAndGiveItBack) {
    PageForm form(environment);
    show_rows(form, 3, [&](Hands&, HWND list) {
        const HWND window = GetParent(list);
        const auto widths = [&] { return std::vector<int>{width(list, 0), width(list, 1), width(list, 2)}; };
        grow(window, 310, 40);
        EXPECT_EQ(widths(), (std::vector<int>{300, 160, 160})) << "They were 310 together.";
        grow(window, -155, 0);
        EXPECT_EQ(widths(), (std::vector<int>{225, 120, 120}));
        grow(window, -155, -40);
        EXPECT_EQ(widths(), (std::vector<int>{150, 80, 80}));
    });
}

TEST_F(ListViewTest, AWidthThatAPersonGaveAColumnStaysInProportion) {
    PageForm form(environment);
    show_rows(form, 3, [&](Hands&, HWND list) {
        const HWND window = GetParent(list);
        grow(window, 310, 0);
        SendMessageW(list, LVM_SETCOLUMNWIDTH, 1, 240);
        grow(window, -155, 0);
        EXPECT_EQ(width(list, 1), 180);
        EXPECT_EQ(width(list, 0), 225);
        grow(window, -155, 0);
        EXPECT_EQ(width(list, 1), 120);
        EXPECT_EQ(width(list, 2), 80);
        set_scale(list, 192);
        EXPECT_EQ(width(list, 1), 240);
    });
}

} // namespace brx::checks
