#include "looks.h"
#include "sample_form.h"

#include "forms/win32/dpi.h"

namespace brx::checks {

namespace {

class LayoutTest : public OnWindows {};

} // namespace

TEST_F(LayoutTest, ControlsLieWhereTheyAreDesignedAtEveryScale) {
    Sample form(environment);
    show(form, [&](Hands& hands) {
        const HWND window = hands.form("Sample");
        for (const int dpi : {96, 120, 144, 192, 96}) {
            const RECT proposed{10, 10, 500, 500};
            SendMessageW(window, WM_DPICHANGED, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(&proposed));
            const auto at_scale = [&](LONG left, LONG top, LONG width, LONG height) {
                return RECT{MulDiv(left, dpi, 96), MulDiv(top, dpi, 96), MulDiv(left + width, dpi, 96),
                            MulDiv(top + height, dpi, 96)};
            };
            EXPECT_TRUE(client_size(window) == (SIZE{MulDiv(301, dpi, 96), MulDiv(201, dpi, 96)})) << dpi;
            EXPECT_EQ(place_in_form(hands.control("Sample", "Box")), at_scale(11, 11, 101, 23)) << dpi;
            const RECT group = at_scale(11, 41, 201, 101);
            EXPECT_EQ(place_in_form(hands.control("Sample", "Group")), group) << dpi;
            // What touches goes on touching.
            EXPECT_EQ(place_in_form(hands.control("Sample", "Box")).right,
                      place_in_form(hands.control("Sample", "Fixed")).left)
                << dpi;
            EXPECT_EQ(font_of(hands.control("Sample", "Press")).lfHeight,
                      message_font(static_cast<unsigned>(dpi)).lfHeight);
        }
        EXPECT_EQ(place_in_form(hands.control("Sample", "List")), rect_of(11 + 7 + 5, 41 + 17 + 5, 51, 41));
    });
}

TEST_F(LayoutTest, AFormMadeLargerStretchesAndMovesItsControlsByTheirAnchors) {
    Sample form(environment, true);
    show(form, [&](Hands& hands) {
        const HWND window = hands.form("Sample");
        RECT outer{};
        GetWindowRect(window, &outer);
        SetWindowPos(window, nullptr, 0, 0, outer.right - outer.left + 100, outer.bottom - outer.top + 50,
                     SWP_NOMOVE);
        EXPECT_EQ(place_in_form(hands.control("Sample", "Box")), rect_of(11, 11, 201, 23));
        EXPECT_EQ(place_in_form(hands.control("Sample", "Fixed")), rect_of(212, 11, 51, 23));
        EXPECT_EQ(place_in_form(hands.control("Sample", "Group")), rect_of(11, 41, 301, 151));
        EXPECT_EQ(place_in_form(hands.control("Sample", "Area")), rect_of(118, 58, 101, 121));
        EXPECT_EQ(place_in_form(hands.control("Sample", "List")), rect_of(123, 113, 51, 41));
        EXPECT_EQ(place_in_form(hands.control("Sample", "Press")), rect_of(315, 220, 75, 23));
    });
}

TEST_F(LayoutTest, AFrameThatGrowsLeavesNothingOfItsFormerEdgeBehind) {
    Sample form(environment, true);
    show(form, [&](Hands& hands) {
        const HWND window = hands.form("Sample");
        const auto pixels = [&] {
            std::vector<COLORREF> found;
            hands.run([&] {
                UpdateWindow(window);
                const HDC dc = GetDC(window);
                for (int y = 136; y < 146; ++y) found.push_back(GetPixel(dc, 60, y));
                ReleaseDC(window, dc);
            });
            return found;
        };
        const std::vector<COLORREF> nothing(10, GetSysColor(COLOR_BTNFACE));
        hands.wait_until_idle();
        EXPECT_NE(pixels(), nothing) << "The edge is there.";
        RECT outer{};
        GetWindowRect(window, &outer);
        SetWindowPos(window, nullptr, 0, 0, outer.right - outer.left + 100, outer.bottom - outer.top + 60,
                     SWP_NOMOVE);
        hands.wait_until_idle();
        EXPECT_EQ(pixels(), nothing);
    });
}

TEST_F(LayoutTest, AResizableFormCannotBeMadeSmallerThanItsDesign) {
    Sample form(environment, true);
    show(form, [&](Hands& hands) {
        const HWND window = hands.form("Sample");
        EXPECT_TRUE(GetWindowLongW(window, GWL_STYLE) & WS_THICKFRAME);
        SetWindowPos(window, nullptr, 0, 0, 50, 50, SWP_NOMOVE);
        EXPECT_TRUE(client_size(window) == (SIZE{301, 201}));
        EXPECT_EQ(place_in_form(hands.control("Sample", "Press")), rect_of(215, 170, 75, 23));
    });
}

TEST_F(LayoutTest, CodeMovesControls) {
    Sample form(environment);
    show(form, [&](Hands& hands) {
        hands.form("Sample");
        hands.run([&] { form.run_event([&] { form.Area.set_place({17, 27, 91, 61}); }); });
        EXPECT_EQ(place_in_form(hands.control("Sample", "Area")), rect_of(28, 68, 91, 61));
        EXPECT_EQ(place_in_form(hands.control("Sample", "List")), rect_of(33, 73, 51, 41));
    });
}

} // namespace brx::checks
