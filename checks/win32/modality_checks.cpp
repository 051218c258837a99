#include "small_form.h"

namespace brx::checks {

namespace {

class ModalityTest : public OnWindows {};

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

TEST_F(ModalityTest, AQuitMessageClosesAMessageBoxAsItsCloseBoxAndTheFormBelow) {
    Small form(environment);
    std::vector<std::int32_t> pressed;
    form.on_press = [&] {
        pressed.push_back(engine.message_box({"Remove it?", message::ok_cancel, "Small"}));
        pressed.push_back(engine.message_box({"It is removed.", message::information, "Small"}));
    };
    while_showing(
        [&] {
            form.show_modal();
            MSG message{};
            ASSERT_TRUE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
            EXPECT_EQ(message.wParam, 17U);
        },
        [&](Hands& hands) {
            hands.press(hands.control("Small", "Press"));
            hands.message_box();
            PostThreadMessageW(windows.id(), WM_QUIT, 17, 0);
            EXPECT_TRUE(Hands::eventually([&] { return !form.loaded(); }));
        });
    EXPECT_EQ(pressed, (std::vector<std::int32_t>{message::cancel, message::ok}));
}

TEST_F(ModalityTest, AMessageBoxWhoseOwnerIsDestroyedAnswersAsItsCloseBox) {
    HostWindow main;
    Small form(environment);
    std::vector<std::int32_t> pressed;
    form.on_press = [&] {
        pressed.push_back(engine.message_box({"Remove it?", message::ok_cancel, "Small"}));
        EXPECT_FALSE(form.loaded());
    };
    show(form, [&](Hands& hands) {
        hands.press(hands.control("Small", "Press"));
        hands.message_box();
        hands.run([&] { DestroyWindow(main.handle()); });
    });
    EXPECT_EQ(pressed, (std::vector<std::int32_t>{message::cancel}));
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

} // namespace brx::checks
