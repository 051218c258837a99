#include "small_form.h"

#include "desk/hands.h"
#include "forms/timer.h"

#include <atomic>

namespace brx::checks {

namespace {

class TurnTest : public OnWindows {};

} // namespace

TEST_F(TurnTest, WhatComesWhileAHandlerRunsWaitsAndWhatNoPersonDoesIsRefused) {
    Small form(environment);
    std::atomic<int> presses = 0;
    std::atomic<bool> works = true;
    std::atomic<int> rounds = 0;
    form.on_press = [&] {
        ++presses;
        // A host that serves messages while it works.
        while (works) {
            MSG message{};
            while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
                TranslateMessage(&message);
                DispatchMessageW(&message);
            }
            ++rounds;
            Sleep(1);
        }
    };
    const auto takes_what_came = [&] {
        const int before = rounds;
        EXPECT_TRUE(Hands::eventually([&] { return rounds > before + 100; }));
    };
    show(form, [&](Hands& hands) {
        const HWND window = hands.form("Small");
        const HWND press = hands.control("Small", "Press");
        const HWND text = hands.control("Small", "Text");
        PostMessageW(press, BM_CLICK, 0, 0);
        EXPECT_TRUE(Hands::eventually([&] { return presses == 1; }));
        SendMessageW(text, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"sneaked in"));
        click(text, {3, 3});
        Hands::strike({'A'});
        Hands::strike({VK_SHIFT, 'B'});
        takes_what_came();
        EXPECT_EQ(Hands::text(text), L"");
        EXPECT_EQ(hands.focus(), press);
        works = false;
        hands.wait_until_idle();
        EXPECT_EQ(presses, 1);
        EXPECT_EQ(hands.focus(), text);
        hands.run([&] { EXPECT_EQ(form.Text.text(), "aB"); });

        works = true;
        PostMessageW(press, BM_CLICK, 0, 0);
        EXPECT_TRUE(Hands::eventually([&] { return presses == 2; }));
        PostMessageW(window, WM_CLOSE, 0, 0);
        takes_what_came();
        hands.run([&] { EXPECT_TRUE(form.loaded()); });
        works = false;
        EXPECT_TRUE(Hands::eventually([&] { return !IsWindow(window); }));
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
