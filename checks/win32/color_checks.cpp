#include "high_contrast.h"
#include "looks.h"
#include "sample_form.h"

namespace brx::checks {

namespace {

class ColorsTest : public OnWindows {};

constexpr Color mint = 0x00C0F0C0;

} // namespace

TEST_F(ColorsTest, ColorsSetByCodeAreShown) {
    Sample form(environment);
    show(form, [&](Hands& hands) {
        hands.form("Sample");
        hands.run([&] {
            form.run_event([&] {
                form.Box.set_back_color(mint);
                form.Box.set_fore_color(color::red);
            });
        });
        const Paint paint = paint_of(hands, hands.control("Sample", "Box"), WM_CTLCOLOREDIT);
        EXPECT_TRUE(paint.told);
        EXPECT_EQ(paint.text, color::red);
        EXPECT_EQ(paint.background, mint);
    });
}

TEST_F(ColorsTest, ColorsFollowTheSystemsEvenWhileTheFormIsOpen) {
    Sample form(environment);
    show(form, [&](Hands& hands) {
        hands.form("Sample");
        const HWND box = hands.control("Sample", "Box");
        const HWND fixed = hands.control("Sample", "Fixed");
        EXPECT_EQ(paint_of(hands, box, WM_CTLCOLOREDIT).background, GetSysColor(COLOR_WINDOW));
        const SystemColor dark(COLOR_WINDOW, 0x00100000);
        const SystemColor light(COLOR_WINDOWTEXT, 0x00FFFFF0);
        const SystemColor face(COLOR_BTNFACE, 0x00200000);
        hands.wait_until_idle();
        EXPECT_EQ(paint_of(hands, box, WM_CTLCOLOREDIT).background, 0x00100000u);
        EXPECT_EQ(paint_of(hands, box, WM_CTLCOLOREDIT).text, 0x00FFFFF0u);
        EXPECT_EQ(paint_of(hands, fixed, WM_CTLCOLORSTATIC).background, 0x00200000u);
    });
}

TEST_F(ColorsTest, ADisabledControlIsLeftToTheSystemsColors) {
    Sample form(environment);
    show(form, [&](Hands& hands) {
        hands.form("Sample");
        hands.run([&] {
            form.run_event([&] {
                form.Box.set_back_color(mint);
                form.Box.set_enabled(false);
            });
        });
        EXPECT_FALSE(paint_of(hands, hands.control("Sample", "Box"), WM_CTLCOLORSTATIC).background == mint);
    });
}

TEST_F(ColorsTest, InHighContrastAColorOfItsOwnIsTheSystemsTwoExchanged) {
    const HighContrast chosen;
    Sample form(environment);
    show(form, [&](Hands& hands) {
        hands.form("Sample");
        const HWND box = hands.control("Sample", "Box");
        const auto looks_of = [&](Color text, Color back) {
            hands.run([&] {
                form.run_event([&] {
                    form.Box.set_fore_color(text);
                    form.Box.set_back_color(back);
                });
            });
            return paint_of(hands, box, WM_CTLCOLOREDIT);
        };
        const COLORREF window = GetSysColor(COLOR_WINDOW);
        const COLORREF window_text = GetSysColor(COLOR_WINDOWTEXT);
        for (const Paint& paint :
             {looks_of(color::window_text, color::red), looks_of(color::red, color::window)}) {
            EXPECT_EQ(paint.text, window);
            EXPECT_EQ(paint.background, window_text);
        }
        const Paint usual = looks_of(color::window_text, color::window);
        EXPECT_EQ(usual.text, window_text);
        EXPECT_EQ(usual.background, window);
    });
}

} // namespace brx::checks
