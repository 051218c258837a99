#include "desk/native.h"
#include "looks.h"
#include "pages.h"

namespace brx::checks {

namespace {

class TabStripTest : public PagesTest {
protected:
    static void click_tab(Hands& hands, HWND tabs, int tab) {
        POINT point{};
        ASSERT_TRUE(point_on_tab(tabs, tab, point)) << tab;
        hands.click(tabs, point.x, point.y);
    }
    static LRESULT shown(HWND tabs) { return SendMessageW(tabs, TCM_GETCURSEL, 0, 0); }
    static std::string name_at(HWND window, POINT point) {
        ClientToScreen(window, &point);
        return name_of(WindowFromPoint(point));
    }
};

} // namespace

TEST_F(TabStripTest, WhatLiesOnTheAreaIsHitAndNotTheTabs) {
    PageForm form(environment);
    show_page(form, "Tabs", [&](Hands& hands, HWND tabs) {
        const HWND window = GetParent(tabs);
        const auto look = [&] {
            hands.run([&] {
                EXPECT_EQ(name_at(window, {80, 45}), "Name");
                EXPECT_EQ(name_at(window, {100, 120}), "List");
                EXPECT_EQ(name_at(window, {300, 40}), "First");
                EXPECT_EQ(name_at(window, {40, 20}), "Tabs");
            });
        };
        look();
        grow(window, 200, 100);
        look();
        hands.run([&] { EXPECT_EQ(name_at(window, {550, 340}), "List"); });
        grow(window, -200, -100);
        run(hands, form, [&] { form.Tabs.select(3); });
        hands.run([&] { EXPECT_EQ(name_at(window, {100, 120}), "Pages") << "Nothing lies there."; });
    });
}

TEST_F(TabStripTest, TheAreaIsNoPartOfTheTabsAndHasTheColorOfTheForm) {
    PageForm form(environment);
    show_page(form, "Tabs", [&](Hands& hands, HWND tabs) {
        const auto belongs = [&](int x, int y) {
            const HRGN region = CreateRectRgn(0, 0, 0, 0);
            GetWindowRgn(tabs, region);
            const bool inside = PtInRegion(region, x, y) != FALSE;
            DeleteObject(region);
            return inside;
        };
        EXPECT_TRUE(belongs(20, 10));
        EXPECT_TRUE(belongs(0, 100)) << "The edge.";
        EXPECT_TRUE(belongs(399, 249));
        EXPECT_FALSE(belongs(6, 30));
        EXPECT_FALSE(belongs(395, 245));
        run(hands, form, [&] { form.Tabs.select(3); });
        hands.run([&] {
            UpdateWindow(GetParent(tabs));
            const HDC dc = GetDC(GetParent(tabs));
            EXPECT_EQ(GetPixel(dc, 100, 120), GetSysColor(COLOR_BTNFACE));
            ReleaseDC(GetParent(tabs), dc);
        });
        grow(GetParent(tabs), 100, 50);
        EXPECT_FALSE(belongs(490, 290));
        EXPECT_TRUE(belongs(499, 299));
        set_scale(tabs, 192);
        EXPECT_TRUE(belongs(100, 30)) << "The tabs have grown.";
        EXPECT_FALSE(belongs(790, 490));
    });
}

TEST_F(TabStripTest, WhatTheControlRefusesIsNotShown) {
    PageForm form(environment);
    show_page(form, "Tabs", [&](Hands& hands, HWND tabs) {
        // It is the code's turn while a tool comes, as where a server's wrapper waits for messages.
        run(hands, form, [&] { SendMessageW(tabs, TCM_SETCURFOCUS, 1, 0); });
        EXPECT_EQ(shown(tabs), 0);
        run(hands, form, [&] { form.Tabs.set_enabled(false); });
        hands.keys({VK_CONTROL, VK_TAB});
        hands.keys({VK_MENU, '2'});
        EXPECT_EQ(shown(tabs), 0);
        EXPECT_EQ(form.events, "");
    });
}

TEST_F(TabStripTest, APageThatCodePutAwayStaysAwayAtEverySize) {
    PageForm form(environment);
    show_page(form, "Tabs", [&](Hands& hands, HWND tabs) {
        const HWND window = GetParent(tabs);
        const auto place = [&](const char* name) { return place_in_form(hands.control("Pages", name)); };
        for (const int left : {-1333, -500}) {
            const Place here{16, 36, 388, 218};
            const Place away{left, 36, 388, 218};
            run(hands, form, [&] {
                form.First.set_place(away);
                form.Second.set_place(here);
                form.Second.set_visible(true);
            });
            EXPECT_EQ(place("First"), rect_of(left, 36, 388, 218));
            EXPECT_EQ(place("List"), rect_of(left + 4, 70, 380, 180));
            grow(window, 800, 100);
            EXPECT_LE(place("First").right, 0);
            EXPECT_LE(place("List").right, 0);
            EXPECT_EQ(place("Second"), rect_of(16, 36, 1188, 318));
            run(hands, form, [&] {
                form.First.set_place(here);
                form.Second.set_place(away);
            });
            EXPECT_EQ(place("First"), rect_of(16, 36, 1188, 318));
            EXPECT_EQ(place("List"), rect_of(20, 70, 1180, 280));
            EXPECT_LE(place("Second").right, 0);
            grow(window, -800, -100);
            EXPECT_EQ(place("First"), rect_of(16, 36, 388, 218));
            EXPECT_EQ(place("Second"), rect_of(left, 36, 388, 218));
            set_scale(tabs, 144);
            EXPECT_EQ(place("Second").left, MulDiv(left, 144, 96));
            EXPECT_EQ(place("First"), rect_of(24, 54, 582, 327));
            set_scale(tabs, 96);
        }
    });
}

TEST_F(TabStripTest, NothingIsDrawnOverAnotherWhileTheFormIsSized) {
    PageForm form(environment);
    show_page(form, "Tabs", [&](Hands& hands, HWND tabs) {
        hands.run([&] {
            const HWND window = GetParent(tabs);
            grow(window, 60, 60);
            UpdateWindow(window);
            // As the form erases itself, all that lies in it must be clear of it.
            const HDC dc = GetDC(window);
            for (const char* each : {"Before", "Name", "List", "First", "OK"}) {
                const RECT place = place_in_form(hands.control("Pages", each));
                EXPECT_FALSE(PtVisible(dc, place.left + 3, place.bottom - 3)) << each;
            }
            EXPECT_TRUE(PtVisible(dc, 200, 335));
            EXPECT_TRUE(PtVisible(dc, 13, 40)) << "Between the edge of the tabs and the page.";
            ReleaseDC(window, dc);
        });
    });
}

TEST_F(TabStripTest, AHiddenPageIsNeverDrawn) {
    PageForm form(environment);
    show_page(form, "Day", [&](Hands& hands, HWND day) {
        hands.run([&] {
            const HWND page = hands.control("Pages", "Second");
            const MessageLog on_page(page);
            const MessageLog on_day(day);
            grow(GetParent(day), 100, 100);
            form.run_event([&] { form.Day.set_value(PageForm::day(2030, 1, 2)); });
            RedrawWindow(GetParent(day), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
            EXPECT_EQ(on_page.count(WM_PAINT) + on_page.count(WM_ERASEBKGND), 0);
            EXPECT_EQ(on_day.count(WM_PAINT) + on_day.count(WM_ERASEBKGND), 0);
        });
    });
}

} // namespace brx::checks
