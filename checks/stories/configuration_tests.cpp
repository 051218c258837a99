#include "listing.h"

// The tests of a configuration.

using namespace brx;
using namespace brx::checks;

SCENARIO(TestsTab, ListsTheTestsInTheirOrder) {
    three_tests(its);
    Configuring dialog(its);
    EXPECT_EQ(its.person.lines_of("lvwTest"),
              (Lines{"Length | Line1.Speed | Matrix | PC7", "Width | Line1.Force | Matrix | PC7",
                     "Mass | Line1.Torque | Matrix | PC7"}));
    EXPECT_EQ(its.person.sees("lvwTest").selected, -1);
    dialog.leaves();
}

SCENARIO(TestsTab, TheServerOfATestIsThatWhichItsOwnParentsLeadTo) {
    a_filled_configuration(its);
    const auto other = std::make_shared<FakeConfiguration>(its.host.calls);
    other->server = std::make_shared<FakeServerHolder>(its.host.calls);
    other->server->entry = std::make_shared<FakeServer>(its.host.calls, "Press", "PC9");
    its.host.configuration->tests->parent = other;
    Configuring dialog(its);
    EXPECT_EQ(its.person.lines_of("lvwTest"), (Lines{"Length | Line1.Speed | Press | PC9"}));
    dialog.leaves();
}

SCENARIO(TestsTab, ATestWhoseItemCouldNotBeHadIsBoldAndRedWithoutIt) {
    three_tests(its);
    its.host.configuration->tests->entries[1]->fields.state = 2;
    its.host.configuration->tests->entries[2]->fields.state = 3;
    Configuring dialog(its);
    EXPECT_EQ(its.person.line_of("lvwTest", 1), "*red:Width* |  | *red:Matrix* | *red:PC7*");
    EXPECT_EQ(its.person.line_of("lvwTest", 2), "Mass | Line1.Torque | Matrix | PC7");
    dialog.leaves();
}

SCENARIO(TestsTab, AConfirmedNewTestIsListedAndSelected) {
    a_filled_configuration(its);
    Configuring dialog(its);
    adds_width(its);
    EXPECT_EQ(its.person.lines_of("lvwTest"),
              (Lines{"Length | Line1.Speed | Matrix | PC7", "Width | Line1.Force | Matrix | PC7"}));
    EXPECT_EQ(its.person.sees("lvwTest").selected, 1);
    dialog.leaves();
    EXPECT_EQ(its.host.configuration->tests->entries.size(), 2U);
}

SCENARIO(TestsTab, ACancelledNewTestIsTakenBack) {
    three_tests(its);
    Configuring dialog(its);
    its.person.presses("bnAdd");
    EXPECT_EQ(its.host.configuration->tests->entries.size(), 4U);
    its.person.presses("bnCancel");
    its.person.is_at("dlgConfiguration");
    EXPECT_EQ(characteristics(its), (Lines{"Length", "Width", "Mass"}));
    its.person.presses("bnAdd");
    its.person.closes_the_window();
    EXPECT_EQ(characteristics(its), (Lines{"Length", "Width", "Mass"}));
    EXPECT_EQ(its.person.lines_of("lvwTest").size(), 3U);
    dialog.leaves();
}

SCENARIO(TestsTab, ACancelledNewTestIsTakenBackFromWhereverItIs) {
    a_filled_configuration(its);
    Configuring dialog(its);
    its.person.presses("bnAdd");
    its.host.has_test(9, "Mass"); // by somebody else
    its.person.presses("bnCancel");
    EXPECT_EQ(characteristics(its), (Lines{"Length", "Mass"}));
    its.person.presses("bnAdd");
    const auto owner = its.host.configuration->tests;
    const auto others = std::make_shared<FakeTests>(its.host.calls);
    for (const std::int32_t id : {1, 2, 3}) others->has(id, "Another", 1);
    its.host.configuration->tests = others;
    its.person.presses("bnCancel");
    its.host.configuration->tests = owner;
    EXPECT_EQ(characteristics(its), (Lines{"Length", "Mass"}));
    EXPECT_EQ(others->entries.size(), 3U);
    dialog.leaves();
}

SCENARIO(TestsTab, EditOpensTheSelectedTest) {
    three_tests(its);
    Configuring dialog(its);
    its.person.picks("lvwTest", "Width | Line1.Force | Matrix | PC7");
    its.person.presses("cmdEdit");
    its.person.is_at("dlgOPCTest");
    EXPECT_EQ(its.person.reads("txtTest"), "Width");
    its.host.configuration->tests->entries[1]->fields.characteristic = "Breadth";
    its.person.presses("bnCancel");
    its.person.is_at("dlgConfiguration");
    EXPECT_EQ(its.person.line_of("lvwTest", 1), "Width | Line1.Force | Matrix | PC7"); // not confirmed
    dialog.leaves();
}

SCENARIO(TestsTab, AConfirmedEditShowsAndItsTestStaysSelected) {
    three_tests(its);
    its.host.configuration->tests->entries[1]->fields.item_text = "Line1.Force";
    Configuring dialog(its);
    its.person.double_clicks("lvwTest", "Width | Line1.Force | Matrix | PC7");
    its.person.is_at("dlgOPCTest");
    its.host.configuration->tests->entries[1]->fields.characteristic = "Breadth";
    its.person.presses("bnOK");
    its.person.is_at("dlgConfiguration");
    EXPECT_EQ(its.person.line_of("lvwTest", 1), "Breadth | Line1.Force | Matrix | PC7");
    EXPECT_EQ(its.person.sees("lvwTest").selected, 1);
    its.person.presses("bnRemove");
    EXPECT_EQ(characteristics(its), (Lines{"Length", "Mass"}));
    dialog.leaves();
}

SCENARIO(TestsTab, RemoveTakesTheSelectedTestWithoutAsking) {
    three_tests(its);
    Configuring dialog(its);
    its.person.picks("lvwTest", "Width | Line1.Force | Matrix | PC7");
    its.person.presses("bnRemove");
    EXPECT_EQ(characteristics(its), (Lines{"Length", "Mass"}));
    EXPECT_EQ(its.person.lines_of("lvwTest"),
              (Lines{"Length | Line1.Speed | Matrix | PC7", "Mass | Line1.Torque | Matrix | PC7"}));
    its.person.presses("bnRemove"); // nothing is selected now
    EXPECT_EQ(its.person.lines_of("lvwTest").size(), 2U);
    its.person.picks("lvwTest", "Mass | Line1.Torque | Matrix | PC7");
    its.person.presses("bnRemove");
    EXPECT_EQ(characteristics(its), (Lines{"Length"}));
    dialog.leaves();
}

SCENARIO(TestsTab, WithoutASelectedTestTheButtonsDoNothing) {
    three_tests(its);
    Configuring dialog(its);
    its.person.presses("cmdEdit");
    its.person.is_at("dlgConfiguration");
    its.person.presses("bnRemove");
    EXPECT_EQ(its.host.configuration->tests->entries.size(), 3U);
    EXPECT_EQ(its.person.lines_of("lvwTest").size(), 3U);
    dialog.leaves();
}

SCENARIO(TestsTab, RemovingTheLastTestMakesCloseAsk) {
    a_filled_configuration(its);
    Configuring dialog(its);
    its.person.picks("lvwTest", "Length | Line1.Speed | Matrix | PC7");
    its.person.presses("bnRemove");
    its.person.presses("bnClose");
    EXPECT_EQ(its.person.screen().front(), "message");
    its.person.screen().answer(message::cancel);
    dialog.leaves();
    EXPECT_TRUE(its.host.configuration->tests->entries.empty());
}
