#include "lists.h"

#include "desk/hands.h"

#include "forms/win32/gdi.h"
#include "forms/win32/wide.h"

#include <commctrl.h>

namespace brx::checks {

TEST_F(ListTest, TheKeyboardOpensADropDownListAndChoosesInIt) {
    ListForm form(environment);
    form.on_load = [&] { add_three(form.Combo); };
    show(form, [&](Hands& hands) {
        hands.form("Lists");
        hands.key(VK_TAB);
        hands.type("t");
        hands.key(VK_F4);
        hands.key(VK_END);
        hands.key(VK_RETURN);
        EXPECT_EQ(Hands::text(hands.control("Lists", "Combo")), L"three");
    });
    EXPECT_EQ(form.events, "Combo1 Combo2 ");
}

TEST_F(ListTest, WhatIsChosenInAnOpenListWhileCodeRunsIsTakenWhenItHasRun) {
    ListForm form(environment);
    form.on_load = [&] { add_three(form.Combo); };
    show(form, [&](Hands& hands) {
        hands.form("Lists");
        const HWND combo = hands.control("Lists", "Combo");
        hands.run([&] {
            SendMessageW(combo, CB_SHOWDROPDOWN, TRUE, 0);
            COMBOBOXINFO info{};
            info.cbSize = sizeof info;
            GetComboBoxInfo(combo, &info);
            const POINT line = centre_of_line(info.hwndList, 1);
            form.run_event([&] {
                SendMessageW(info.hwndList, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(line.x, line.y));
                SendMessageW(info.hwndList, WM_LBUTTONUP, 0, MAKELPARAM(line.x, line.y));
                EXPECT_EQ(SendMessageW(combo, CB_GETDROPPEDSTATE, 0, 0), FALSE);
                EXPECT_EQ(form.Combo.selected(), -1);
            });
        });
        hands.wait_until_idle();
        EXPECT_EQ(Hands::text(combo), L"two");
    });
    EXPECT_EQ(form.events, "Combo1 ");
}

TEST_F(ListTest, ADropDownListIsWideEnoughForItsLines) {
    ListForm form(environment);
    const std::string name(120, 'W');
    form.on_load = [&] { form.Combo.add_line(name); };
    show(form, [&](Hands& hands) {
        hands.form("Lists");
        const HWND combo = hands.control("Lists", "Combo");
        int width = 0;
        hands.run([&] {
            const TextMeasure measure(combo, reinterpret_cast<HFONT>(SendMessageW(combo, WM_GETFONT, 0, 0)));
            width = measure.width(to_wide(name).c_str(), name.size());
        });
        EXPECT_GT(width, 500);
        EXPECT_GE(SendMessageW(combo, CB_GETDROPPEDWIDTH, 0, 0), width);
    });
}

TEST_F(ListTest, ADropDownListIsAsHighAsDesignedAndDropsForItsLines) {
    ListForm form(environment);
    show(form, [&](Hands& hands) {
        hands.form("Lists");
        const HWND combo = hands.control("Lists", "Combo");
        RECT closed{};
        GetWindowRect(combo, &closed);
        EXPECT_EQ(closed.bottom - closed.top, 23);
        const auto dropped_lines = [&] {
            COMBOBOXINFO info{};
            info.cbSize = sizeof info;
            SendMessageW(combo, CB_SHOWDROPDOWN, TRUE, 0);
            SendMessageW(combo, CB_GETCOMBOBOXINFO, 0, reinterpret_cast<LPARAM>(&info));
            RECT list{};
            GetClientRect(info.hwndList, &list);
            SendMessageW(combo, CB_SHOWDROPDOWN, FALSE, 0);
            return list.bottom / SendMessageW(combo, CB_GETITEMHEIGHT, 0, 0);
        };
        for (const auto& [lines, expected] : {std::pair{5, 5}, {12, 12}, {200, 20}}) {
            hands.run([&, count = lines] {
                form.run_event([&] {
                    form.Combo.clear();
                    for (int i = 0; i < count; ++i) form.Combo.add_line("line");
                });
            });
            EXPECT_EQ(dropped_lines(), expected);
            GetWindowRect(combo, &closed);
            EXPECT_EQ(closed.bottom - closed.top, 23);
        }
    });
}

} // namespace brx::checks
