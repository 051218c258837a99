#include "browsing.h"

// Finding an item or a group in the browser by any part of its name.

using namespace brx;
using namespace brx::checks;

namespace {

void a_plant_to_search(Play& its) {
    FakeBranch& root = its.host.browser->root;
    FakeBranch& line = root.has("Line1", {"Speed", "Überlast", "Oven speed", "Running", "SPEED LIMIT"});
    line.has("Oven", {"Door"}).has("Burner");
    root.has("Line2", {"Count"});
}

/// The line in which is found what is typed.
class Finding : public Browsing {
public:
    explicit Finding(Play& its) : Browsing((a_plant_to_search(its), its)), its_(its) {}

    void finds(const std::string& part) {
        its_.person.hits(Key::control_f);
        its_.person.types(part);
    }
    /// What is selected in the list, and how the hits are counted.
    std::string hit(const std::string& list = "lstItem") {
        return its_.person.reads(list) + ": " + its_.person.reads("lblFound");
    }
    void leaves() {
        its_.person.closes_the_window();
        result();
    }

private:
    Play& its_;
};

} // namespace

SCENARIO(Finding, AnyPartOfANameInAnyCaseSelectsTheNextHit) {
    Finding dialog(its);
    its.person.clicks_node("TrView", "Line1");
    its.person.picks("lstItem", "Speed");
    EXPECT_FALSE(its.person.sees("txtFind").visible);
    dialog.calls();
    dialog.finds("sp");
    EXPECT_EQ(dialog.hit(), "Speed: 1 of 3");
    EXPECT_EQ(dialog.calls(), Lines());
    its.person.types("eed l");
    EXPECT_EQ(dialog.hit(), "SPEED LIMIT: 1 of 1");
    EXPECT_EQ(dialog.calls(), Lines{"OPCBrowser.GetItemID(SPEED LIMIT)"}) << "As where it is clicked.";
    EXPECT_EQ(its.person.reads("txtFullPath"), "Line1.SPEED LIMIT");
    its.person.types("z");
    EXPECT_EQ(dialog.hit(), "SPEED LIMIT: Not found");
    its.person.enters("txtFind", "ÜBER");
    EXPECT_EQ(dialog.hit(), "Überlast: 1 of 1");
    its.person.hits(Key::erase);
    EXPECT_EQ(dialog.hit(), "Überlast: ");
    dialog.leaves();
}

SCENARIO(Finding, F3GoesOnAndShiftF3BackRoundTheEnds) {
    Finding dialog(its);
    its.person.clicks_node("TrView", "Line1");
    static_cast<void>(its.person.screen().key(Key::f3));
    EXPECT_EQ(its.person.reads("lstItem"), "") << "Nothing is sought.";
    dialog.finds("speed");
    EXPECT_EQ(dialog.hit(), "Speed: 1 of 3");
    its.person.hits(Key::f3);
    EXPECT_EQ(dialog.hit(), "Oven speed: 2 of 3");
    its.person.hits(Key::f3);
    EXPECT_EQ(dialog.hit(), "SPEED LIMIT: 3 of 3");
    its.person.hits(Key::f3);
    EXPECT_EQ(dialog.hit(), "Speed: 1 of 3");
    its.person.hits(Key::shift_f3);
    EXPECT_EQ(dialog.hit(), "SPEED LIMIT: 3 of 3");
    its.person.hits(Key::shift_f3);
    EXPECT_EQ(dialog.hit(), "Oven speed: 2 of 3");
    dialog.leaves();
}

SCENARIO(Finding, EscapeClosesTheLineFirstAndTheDialogOnlyThen) {
    Finding dialog(its);
    its.person.clicks_node("TrView", "Line1");
    dialog.finds("oven");
    EXPECT_TRUE(its.person.has_focus("txtFind"));
    its.person.hits(Key::escape);
    EXPECT_FALSE(its.person.sees("txtFind").visible);
    EXPECT_TRUE(its.person.has_focus("lstItem"));
    EXPECT_EQ(its.person.reads("lstItem"), "Oven speed");
    its.person.hits(Key::escape);
    its.person.is_at("");
    EXPECT_FALSE(dialog.result());
}

SCENARIO(Finding, WhatNoItemHasIsSoughtAmongTheGroupsThatHaveBeenRead) {
    Finding dialog(its);
    its.person.expands("TrView", "Line1");
    its.person.collapses("TrView", "Line1");
    its.person.clicks_node("TrView", "Line2");
    dialog.calls();
    dialog.finds("v");
    EXPECT_EQ(dialog.hit("TrView"), "Oven: 1 of 1");
    EXPECT_EQ(dialog.calls(),
              (Lines{"OPCBrowser.MoveToRoot", "OPCBrowser.MoveTo(Line1|Oven)", "OPCBrowser.ShowLeafs(False)",
                     "OPCBrowser.Count", "OPCBrowser.Item(1)"}));
    EXPECT_EQ(its.person.lines_of("lstItem"), Lines{"Door"});
    its.person.enters("txtFind", "burner");
    EXPECT_EQ(its.person.reads("lblFound"), "Not found") << "It has not been read.";
    its.person.enters("txtFind", "xxx");
    EXPECT_EQ(its.person.reads("lblFound"), "Not found") << "What stands for groups is none.";
    its.person.enters("txtFind", "line");
    EXPECT_EQ(dialog.hit("TrView"), "Line2: 2 of 2");
    its.person.hits(Key::f3);
    EXPECT_EQ(dialog.hit("TrView"), "Line1: 1 of 2");
    its.person.enters("txtFind", "speed");
    EXPECT_EQ(dialog.hit(), "Speed: 1 of 3") << "Its items come before the groups.";
    its.person.enters("txtFind", "line");
    its.person.hits(Key::escape);
    EXPECT_TRUE(its.person.has_focus("TrView"));
    dialog.leaves();
}

SCENARIO(Finding, EnterTakesWhatWasFound) {
    a_plant(its);
    Browsing dialog(its);
    its.person.clicks_node("TrView", "Line1");
    its.person.hits(Key::control_f);
    its.person.types("run");
    its.person.hits(Key::enter);
    EXPECT_TRUE(dialog.result());
    EXPECT_EQ(dialog.ItemID(), "Line1.Running");
}
