#include "desk/desk.h"

#include "forms/button.h"
#include "forms/check_box.h"
#include "forms/frame.h"
#include "forms/label.h"
#include "forms/list_control.h"
#include "forms/text_box.h"

namespace brx::checks {

namespace {

class KeyboardTest : public OnWindows {};

/// Notes what was pressed.
class Desk : public Form {
public:
    explicit Desk(Environment& on) : Form(on, {.name = "Desk", .caption = "Desk", .size = {400, 200}}) {}

    std::string pressed;
    std::vector<std::int32_t> typed;

    // clang-format off
    Label   Caption  {*this, "Caption",   {.place = {10, 10, 80, 15}, .caption = "&Name:", .tab = 1}};
    TextBox Name     {*this, "Name",      {.place = {100, 10, 80, 23}, .tab = 2}};
    TextBox Search   {*this, "Search",    {.place = {100, 40, 80, 23}, .tab = 3, .takes_enter = true,
                                           .KeyPress = [this](std::int32_t& key) { typed.push_back(key); }}};
    Label   Data     {*this, "Data",      {.place = {10, 70, 80, 15}, .caption = "&Zoo", .tab = 4, .mnemonic = false}};
    TextBox ReadOnly {*this, "ReadOnly",  {.place = {100, 70, 80, 23}, .tab = 5, .text = "x", .display_only = true}};
    Frame   Group    {*this, "Group",     {.place = {200, 10, 180, 100}, .caption = "Group", .tab = 6}};
    CheckBox Tick    {Group, "Tick",      {.place = {10, 20, 80, 17}, .caption = "&Tick", .tab = 7}};
    TextBox Hidden   {Group, "Hidden",    {.place = {10, 40, 80, 23}, .tab = 8, .visible = false}};
    TextBox Disabled {Group, "Disabled",  {.place = {10, 65, 80, 23}, .tab = 9, .enabled = false}};
    ComboBox Choice  {*this, "Choice",    {.place = {10, 120, 100, 23}, .tab = 10}};
    Button  Apply    {*this, "Apply",     {.place = {130, 160, 75, 23}, .caption = "&Apply", .tab = 11,
                                           .Click = [this] { pressed += "Apply "; }}};
    Button  OK       {*this, "OK",        {.place = {210, 160, 75, 23}, .caption = "OK", .tab = 12, .is_default = true,
                                           .Click = [this] { pressed += "OK "; }}};
    Button  Cancel   {*this, "Cancel",    {.place = {290, 160, 75, 23}, .caption = "Cancel", .tab = 13,
                                           .is_cancel = true, .Click = [this] { pressed += "Cancel "; }}};
    // clang-format on

    void Form_Load() override {
        for (const char* each : {"one", "two", "three"}) Choice.add_line(each);
        Choice.select(0);
    }
};

bool looks_default(HWND button) {
    return (SendMessageW(button, WM_GETDLGCODE, 0, 0) & DLGC_DEFPUSHBUTTON) != 0;
}

} // namespace

TEST_F(KeyboardTest, EnterInATextBoxPressesTheDefaultButton) {
    Desk desk(environment);
    show(desk, [&](Hands& hands) {
        hands.form("Desk");
        EXPECT_EQ(hands.focus(), hands.control("Desk", "Name"));
        hands.key(VK_RETURN);
    });
    EXPECT_EQ(desk.pressed, "OK ");
}

TEST_F(KeyboardTest, EnterPressesTheButtonWithTheFocus) {
    Desk desk(environment);
    show(desk, [&](Hands& hands) {
        hands.form("Desk");
        hands.run([&] { SetFocus(hands.control("Desk", "Apply")); });
        hands.key(VK_RETURN);
    });
    EXPECT_EQ(desk.pressed, "Apply ");
}

TEST_F(KeyboardTest, EnterDoesNothingWhileTheDefaultButtonIsDisabled) {
    Desk desk(environment);
    show(desk, [&](Hands& hands) {
        hands.form("Desk");
        hands.run([&] { desk.run_event([&] { desk.OK.set_enabled(false); }); });
        hands.key(VK_RETURN);
    });
    EXPECT_EQ(desk.pressed, "");
}

TEST_F(KeyboardTest, EnterGoesToABoxThatTakesItAndNowhereElse) {
    Desk desk(environment);
    show(desk, [&](Hands& hands) {
        hands.form("Desk");
        hands.key(VK_TAB);
        EXPECT_EQ(hands.focus(), hands.control("Desk", "Search"));
        hands.type("a");
        hands.key(VK_RETURN);
        EXPECT_EQ(Hands::text(hands.focus()), L"a");
    });
    EXPECT_EQ(desk.pressed, "");
    EXPECT_EQ(desk.typed, (std::vector<std::int32_t>{'a', 13}));
}

TEST_F(KeyboardTest, EscapePressesTheCancelButtonWhileItCanBePressed) {
    Desk desk(environment);
    show(desk, [&](Hands& hands) {
        hands.form("Desk");
        hands.key(VK_ESCAPE);
        EXPECT_EQ(desk.pressed, "Cancel ");
        hands.run([&] { desk.run_event([&] { desk.Cancel.set_enabled(false); }); });
        hands.key(VK_ESCAPE);
        EXPECT_EQ(desk.pressed, "Cancel ");
        hands.form("Desk");
    });
}

TEST_F(KeyboardTest, EscapeDoesNothingWhereThereIsNoCancelButton) {
    class Plain : public Form {
    public:
        explicit Plain(Environment& on)
            : Form(on, {.name = "Plain", .caption = "Plain", .size = {100, 50}}) {}
        Button OK{*this, "OK", {.place = {10, 10, 75, 23}, .caption = "OK", .is_default = true}};
    } plain(environment);
    show(plain, [&](Hands& hands) {
        hands.form("Plain");
        hands.key(VK_ESCAPE);
        hands.form("Plain");
    });
}

TEST_F(KeyboardTest, EscapeOnlyClosesADropDownListThatIsOpen) {
    Desk desk(environment);
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
        EXPECT_EQ(desk.pressed, "");
        hands.run([&] { EXPECT_EQ(desk.Choice.selected(), SendMessageW(choice, CB_GETCURSEL, 0, 0)); });
        hands.key(VK_ESCAPE);
        EXPECT_EQ(desk.pressed, "Cancel ");
    });
}

