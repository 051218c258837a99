#include "describing.h"

// Descriptors with the keyboard alone.

using namespace brx;
using namespace brx::checks;

namespace {

/// Each Tab goes to the next of these.
void tabs_through(Play& its, const Lines& controls) {
    for (const std::string& next : controls) {
        its.person.hits(Key::tab);
        EXPECT_TRUE(its.person.has_focus(next)) << next;
    }
}

} // namespace

SCENARIO(DescriptorKeys, TheTabKeyGoesFromTheListToItsButtons) {
    Configuring dialog(its);
    its.person.uses_accelerator('3');
    EXPECT_TRUE(its.person.has_focus("lvwDescriptors"));
    tabs_through(its, {"bnAddDesc", "bnEditDesc", "bnRemoveDesc", "bnClose", "TabStrip1", "lvwDescriptors"});
    dialog.leaves();
}

SCENARIO(DescriptorKeys, TheTabKeyLeavesTheListOfTheStatus) {
    Configuring dialog(its);
    its.person.uses_accelerator('4');
    EXPECT_TRUE(its.person.has_focus("lvwServerInfo"));
    tabs_through(its, {"bnClose", "TabStrip1", "lvwServerInfo"});
    dialog.leaves();
}

SCENARIO(DescriptorKeys, TheLettersOfTheTabLeadToItsListAndButtons) {
    its.host.configuration->descriptors->has({.type = 0, .item = "Wheel", .group = "Castings"});
    Configuring dialog(its);
    its.person.uses_accelerator('3');
    tabs_through(its, {"bnAddDesc"});
    its.person.uses_accelerator('a');
    EXPECT_TRUE(its.person.has_focus("lvwDescriptors"));
    for (const char* shares_the_letter : {"bnEditDesc", "bnClose"}) {
        its.person.uses_accelerator('c');
        EXPECT_TRUE(its.person.has_focus(shares_the_letter)) << shares_the_letter;
    }
    its.person.picks("lvwDescriptors", "Part | Castings | Wheel");
    its.person.uses_accelerator('d');
    EXPECT_EQ(its.person.lines_of("lvwDescriptors"), Lines());
    its.person.uses_accelerator('b');
    its.person.is_at("dlgDescriptorType");
    its.person.uses_accelerator('c');
    its.person.is_at("dlgConfiguration");
    dialog.leaves();
}

SCENARIO(DescriptorKeys, TheTabKeyGoesThroughTheKinds) {
    Configuring dialog(its);
    dialog.turns_to_descriptors();
    its.person.presses("bnAddDesc");
    EXPECT_TRUE(its.person.has_focus("List1"));
    tabs_through(its, {"bnOK", "bnCancel", "List1"});
    its.person.hits(Key::escape);
    dialog.leaves();
}

SCENARIO(DescriptorKeys, TheTabKeyGoesThroughTheProperties) {
    Describing dialog(its, {.type = 0, .item = "Wheel", .group = "Castings"});
    EXPECT_TRUE(its.person.has_focus("txtGroup"));
    tabs_through(its, {"bnGroup", "txtItem", "bnItem", "bnSelect", "bnOK", "bnCancel", "txtGroup"});
    dialog.cancels();
}

SCENARIO(DescriptorKeys, TheTabKeyPassesOverWhatASerialNumberHasNot) {
    Describing dialog(its, {.type = 7, .item = "S-1", .group = ""});
    EXPECT_TRUE(its.person.has_focus("txtItem"));
    tabs_through(its, {"bnItem", "bnOK", "bnCancel", "txtItem"});
    dialog.cancels();
}

SCENARIO(DescriptorKeys, AcceleratorsLeadToTheBoxes) {
    Describing dialog(its, {.type = 0, .item = "Wheel", .group = "Castings"});
    EXPECT_TRUE(its.person.has_focus("txtGroup"));
    its.person.uses_accelerator('b');
    EXPECT_TRUE(its.person.has_focus("txtItem"));
    its.person.uses_accelerator('a');
    EXPECT_TRUE(its.person.has_focus("txtGroup"));
    for (const char* shares_the_letter : {"bnSelect", "bnCancel"}) {
        its.person.uses_accelerator('c');
        EXPECT_TRUE(its.person.has_focus(shares_the_letter)) << shares_the_letter;
    }
    dialog.cancels();
}
