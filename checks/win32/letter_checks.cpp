// Letters that are typed where the focus has no use for them.

#include "desk/desk.h"

#include "forms/button.h"
#include "forms/check_box.h"
#include "forms/label.h"
#include "forms/list_control.h"
#include "forms/tab_strip.h"
#include "forms/text_box.h"

namespace brx::checks {

namespace {

class LetterTest : public OnWindows {};

class Letters : public Form {
public:
    explicit Letters(Environment& on)
        : Form(on, {.name = "Letters", .caption = "Letters", .size = {400, 240}}) {}

    std::string pressed;

    // clang-format off
    Label    Caption {*this, "Caption",  {.place = {10, 10, 80, 15}, .caption = "&Name:", .tab = 1}};
    TextBox  Name    {*this, "Name",     {.place = {100, 10, 80, 23}, .tab = 2}};
    TextBox  Shown   {*this, "Shown",    {.place = {190, 10, 80, 23}, .tab = 3, .text = "x", .display_only = true}};
    ComboBox Choice  {*this, "Choice",   {.place = {280, 10, 80, 23}, .tab = 4}};
    Button   Edit    {*this, "Edit",     {.place = {10, 40, 75, 23}, .caption = "&C. Edit", .tab = 5,
                                          .Click = [this] { pressed += "Edit "; }}};
    Button   Remove  {*this, "Remove",   {.place = {90, 40, 75, 23}, .caption = "&D. Remove", .tab = 6,
                                          .Click = [this] { pressed += "Remove "; }}};
    CheckBox Tick    {*this, "Tick",     {.place = {10, 70, 75, 17}, .caption = "Ti&ck", .tab = 7}};
    Button   Close   {*this, "Close",    {.place = {90, 70, 75, 23}, .caption = "&Close", .tab = 8,
                                          .Click = [this] { pressed += "Close "; }}};
    TabStrip Tabs    {*this, "Tabs",     {.place = {10, 100, 300, 100}, .captions = {"&1 One", "&2 Two"}, .tab = 9}};
    // clang-format on

    void Form_Load() override {
        for (const char* each : {"one", "none"}) Choice.add_line(each);
    }
};

} // namespace

TEST_F(LetterTest, DoWhatTheyDoWithAltWhereTheFocusTakesNoCharacters) {
    Letters form(environment);
    show(form, [&](Hands& hands) {
        hands.form("Letters");
        for (const char* from : {"Close", "Tick"}) {
            form.pressed.clear();
            hands.run([&] { SetFocus(hands.control("Letters", from)); });
            hands.type("d");
            EXPECT_EQ(form.pressed, "Remove ") << from;
            hands.type("n");
            EXPECT_EQ(hands.focus(), hands.control("Letters", "Name")) << from;
        }
        hands.run([&] { SetFocus(hands.control("Letters", "Close")); });
        hands.type("2");
        hands.run([&] { EXPECT_EQ(form.Tabs.selected(), 2); });
    });
}

TEST_F(LetterTest, AreTheBoxesAndListsOwnOtherwise) {
    Letters form(environment);
    show(form, [&](Hands& hands) {
        hands.form("Letters");
        hands.type("dc2");
        EXPECT_EQ(Hands::text(hands.control("Letters", "Name")), L"dc2");
        for (const char* from : {"Shown", "Choice", "Tabs"}) {
            hands.run([&] { SetFocus(hands.control("Letters", from)); });
            hands.type("dnc2");
            EXPECT_EQ(hands.focus(), hands.control("Letters", from));
        }
        EXPECT_EQ(form.pressed, "");
        hands.run([&] { EXPECT_EQ(form.Tabs.selected(), 1); });
    });
}

TEST_F(LetterTest, ThatSeveralShareGoFromOneToTheNextAndPressNone) {
    Letters form(environment);
    show(form, [&](Hands& hands) {
        hands.form("Letters");
        hands.run([&] { SetFocus(hands.control("Letters", "Remove")); });
        for (const char* next : {"Tick", "Close", "Edit", "Tick"}) {
            hands.type("c");
            EXPECT_EQ(hands.focus(), hands.control("Letters", next));
        }
        for (const char* next : {"Close", "Edit", "Tick"}) {
            hands.keys({VK_MENU, 'C'});
            EXPECT_EQ(hands.focus(), hands.control("Letters", next));
        }
        EXPECT_EQ(form.pressed, "");
        hands.run([&] { EXPECT_EQ(form.Tick.value(), 0); });
    });
}

} // namespace brx::checks
