#include "desk/desk.h"

#include "rules/desk_form.h"
#include "rules/letter_form.h"

namespace brx::checks {

namespace {

class KeyboardTest : public OnWindows {};

bool looks_default(HWND button) {
    return (SendMessageW(button, WM_GETDLGCODE, 0, 0) & DLGC_DEFPUSHBUTTON) != 0;
}

} // namespace

TEST_F(KeyboardTest, EscapeOnlyClosesADropDownListThatIsOpen) {
    DeskForm desk(environment);
    show(desk, [&](Hands& hands) {
        hands.form("Desk");
        const HWND choice = hands.control("Desk", "Choice");
        hands.run([&] {
            SetFocus(choice);
            SendMessageW(choice, CB_SHOWDROPDOWN, TRUE, 0);
        });
        hands.key(VK_DOWN);
        hands.key(VK_ESCAPE);
        EXPECT_FALSE(SendMessageW(choice, CB_GETDROPPEDSTATE, 0, 0));
        EXPECT_EQ(desk.events, "");
        hands.run([&] { EXPECT_EQ(desk.Choice.selected(), SendMessageW(choice, CB_GETCURSEL, 0, 0)); });
        hands.key(VK_ESCAPE);
        EXPECT_EQ(desk.events, "Cancel ");
    });
}

TEST_F(KeyboardTest, TheFrameOfTheDefaultButtonFollowsTheFocus) {
    DeskForm desk(environment);
    show(desk, [&](Hands& hands) {
        hands.form("Desk");
        const HWND ok = hands.control("Desk", "OK");
        const HWND apply = hands.control("Desk", "Apply");
        EXPECT_TRUE(looks_default(ok));
        hands.click(apply);
        EXPECT_TRUE(looks_default(apply));
        EXPECT_FALSE(looks_default(ok));
        hands.click(hands.control("Desk", "Name"));
        EXPECT_TRUE(looks_default(ok));
        EXPECT_FALSE(looks_default(apply));
    });
}

TEST_F(KeyboardTest, TheHelpKeyOpensTheHelpFileAtTheTopicOfTheForm) {
    DeskForm desk(environment);
    environment.help_file = "C:\\help\\plant.chm";
    show(desk, [&](Hands& hands) {
        hands.form("Desk");
        hands.run([&] { desk.set_help_topic(195); });
        hands.key(VK_F1);
    });
    EXPECT_EQ(help_opened, std::vector<std::string>{"C:\\help\\plant.chm at 195"});
}

TEST_F(KeyboardTest, AltAndF4ClosesTheFormWithoutPressingAnything) {
    DeskForm desk(environment);
    show(desk, [&](Hands& hands) {
        const HWND window = hands.form("Desk");
        Hands::strike({VK_MENU, VK_F4});
        EXPECT_TRUE(Hands::eventually([&] { return !IsWindow(window); }));
    });
    EXPECT_EQ(desk.events, "");
}

TEST_F(KeyboardTest, LettersAreADropDownListsAndATabStripsOwn) {
    LetterForm form(environment);
    show(form, [&](Hands& hands) {
        hands.form("Letters");
        for (const char* from : {"Choice", "Tabs"}) {
            hands.run([&] { SetFocus(hands.control("Letters", from)); });
            hands.type("dnc2");
            EXPECT_EQ(hands.focus(), hands.control("Letters", from));
        }
        EXPECT_EQ(form.events, "");
        hands.run([&] { EXPECT_EQ(form.Tabs.selected(), 1); });
    });
}

} // namespace brx::checks
