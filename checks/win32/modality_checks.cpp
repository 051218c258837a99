#include "desk.h"

#include "forms/button.h"
#include "forms/text_box.h"
#include "forms/timer.h"

namespace brx::checks {

namespace {

class ModalityTest : public OnWindows {};

/// A small form whose button does what the check wants.
class Small : public Form {
public:
    explicit Small(Environment& on, const char* name = "Small")
        : Form(on, {.name = name, .caption = name, .size = {200, 100}}) {}

    std::function<void()> on_press;

    TextBox Text{*this, "Text", {.place = {10, 10, 100, 23}, .tab = 1}};
    Button Press{*this, "Press", {.place = {10, 40, 75, 23}, .caption = "&Press", .tab = 2, .Click = [this] {
                                      if (on_press) on_press();
                                  }}};
    Button Close{*this, "Close", {.place = {100, 40, 75, 23}, .caption = "Close", .tab = 3, .Click = [this] {
                                      unload();
                                  }}};
};

POINT middle_of(HWND window) {
    RECT rect{};
    GetWindowRect(window, &rect);
    return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
}

RECT work_area() {
    RECT area{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
    return area;
}

} // namespace

TEST_F(ModalityTest, EveryWindowOfTheThreadIsDisabledWhileAFormIsOpen) {
    const HostWindow shown;
    const HostWindow hidden({0, 0, 50, 50}, WS_OVERLAPPEDWINDOW);
    const HostWindow disabled({0, 0, 50, 50}, WS_OVERLAPPEDWINDOW | WS_DISABLED);
    SetForegroundWindow(shown.handle());
    Small form(environment);
    show(form, [&](Hands& hands) {
        hands.form("Small");
        EXPECT_FALSE(IsWindowEnabled(shown.handle()));
        EXPECT_FALSE(IsWindowEnabled(hidden.handle()));
        EXPECT_FALSE(IsWindowEnabled(disabled.handle()));
    });
    EXPECT_TRUE(IsWindowEnabled(shown.handle()));
    EXPECT_TRUE(IsWindowEnabled(hidden.handle()));
    EXPECT_FALSE(IsWindowEnabled(disabled.handle()));
}

TEST_F(ModalityTest, AWindowThatTheHostMakesMeanwhileIsNotTouched) {
    std::unique_ptr<HostWindow> late;
    Small form(environment);
    show(form, [&](Hands& hands) {
        hands.form("Small");
        hands.run([&] { late = std::make_unique<HostWindow>(); });
        EXPECT_TRUE(IsWindowEnabled(late->handle()));
    });
    EXPECT_TRUE(IsWindowEnabled(late->handle()));
}

TEST_F(ModalityTest, ANestedFormDisablesTheOneBelowUntilItCloses) {
    const HostWindow main;
    Small outer(environment, "Outer");
    Small inner(environment, "Inner");
    outer.on_press = [&] { inner.show_modal(); };
    show(outer, [&](Hands& hands) {
        const HWND below = hands.form("Outer");
        hands.press(hands.control("Outer", "Press"));
        const HWND front = hands.form("Inner");
        EXPECT_FALSE(IsWindowEnabled(below));
        EXPECT_FALSE(IsWindowEnabled(main.handle()));
        EXPECT_EQ(GetWindow(front, GW_OWNER), below);
        hands.press(hands.control("Inner", "Close"));
        EXPECT_EQ(hands.form("Outer"), below);
        EXPECT_FALSE(IsWindowEnabled(main.handle()));
        hands.run([&] { EXPECT_EQ(GetActiveWindow(), below); });
        EXPECT_EQ(hands.focus(), hands.control("Outer", "Press"));
    });
    EXPECT_TRUE(IsWindowEnabled(main.handle()));
}

TEST_F(ModalityTest, ClosingGivesTheFocusBackToTheHostsControl) {
    const HostWindow main;
    SetFocus(main.edit());
    ASSERT_EQ(GetFocus(), main.edit());
    Small form(environment);
    show(form, [&](Hands& hands) {
        EXPECT_EQ(GetWindow(hands.form("Small"), GW_OWNER), main.handle());
        EXPECT_EQ(hands.focus(), hands.control("Small", "Text"));
    });
    EXPECT_EQ(GetActiveWindow(), main.handle());
    EXPECT_EQ(GetFocus(), main.edit());
}

TEST_F(ModalityTest, WithoutAWindowOfTheHostAFormStandsAlone) {
    Small form(environment);
    show(form, [&](Hands& hands) {
        const HWND window = hands.form("Small");
        EXPECT_FALSE(GetWindow(window, GW_OWNER));
        hands.run([&] { EXPECT_EQ(GetActiveWindow(), window); });
        const RECT area = work_area();
        EXPECT_NEAR(middle_of(window).x, (area.left + area.right) / 2, 1);
        EXPECT_NEAR(middle_of(window).y, (area.top + area.bottom) / 2, 1);
    });
}

TEST_F(ModalityTest, APaletteOfTheHostStandsForTheWindowThatOwnsIt) {
    const HostWindow main;
    const HostWindow palette({10, 10, 100, 100}, WS_POPUPWINDOW | WS_CAPTION | WS_VISIBLE, WS_EX_TOOLWINDOW,
                             main.handle());
    ASSERT_EQ(GetActiveWindow(), palette.handle());
    Small form(environment);
    show(form, [&](Hands& hands) { EXPECT_EQ(GetWindow(hands.form("Small"), GW_OWNER), main.handle()); });
}

TEST_F(ModalityTest, AHostThatIsNotInFrontStillOwnsTheForm) {
    const HostWindow main;
    SetActiveWindow(nullptr);
    SetForegroundWindow(GetDesktopWindow());
    Small form(environment);
    show(form, [&](Hands& hands) { EXPECT_EQ(GetWindow(hands.form("Small"), GW_OWNER), main.handle()); });
}

TEST_F(ModalityTest, AFormOpensInTheMiddleOfItsOwner) {
    const HostWindow main({100, 80, 800, 600});
    Small form(environment);
    show(form, [&](Hands& hands) {
        const POINT middle = middle_of(hands.form("Small"));
        EXPECT_NEAR(middle.x, 450, 1);
        EXPECT_NEAR(middle.y, 340, 1);
    });
}

TEST_F(ModalityTest, AFormOpensOnTheScreenEvenWhereItsOwnerIsNot) {
    const RECT area = work_area();
    for (const POINT corner :
         {POINT{area.right - 60, area.bottom - 60}, POINT{area.left - 400, area.top - 300}}) {
        const HostWindow main({corner.x, corner.y, corner.x + 420, corner.y + 320});
        Small form(environment);
        show(form, [&](Hands& hands) {
            RECT rect{};
            GetWindowRect(hands.form("Small"), &rect);
            EXPECT_GE(rect.left, area.left);
            EXPECT_GE(rect.top, area.top);
            EXPECT_LE(rect.right, area.right);
            EXPECT_LE(rect.bottom, area.bottom);
        });
    }
}

TEST_F(ModalityTest, AFormOverAMinimizedOwnerOpensInTheMiddleOfTheScreen) {
    const HostWindow main;
    ShowWindow(main.handle(), SW_MINIMIZE);
    Small form(environment);
    show(form, [&](Hands& hands) {
        const HWND window = hands.form("Small");
        EXPECT_TRUE(IsWindowVisible(window));
        const RECT area = work_area();
        EXPECT_NEAR(middle_of(window).x, (area.left + area.right) / 2, 1);
        EXPECT_NEAR(middle_of(window).y, (area.top + area.bottom) / 2, 1);
    });
}

TEST_F(ModalityTest, AQuitMessageClosesTheFormsAndReachesTheHost) {
    Small outer(environment, "Outer");
    Small inner(environment, "Inner");
    bool outer_went_on = false;
    outer.on_press = [&] {
        inner.show_modal();
        outer_went_on = outer.loaded();
    };
    while_showing(
        [&] {
            outer.show_modal();
            MSG message{};
            ASSERT_TRUE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
            EXPECT_EQ(message.wParam, 17u);
        },
        [&](Hands& hands) {
            hands.form("Outer");
            hands.press(hands.control("Outer", "Press"));
            hands.form("Inner");
            PostThreadMessageW(windows.id(), WM_QUIT, 17, 0);
            EXPECT_TRUE(Hands::eventually([&] { return !outer.loaded(); }));
        });
    EXPECT_TRUE(outer_went_on);
}

TEST_F(ModalityTest, AFormWhoseOwnerIsDestroyedUnloads) {
    HostWindow main;
    Small outer(environment, "Outer");
    Small inner(environment, "Inner");
    outer.on_press = [&] {
        inner.show_modal();
        EXPECT_FALSE(outer.loaded());
        outer.Text.set_text("still there");
        outer.Text.set_enabled(false);
    };
    show(outer, [&](Hands& hands) {
        hands.form("Outer");
        hands.press(hands.control("Outer", "Press"));
        hands.form("Inner");
        hands.run([&] { DestroyWindow(main.handle()); });
    });
    EXPECT_EQ(outer.Text.text(), "still there");
}

TEST_F(ModalityTest, TheCloseBoxClosesOnlyTheFormInFront) {
    Small outer(environment, "Outer");
    Small inner(environment, "Inner");
    outer.on_press = [&] { inner.show_modal(); };
    show(outer, [&](Hands& hands) {
        const HWND below = hands.form("Outer");
        hands.press(hands.control("Outer", "Press"));
        const HWND front = hands.form("Inner");
        PostMessageW(below, WM_CLOSE, 0, 0);
        hands.wait_until_idle();
        EXPECT_TRUE(IsWindow(below));
        PostMessageW(front, WM_SYSCOMMAND, SC_CLOSE, 0);
        EXPECT_EQ(hands.form("Outer"), below);
        EXPECT_FALSE(IsWindow(front));
    });
}

TEST_F(ModalityTest, AFormThatUnloadsInAMessageOfAnotherThreadClosesAtOnce) {
    Small form(environment);
    show(form, [&](Hands& hands) {
        const HWND window = hands.form("Small");
        SendMessageW(hands.control("Small", "Close"), BM_CLICK, 0, 0);
        EXPECT_TRUE(Hands::eventually([&] { return !IsWindow(window); }));
    });
}

TEST_F(ModalityTest, WhatComesWhileAHandlerRunsIsRefused) {
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

TEST_F(ModalityTest, TimersOfTheFormsBelowTickWhileAFormIsInFront) {
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
