#include "small_form.h"

#include "forms/timer.h"

namespace brx::checks {

namespace {

class TurnTest : public OnWindows {};

} // namespace

TEST_F(TurnTest, WhatComesWhileAHandlerRunsIsRefused) {
    Small form(environment);
    int presses = 0;
    form.on_press = [&] {
        ++presses;
        // A host that serves messages while it works.
        for (int i = 0; i < 40; ++i) {
            MSG message{};
            while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
                TranslateMessage(&message);
                DispatchMessageW(&message);
            }
            Sleep(10);
        }
    };
    show(form, [&](Hands& hands) {
        const HWND window = hands.form("Small");
        const HWND press = hands.control("Small", "Press");
        const HWND text = hands.control("Small", "Text");
        PostMessageW(press, BM_CLICK, 0, 0);
        EXPECT_TRUE(Hands::eventually([&] { return presses == 1; }));
        PostMessageW(press, BM_CLICK, 0, 0);
        SendMessageW(text, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"sneaked in"));
        PostMessageW(text, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(3, 3));
        PostMessageW(text, WM_LBUTTONUP, 0, MAKELPARAM(3, 3));
        PostMessageW(window, WM_CLOSE, 0, 0);
        Sleep(500);
        hands.wait_until_idle();
        EXPECT_EQ(presses, 1);
        EXPECT_EQ(Hands::text(text), L"");
        hands.run([&] {
            EXPECT_TRUE(form.loaded());
            EXPECT_EQ(form.Text.text(), "");
            EXPECT_EQ(form.focused(), &form.Press);
        });
        EXPECT_EQ(hands.focus(), press);
    });
}

TEST_F(TurnTest, TimersOfTheFormsBelowTickWhileAFormIsInFront) {
    class Ticking : public Small {
    public:
        explicit Ticking(Environment& on) : Small(on, "Ticking") {}
        int ticks = 0;
        Timer Timer1{*this, "Timer1", {.interval = 20, .Timer = [this] { ++ticks; }}};
    } outer(environment);
    Small inner(environment, "Inner");
    int before = 0;
    outer.on_press = [&] {
        Sleep(100); // none during a handler
        before = outer.ticks;
        inner.show_modal();
    };
    show(outer, [&](Hands& hands) {
        hands.form("Ticking");
        EXPECT_TRUE(Hands::eventually([&] { return outer.ticks > 1; }));
        PostMessageW(hands.control("Ticking", "Press"), BM_CLICK, 0, 0);
        hands.form("Inner");
        EXPECT_TRUE(Hands::eventually([&] { return outer.ticks > before + 3; }));
        hands.run([&] { outer.run_event([&] { outer.Timer1.set_enabled(false); }); });
        hands.wait_until_idle();
        const int stopped = outer.ticks;
        Sleep(100);
        EXPECT_EQ(outer.ticks, stopped);
    });
}

} // namespace brx::checks
