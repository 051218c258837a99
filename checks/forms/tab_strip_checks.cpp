#include "forms/accelerator.h"
#include "one_page.h"

using namespace brx;
using namespace brx::checks;

namespace {

struct TabStrips : testing::Test, OnePage {
    TabStrip& tabs = form.tabs;

    std::string focused() const { return form.focused() ? form.focused()->name() : "none"; }
};

} // namespace

TEST_F(TabStrips, TheirCaptionsAreReadAfresh) {
    while_open([&] {
        Reading seen = tabs.read();
        tabs.read(Aspect::lines, seen);
        EXPECT_EQ(seen.lines, (Notes{"&1 One", "&2 Two", "Thr&ee"}));
    });
}

TEST_F(TabStrips, ClickFiresWhenAnotherTabIsSelectedByAPersonOrByCode) {
    while_open([&] {
        EXPECT_EQ(tabs.count(), 3);
        EXPECT_EQ(tabs.caption(3), "Thr&ee");
        EXPECT_EQ(tabs.selected(), 1);
        tabs.select(1);
        EXPECT_EQ(form.notes, Notes{});
        tabs.select(3);
        EXPECT_TRUE(tabs.user_select(2));
        EXPECT_TRUE(tabs.user_select(2)) << "It is selected.";
        EXPECT_EQ(form.notes, (Notes{"tabs 3", "tabs 2"}));
    });
}

TEST_F(TabStrips, ATabThatIsNotThereIsAnError) {
    while_open([&] {
        for (const int tab : {0, 4, -1}) {
            EXPECT_EQ(number_of_error([&] { static_cast<void>(tabs.caption(tab)); }), 35600);
            EXPECT_EQ(number_of_error([&] { tabs.select(tab); }), 35600);
            EXPECT_FALSE(tabs.user_select(tab));
        }
        EXPECT_EQ(tabs.selected(), 1);
        EXPECT_EQ(form.notes, Notes{});
    });
}

TEST_F(TabStrips, APersonTurnsThemRoundTheEnds) {
    while_open([&] {
        for (int i = 0; i < 3; ++i) EXPECT_TRUE(tabs.user_turn(false));
        EXPECT_EQ(form.notes, (Notes{"tabs 2", "tabs 3", "tabs 1"}));
        EXPECT_TRUE(tabs.user_turn(true));
        EXPECT_TRUE(tabs.user_turn(true));
        EXPECT_EQ(tabs.selected(), 2);
    });
}

TEST_F(TabStrips, TheFocusLeavesWhatATabTookAway) {
    while_open([&] {
        EXPECT_EQ(focused(), "box");
        form.box.user_press(); // the caret is in the text
        tabs.user_turn(false);
        EXPECT_EQ(focused(), "box") << "It still shows.";
        EXPECT_FALSE(form.box.all_selected());
        form.day.user_focus();
        tabs.user_turn(true);
        EXPECT_EQ(focused(), "box") << "The first control of what shows.";
        EXPECT_TRUE(form.box.all_selected());
        form.go.user_focus();
        form.box.set_enabled(false);
        tabs.user_turn(false);
        EXPECT_EQ(focused(), "tabs");
    });
}

TEST_F(TabStrips, WhatAPersonDoesNotReachStaysAsItIs) {
    while_open([&] {
        const auto refused = [&] {
            return !tabs.user_select(2) && !tabs.user_turn(false) && tabs.selected() == 1;
        };
        EXPECT_EQ(tab_strip_of(form), &tabs);
        tabs.set_enabled(false);
        EXPECT_TRUE(refused());
        EXPECT_EQ(tab_strip_of(form), nullptr);
        tabs.set_enabled(true);
        tabs.set_visible(false);
        EXPECT_TRUE(refused());
        EXPECT_EQ(tab_strip_of(form), nullptr);
        tabs.set_visible(true);
        {
            const CodeTurn code;
            EXPECT_TRUE(refused());
        }
        {
            const ModalTurn box(nullptr);
            EXPECT_TRUE(refused());
        }
        EXPECT_EQ(form.notes, Notes{});
    });
}

TEST_F(TabStrips, EachShowingStartsOnTheFirstTab) {
    while_open([&] { tabs.select(3); });
    while_open([&] { EXPECT_EQ(tabs.selected(), 1); });
}

TEST_F(TabStrips, AWindowIsToldThatAnotherTabIsSelected) {
    while_open([&] {
        StandIn window(tabs);
        tabs.select(1);
        tabs.flush();
        EXPECT_EQ(window.seen, Aspect::none);
        tabs.select(2);
        tabs.flush();
        EXPECT_EQ(window.seen, Aspect::selection);
    });
}

TEST_F(TabStrips, AnAcceleratorMeansWhatShowsAndTakesInput) {
    while_open([&] {
        const auto meant = [&](char letter) {
            const auto [control, alone] = accelerator_of(form, letter);
            return control ? control->name() + (alone ? "" : " and others") : std::string();
        };
        EXPECT_EQ(meant('2'), "tabs");
        EXPECT_EQ(meant('E'), "tabs");
        EXPECT_EQ(tab_with(tabs, '2'), 2);
        EXPECT_EQ(tab_with(tabs, 'E'), 3);
        EXPECT_EQ(tab_with(tabs, 'x'), 0);
        EXPECT_EQ(meant('x'), "");
        EXPECT_EQ(meant('g'), "go");
        tabs.select(2);
        EXPECT_EQ(meant('G'), "give");
        EXPECT_EQ(meant('l'), "") << "The label is on another tab.";
        form.first.set_visible(true);
        EXPECT_EQ(meant('g'), "go and others");
        form.go.set_focus();
        EXPECT_EQ(meant('g'), "give and others") << "The next one after the focus.";
        form.give.set_enabled(false);
        EXPECT_EQ(meant('g'), "go");
        EXPECT_EQ(focus_for(form.label), &form.list);
        EXPECT_EQ(focus_for(form.go), &form.go);
        tabs.set_enabled(false);
        EXPECT_EQ(meant('2'), "");
    });
}
