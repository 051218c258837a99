#include "configuring.h"

// What the keyboard does to fields and tables, told in the configuration dialog.

using namespace brx;
using namespace brx::checks;

SCENARIO(FieldKeys, ALetterSelectsTheWholeFieldSoThatTypingReplacesItAlsoWhereAButtonSharesIt) {
    a_filled_configuration(its);
    Configuring dialog(its);
    EXPECT_TRUE(its.person.has_focus("txtName"));
    its.person.types("Line 9"); // selected as the dialog opens
    its.person.uses_accelerator('b');
    its.person.types("30001");
    its.person.uses_accelerator('c'); // the button "Close" has it too
    its.person.types("15");
    EXPECT_EQ(its.person.reads("txtName"), "Line 9");
    EXPECT_EQ(its.person.reads("txtUpdateRate"), "30001");
    EXPECT_EQ(its.person.reads("txtDeadband"), "15");
    its.person.hits(Key::tab);
    its.person.hits(Key::tab);
    EXPECT_TRUE(its.person.has_focus("txtSubgroupSize"));
    its.person.types("7");
    EXPECT_EQ(its.person.reads("txtSubgroupSize"), "7");
    dialog.closes();
    EXPECT_EQ(dialog.fields().name, "Line 9");
    EXPECT_EQ(dialog.fields().update_rate, 30001);
}

SCENARIO(TableKeys, EnterOpensTheSelectedTestAsADoubleClickDoes) {
    a_filled_configuration(its);
    Configuring dialog(its);
    its.person.picks("lvwTest", its.person.line_of("lvwTest", 0));
    its.person.hits(Key::enter);
    its.person.is_at("dlgOPCTest");
    its.person.presses("bnCancel");
    its.person.is_at("dlgConfiguration");
    dialog.leaves();
}

SCENARIO(TableKeys, EnterOpensTheSelectedDescriptorAsADoubleClickDoes) {
    its.host.configuration->descriptors->has({.type = 5, .item = "Line1.Lot", .group = "Castings"});
    Configuring dialog(its);
    dialog.turns_to_descriptors();
    its.person.picks("lvwDescriptors", its.person.line_of("lvwDescriptors", 0));
    its.person.hits(Key::enter);
    its.person.is_at("dlgDescriptorProperties");
    its.person.presses("bnCancel");
    its.person.is_at("dlgConfiguration");
    dialog.leaves();
}

SCENARIO(TableKeys, EnterWithoutASelectedRowPressesTheDefaultButton) {
    a_filled_configuration(its);
    Configuring dialog(its);
    its.person.goes_to("lvwTest");
    EXPECT_EQ(its.person.sees("lvwTest").selected, -1);
    its.person.hits(Key::enter);
    its.person.is_at("");
    EXPECT_FALSE(dialog.writes().empty()) << "It has been closed with the button.";
}

SCENARIO(TableKeys, EnterInATableWhereNothingOpensPressesTheDefaultButton) {
    a_filled_configuration(its);
    Configuring dialog(its);
    dialog.turns_to("&4. Server Information");
    its.person.waits_for_ticks(1);
    its.person.picks("lvwServerInfo", its.person.line_of("lvwServerInfo", 0));
    its.person.hits(Key::enter);
    its.person.is_at("");
    EXPECT_FALSE(dialog.writes().empty());
}
