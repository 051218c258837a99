// What a person does while code of the form runs and foreign code takes the input.

#include "rules/rule.h"

#include "forms/button.h"
#include "forms/check_box.h"
#include "forms/list_control.h"
#include "forms/text_box.h"
#include "forms/timer.h"

namespace brx::checks {

namespace {

class WaitingForm : public Form {
public:
    explicit WaitingForm(Environment& on)
        : Form(on, {.name = "Waiting", .caption = "Waiting", .size = {300, 200}}) {}

    std::string events;
    std::function<void()> on_press = [] {};
    std::function<void()> on_key = [] {};
    std::function<void()> on_tick = [] {};

    // clang-format off
    TextBox  Box   {*this, "Box",    {.place = {10, 10, 90, 23}, .tab = 1, .KeyDown = [this](std::int32_t) { on_key(); }}};
    TextBox  Next  {*this, "Next",   {.place = {10, 40, 90, 23}, .tab = 2, .text = "next"}};
    ListBox  List  {*this, "List",   {.place = {110, 10, 90, 60}, .tab = 3,
                                      .Click = [this] { events += "List" + std::to_string(List.selected()) + " "; },
                                      .DblClick = [this] { events += "Twice "; }}};
    CheckBox Tick  {*this, "Tick",   {.place = {110, 80, 90, 17}, .caption = "&Tick", .tab = 4,
                                      .Click = [this] { events += "Tick "; }}};
    Button   Press {*this, "Press",  {.place = {10, 160, 75, 23}, .caption = "&Press", .tab = 5,
                                      .Click = [this] { events += "Press "; on_press(); }}};
    Button   Cancel{*this, "Cancel", {.place = {100, 160, 75, 23}, .caption = "Cancel", .tab = 6, .is_cancel = true,
                                      .Click = [this] { events += "Cancel "; }}};
    Timer    Timer1{*this, "Timer1", {.interval = 1000, .enabled = false, .Timer = [this] { events += "Timer "; on_tick(); }}};
    // clang-format on

    using Form::show_message;

    void Form_Load() override {
        for (const char* each : {"one", "two", "three"}) List.add_line(each);
    }
};

class WhileCodeRuns : public RuleOf<WaitingForm> {};

} // namespace

TEST_F(WhileCodeRuns, WhatIsTypedIsKeptAndTypedAfterwards) {
    while_open([&] {
        while_code_pumps([&] {
            person.types("Ab");
            EXPECT_EQ(person.reads("Box"), "");
        });
        EXPECT_EQ(person.reads("Box"), "Ab");
    });
}

TEST_F(WhileCodeRuns, EverythingIsKeptInItsOrder) {
    while_open([&] {
        while_code_pumps([&] {
            person.types("a");
            person.hits(Key::tab);
            person.types("B");
            person.presses("Press");
            person.ticks("Tick");
            person.picks("List", "two");
            person.double_clicks("List", "three");
            person.uses_accelerator('p');
            EXPECT_EQ(told(), "");
        });
        EXPECT_EQ(person.reads("Box"), "a");
        EXPECT_EQ(person.reads("Next"), "B") << "The key went where the focus had gone.";
        EXPECT_EQ(told(), "Press Tick List1 List2 Twice Press ");
        EXPECT_EQ(focused(), "Press");
    });
}

TEST_F(WhileCodeRuns, AKeyIsHeldDownTogetherWithWhatItWasHeldDownWith) {
    while_open([&] {
        person.hits(Key::tab);
        EXPECT_EQ(focused(), "Next");
        while_code_pumps([&] {
            person.hits(Key::back_tab);
            person.types("x");
        });
        EXPECT_EQ(focused(), "Box");
        EXPECT_EQ(person.reads("Box"), "x");
    });
}

TEST_F(WhileCodeRuns, TheCloseBoxAndEscapeWait) {
    while_open([&] {
        while_code_pumps([&] {
            person.hits(Key::escape);
            EXPECT_EQ(told(), "");
        });
        EXPECT_EQ(told(), "Cancel ");
        while_code_pumps([&] {
            person.closes_the_window();
            person.is_at("Waiting");
        });
        person.is_at("");
    });
}

TEST_F(WhileCodeRuns, WhatHasBecomeImpossibleIsLeftOut) {
    while_open([&] {
        while_code_pumps([&] { person.presses("Press"); }, [&] { form().Press.set_enabled(false); });
        EXPECT_EQ(told(), "");
        while_code_pumps([&] { person.ticks("Tick"); }, [&] { form().Tick.set_visible(false); });
        EXPECT_EQ(told(), "");
        person.hits(Key::escape);
        EXPECT_EQ(told(), "Cancel ") << "The next thing is done.";
    });
}

TEST_F(WhileCodeRuns, WhatFollowsADeedThatBringsSomethingBeforeTheFormMissesIt) {
    form().on_press = [&] { form().show_message({.text = "Box", .title = "Asked"}); };
    while_open([&] {
        while_code_pumps([&] {
            person.presses("Press");
            person.presses("Press");
            person.types("x");
        });
        person.answers({.text = "Box", .title = "Asked"});
        EXPECT_EQ(told(), "Press ");
        person.is_at("Waiting");
        EXPECT_EQ(person.reads("Box"), "");
    });
}

TEST_F(WhileCodeRuns, WhatComesBeforeAMessageIsDoneWhenTheHandlerHasReturned) {
    while_open([&] {
        while_code_pumps([&] { person.types("x"); },
                         [&] { form().show_message({.text = "Box", .title = "Asked"}); });
        person.is_at("message");
        person.answers({.text = "Box", .title = "Asked"});
        EXPECT_EQ(person.reads("Box"), "x");
    });
}

TEST_F(WhileCodeRuns, WhatComesWhileSomethingHeldIsDoneComesAfterTheRest) {
    form().on_press = [&] { pump(); };
    while_open([&] {
        while_code_pumps([&] {
            person.hits(Key::tab);
            person.presses("Press");
            person.uses_accelerator('t');
        });
        EXPECT_EQ(told(), "Press ") << "It is the one that takes its time now.";
        person.ticks("Tick");
        person.picks("List", "two");
        end_pump();
        EXPECT_EQ(told(), "Tick Tick List1 ");
    });
}

TEST_F(WhileCodeRuns, AKeyKeepsItsCharacterWhenItsOwnHandlerTakesTheNextOne) {
    while_open([&] {
        bool first = true;
        form().on_key = [&] {
            if (std::exchange(first, false)) pump();
        };
        person.types("a");
        person.types("b");
        end_pump();
        EXPECT_EQ(person.reads("Box"), "ab");
        while_code_pumps([&] {
            first = true;
            person.types("c");
            person.types("d");
        });
        person.types("e");
        end_pump();
        EXPECT_EQ(person.reads("Box"), "abcde");
    });
}

TEST_F(WhileCodeRuns, NothingIsKeptForTheNextShowing) {
    while_open([&] { while_code_pumps([&] { person.presses("Press"); }, [&] { form().unload(); }); });
    EXPECT_EQ(told(), "");
    while_open([&] { EXPECT_EQ(told(), ""); });
}

TEST_F(WhileCodeRuns, TimersAreNotKept) {
    while_open([&] {
        code([&] { form().Timer1.set_enabled(true); });
        while_code_pumps([&] { person.waits_for_ticks(3); });
        EXPECT_EQ(told(), "");
        person.waits_for_ticks(1);
        EXPECT_EQ(told(), "Timer ");
    });
}

} // namespace brx::checks
