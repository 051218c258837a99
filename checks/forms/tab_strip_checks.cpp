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
