#include "small_form.h"

namespace brx::checks {

namespace {

class OwnerTest : public OnWindows {};

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

TEST_F(OwnerTest, ClosingGivesTheFocusBackToTheHostsControl) {
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

TEST_F(OwnerTest, WithoutAWindowOfTheHostAFormStandsAlone) {
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

TEST_F(OwnerTest, APaletteOfTheHostStandsForTheWindowThatOwnsIt) {
    const HostWindow main;
    const HostWindow palette({10, 10, 100, 100}, WS_POPUPWINDOW | WS_CAPTION | WS_VISIBLE, WS_EX_TOOLWINDOW,
                             main.handle());
    ASSERT_EQ(GetActiveWindow(), palette.handle());
    Small form(environment);
    show(form, [&](Hands& hands) { EXPECT_EQ(GetWindow(hands.form("Small"), GW_OWNER), main.handle()); });
}

TEST_F(OwnerTest, AHostThatIsNotInFrontStillOwnsTheForm) {
    const HostWindow main;
    SetActiveWindow(nullptr);
    SetForegroundWindow(GetDesktopWindow());
    Small form(environment);
    show(form, [&](Hands& hands) { EXPECT_EQ(GetWindow(hands.form("Small"), GW_OWNER), main.handle()); });
}

TEST_F(OwnerTest, AFormOpensInTheMiddleOfItsOwner) {
    const HostWindow main({100, 80, 800, 600});
    Small form(environment);
    show(form, [&](Hands& hands) {
        const POINT middle = middle_of(hands.form("Small"));
        EXPECT_NEAR(middle.x, 450, 1);
        EXPECT_NEAR(middle.y, 340, 1);
    });
}

TEST_F(OwnerTest, AFormOpensOnTheScreenEvenWhereItsOwnerIsNot) {
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

TEST_F(OwnerTest, AFormOverAMinimizedOwnerOpensInTheMiddleOfTheScreen) {
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

} // namespace brx::checks