TEST_F(KeyboardTest, TabGoesThroughTheControlsInTabOrderAndBack) {
    Desk desk(environment);
    show(desk, [&](Hands& hands) {
        hands.form("Desk");
        const std::vector<std::string> order = {"Name",   "Search", "ReadOnly", "Tick",
                                                "Choice", "Apply",  "OK",       "Cancel"};
        for (const std::string& each : order) {
            EXPECT_EQ(hands.focus(), hands.control("Desk", each)) << each;
            hands.run([&] { EXPECT_EQ(desk.focused() ? desk.focused()->name() : "", each); });
            hands.key(VK_TAB);
        }
        EXPECT_EQ(hands.focus(), hands.control("Desk", "Name"));
        hands.keys({VK_SHIFT, VK_TAB});
        EXPECT_EQ(hands.focus(), hands.control("Desk", "Cancel"));
    });
}

TEST_F(KeyboardTest, TheAcceleratorOfALabelMovesTheFocusToTheControlThatItNames) {
    Desk desk(environment);
    show(desk, [&](Hands& hands) {
        hands.form("Desk");
        hands.key(VK_TAB);
        hands.keys({VK_MENU, 'N'});
        EXPECT_EQ(hands.focus(), hands.control("Desk", "Name"));
    });
}

TEST_F(KeyboardTest, TheAcceleratorOfAButtonPressesItAndThatOfACheckBoxTicksIt) {
    Desk desk(environment);
    show(desk, [&](Hands& hands) {
        hands.form("Desk");
        hands.keys({VK_MENU, 'A'});
        EXPECT_EQ(desk.pressed, "Apply ");
        hands.keys({VK_MENU, 'T'});
        EXPECT_EQ(SendMessageW(hands.control("Desk", "Tick"), BM_GETCHECK, 0, 0), BST_CHECKED);
        hands.run([&] { EXPECT_EQ(desk.Tick.value(), 1); });
    });
}

TEST_F(KeyboardTest, AnAmpersandInDataIsNoAccelerator) {
    Desk desk(environment);
    show(desk, [&](Hands& hands) {
        hands.form("Desk");
        hands.keys({VK_MENU, 'Z'});
        hands.run([&] { EXPECT_EQ(desk.focused()->name(), "Name"); });
        EXPECT_EQ(hands.focus(), hands.control("Desk", "Name"));
    });
}

TEST_F(KeyboardTest, TheBlankPressesTheButtonWithTheFocusAndTicksACheckBox) {
    Desk desk(environment);
    show(desk, [&](Hands& hands) {
        hands.form("Desk");
        hands.run([&] { SetFocus(hands.control("Desk", "Apply")); });
        hands.key(VK_SPACE);
        EXPECT_EQ(desk.pressed, "Apply ");
        hands.run([&] { SetFocus(hands.control("Desk", "Tick")); });
        hands.key(VK_SPACE);
        hands.run([&] { EXPECT_EQ(desk.Tick.value(), 1); });
        hands.key(VK_SPACE);
        hands.run([&] { EXPECT_EQ(desk.Tick.value(), 0); });
    });
}

TEST_F(KeyboardTest, TheFrameOfTheDefaultButtonFollowsTheFocus) {
    Desk desk(environment);
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
    Desk desk(environment);
    environment.help_file = "C:\\help\\plant.chm";
    show(desk, [&](Hands& hands) {
        hands.form("Desk");
        hands.run([&] { desk.set_help_topic(195); });
        hands.key(VK_F1);
    });
    EXPECT_EQ(help_opened, std::vector<std::string>{"C:\\help\\plant.chm at 195"});
}

TEST_F(KeyboardTest, AltAndF4ClosesTheFormWithoutPressingAnything) {
    Desk desk(environment);
    show(desk, [&](Hands& hands) {
        const HWND window = hands.form("Desk");
        Hands::strike({VK_MENU, VK_F4});
        EXPECT_TRUE(Hands::eventually([&] { return !IsWindow(window); }));
    });
    EXPECT_EQ(desk.pressed, "");
}

} // namespace brx::checks
