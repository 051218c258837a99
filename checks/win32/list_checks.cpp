#include "lists.h"

#include "desk/native.h"
#include "desk/native_table.h"
#include "forms/win32/gdi.h"
#include "forms/win32/wide.h"

#include <commctrl.h>

namespace brx::checks {

namespace {

POINT point_on(Hands& hands, HWND box, int line) {
    POINT point{};
    hands.run([&] { EXPECT_TRUE(point_on_row(box, line, point)); });
    return point;
}

/// As a tool for people who cannot see does.
void select_natively(HWND box, int line) {
    LVITEMW item{};
    item.state = item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
    SendMessageW(box, LVM_SETITEMSTATE, static_cast<WPARAM>(line), reinterpret_cast<LPARAM>(&item));
}

/// How far it can be scrolled across, its own room included.
int extent_of(HWND box) { return static_cast<int>(SendMessageW(box, LVM_GETCOLUMNWIDTH, 0, 0)); }

int room_of(HWND box) {
    RECT room{};
    GetClientRect(box, &room);
    return static_cast<int>(room.right);
}

const std::vector<std::wstring> odd_lines = {
    L"a & b && c",
    L"tab\there",
    L"  blanks around  ",
    L"\u05E9\u05DC\u05D5\u05DD \u202Ertl",
    L"\xD83D\xDE00 x",
    L"lone \xD800 surrogate",
    std::wstring(3000, L'w'),
    L"",
};

} // namespace

TEST_F(ListTest, LinesKeepTheirTextExactly) {
    ListForm form(environment);
    form.on_load = [&] {
        for (const std::wstring& each : odd_lines) {
            form.Box.add_line(from_wide(each));
            form.Combo.add_line(from_wide(each));
        }
    };
    show(form, [&](Hands& hands) {
        hands.form("Lists");
        for (std::size_t i = 0; i < odd_lines.size(); ++i) {
            EXPECT_EQ(cell_text(hands.control("Lists", "Box"), static_cast<int>(i), 0),
                      from_wide(odd_lines[i]));
            EXPECT_EQ(lines_of(hands.control("Lists", "Combo"))[i], from_wide(odd_lines[i]));
        }
    });
}

TEST_F(ListTest, AListBoxHoldsNoLinesAndAsksForThem) {
    ListForm form(environment);
    form.on_load = [&] { add_three(form.Box); };
    show(form, [&](Hands& hands) {
        hands.form("Lists");
        const HWND box = hands.control("Lists", "Box");
        EXPECT_TRUE((GetWindowLongW(box, GWL_STYLE) & LVS_OWNERDATA) != 0);
        hands.run([&] { form.run_event([&] { form.Box.add_line("four"); }); });
        EXPECT_EQ(table_rows(box, 9), (std::vector<std::string>{"one", "two", "three", "four"}));
    });
}

TEST_F(ListTest, AClickCountsAnywhereOnALineAndNotBelowTheLast) {
    ListForm form(environment);
    form.on_load = [&] { add_three(form.Box); };
    show(form, [&](Hands& hands) {
        hands.form("Lists");
        const HWND box = hands.control("Lists", "Box");
        hands.double_click(box, 140, point_on(hands, box, 1).y); // behind its text
        EXPECT_EQ(form.events, "Click1 DblClick ");
        hands.double_click(box, 5, 80);
        EXPECT_EQ(form.events, "Click1 DblClick ");
    });
}

TEST_F(ListTest, ASelectionThatIsRefusedIsTakenBack) {
    ListForm form(environment);
    form.on_load = [&] {
        add_three(form.Box);
        form.Box.select(0);
    };
    show(form, [&](Hands& hands) {
        hands.form("Lists");
        const HWND box = hands.control("Lists", "Box");
        hands.run([&] {
            const CodeTurn busy;
            select_natively(box, 2);
        });
        EXPECT_EQ(selected_row_of(box), 0);
    });
    EXPECT_EQ(form.events, "");
}

TEST_F(ListTest, ALongListIsThereAtOnce) {
    constexpr int many = 10'000;
    ListForm form(environment);
    show(form, [&](Hands& hands) {
        hands.form("Lists");
        const DWORD start = GetTickCount();
        hands.run([&] {
            form.run_event([&] {
                for (int i = 0; i < many; ++i) form.Box.add_line("Plant.Line.Item" + std::to_string(i));
            });
        });
        const DWORD once = GetTickCount() - start;
        EXPECT_LT(once, 3000u);
        EXPECT_EQ(row_count(hands.control("Lists", "Box")), many);
        std::printf("%d lines in %lu ms\n", many, once);
    });
}

TEST_F(ListTest, AListBoxScrollsAsFarAsTheWidestLineThatWasSeen) {
    ListForm form(environment);
    show(form, [&](Hands& hands) {
        hands.form("Lists");
        const HWND box = hands.control("Lists", "Box");
        EXPECT_EQ(extent_of(box), room_of(box));
        for (const std::wstring& widest :
             {std::wstring(90, L'W'), std::wstring(200, L'i'), std::wstring(60, L'\u6F22')}) {
            int width = 0;
            hands.run([&] {
                form.run_event([&] {
                    form.Box.clear();
                    form.Box.add_line("short");
                    form.Box.add_line(from_wide(widest));
                    for (int i = 0; i < 50; ++i) form.Box.add_line("short again");
                    form.Box.add_line(std::string(300, 'W'));
                });
                const TextMeasure measure(box, reinterpret_cast<HFONT>(SendMessageW(box, WM_GETFONT, 0, 0)));
                width = measure.width(widest.data(), widest.size()) + 2 * 3;
            });
            hands.wait_until_idle();
            EXPECT_EQ(extent_of(box), width);
        }
        const int before = extent_of(box);
        hands.run([&] { SetFocus(box); });
        hands.key(VK_END);
        EXPECT_GT(extent_of(box), before) << "The last line is the widest.";
        hands.run([&] { form.run_event([&] { form.Box.clear(); }); });
        hands.wait_until_idle();
        EXPECT_EQ(extent_of(box), room_of(box));
    });
}

TEST_F(ListTest, AListBoxScrollsNoFurtherThanTheSystemCanSay) {
    ListForm form(environment);
    form.on_load = [&] { form.Box.add_line(std::string(10'000, 'W')); };
    show(form, [&](Hands& hands) {
        hands.form("Lists");
        hands.wait_until_idle();
        EXPECT_EQ(extent_of(hands.control("Lists", "Box")), 0x7FFF);
    });
}

TEST_F(ListTest, ATextThatAListHasAskedForIsStillThereWhenItAsksForTheNext) {
    ListForm form(environment);
    form.on_load = [&] { add_three(form.Box); };
    show(form, [&](Hands& hands) {
        hands.form("Lists");
        const HWND box = hands.control("Lists", "Box");
        hands.run([&] {
            const auto ask = [&](int line) {
                NMLVDISPINFOW question{};
                question.hdr = {box, static_cast<UINT_PTR>(GetDlgCtrlID(box)), LVN_GETDISPINFOW};
                question.item.mask = LVIF_TEXT;
                question.item.iItem = line;
                SendMessageW(GetParent(box), WM_NOTIFY, question.hdr.idFrom,
                             reinterpret_cast<LPARAM>(&question));
                return question.item.pszText;
            };
            const wchar_t* const first = ask(0);
            const wchar_t* const second = ask(1);
            EXPECT_EQ(from_wide(first), "one");
            EXPECT_EQ(from_wide(second), "two");
        });
    });
}

TEST_F(ListTest, AListBoxFilledAnewBeginsAtItsFirstLine) {
    ListForm form(environment);
    const auto fill = [&] {
        for (int i = 0; i < 100; ++i) form.Box.add_line("line");
    };
    form.on_load = fill;
    show(form, [&](Hands& hands) {
        hands.form("Lists");
        const HWND box = hands.control("Lists", "Box");
        hands.key(VK_END);
        EXPECT_EQ(form.Box.selected(), 99);
        EXPECT_GT(SendMessageW(box, LVM_GETTOPINDEX, 0, 0), 50);
        hands.run([&] { form.run_event([&] { form.Box.add_line("one more"); }); });
        EXPECT_GT(SendMessageW(box, LVM_GETTOPINDEX, 0, 0), 50) << "Lines at the end move nothing.";
        hands.run([&] {
            form.run_event([&] {
                form.Box.clear();
                fill();
            });
        });
        EXPECT_EQ(SendMessageW(box, LVM_GETTOPINDEX, 0, 0), 0);
        EXPECT_EQ(selected_row_of(box), -1);
    });
}

TEST_F(ListTest, TheRightButtonAndThoseBesideTheLinesChangeNothing) {
    ListForm form(environment);
    form.on_load = [&] {
        add_three(form.Box);
        form.Box.select(0);
    };
    show(form, [&](Hands& hands) {
        hands.form("Lists");
        const HWND box = hands.control("Lists", "Box");
        const POINT second = point_on(hands, box, 1);
        hands.run([&] {
            SendMessageW(box, WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(second.x, second.y));
            SendMessageW(box, WM_RBUTTONUP, 0, MAKELPARAM(second.x, second.y));
        });
        hands.click(box, 5, 90);
        EXPECT_EQ(form.events, "");
        EXPECT_EQ(selected_row_of(box), 0);
    });
}

TEST_F(ListTest, ALineThatSomethingElseSelectsIsAClick) {
    ListForm form(environment);
    form.on_load = [&] { add_three(form.Box); };
    show(form, [&](Hands& hands) {
        hands.form("Lists");
        hands.run([&] { select_natively(hands.control("Lists", "Box"), 1); });
        EXPECT_EQ(form.events, "Click1 ");
    });
}

TEST_F(ListTest, TheSelectedLineIsAsPlainWhereverTheFocusIs) {
    ListForm form(environment);
    form.on_load = [&] {
        add_three(form.Box);
        form.Box.select(1);
    };
    show(form, [&](Hands& hands) {
        hands.form("Lists");
        const HWND box = hands.control("Lists", "Box");
        const POINT second = point_on(hands, box, 1);
        const auto color_behind_the_text = [&] {
            COLORREF color = 0;
            hands.wait_until_idle();
            hands.run([&] {
                const HDC dc = GetDC(box);
                color = GetPixel(dc, room_of(box) - 5, second.y);
                ReleaseDC(box, dc);
            });
            return color;
        };
        EXPECT_EQ(color_behind_the_text(), GetSysColor(COLOR_HIGHLIGHT));
        hands.run([&] { SetFocus(hands.control("Lists", "Press")); });
        EXPECT_EQ(color_behind_the_text(), GetSysColor(COLOR_HIGHLIGHT));
        hands.run([&] { form.run_event([&] { form.Box.set_enabled(false); }); });
        EXPECT_EQ(color_behind_the_text(), GetSysColor(COLOR_WINDOW));
    });
}

} // namespace brx::checks
