#include "listing.h"

// Tests that cannot be read, and tests that the host does not let go of: the rows of the list and the host's
// tests agree all the same.

using namespace brx;
using namespace brx::checks;

namespace {

void expect_tests_out_of_reach(Play& its) { expect_out_of_reach(its, "lvwTest", "cmdEdit", "bnRemove"); }

void expect_report_of_a_failed_call(Play& its, const std::string& procedure) {
    its.expect_report(CallLog::failure_number, "dlgConfiguration." + procedure, ErrorLibrary::hlxER01);
}

} // namespace

SCENARIO(TestsTab, ATestThatTheHostDoesNotRemoveStaysInTheList) {
    three_tests(its);
    its.host.configuration->tests->keeps_all = true;
    Configuring dialog(its);
    const Lines before = its.person.lines_of("lvwTest");
    its.person.picks("lvwTest", "Width | Line1.Force | Matrix | PC7");
    its.person.presses("bnRemove");
    its.expect_report(error::invalid_procedure_call, "dlgConfiguration.bnRemove_Click",
                      ErrorLibrary::hlxER01);
    EXPECT_EQ(its.person.lines_of("lvwTest"), before);
    dialog.leaves();
}

SCENARIO(TestsTab, ACancelledTestThatTheHostKeepsIsListed) {
    a_filled_configuration(its);
    its.host.configuration->tests->keeps_all = true;
    Configuring dialog(its);
    its.person.presses("bnAdd");
    its.person.presses("bnCancel");
    its.expect_report(error::invalid_procedure_call, "dlgConfiguration.bnAdd_Click", ErrorLibrary::hlxER01);
    EXPECT_EQ(its.person.lines_of("lvwTest"),
              (Lines{"Length | Line1.Speed | Matrix | PC7", " |  | Matrix | PC7"}));
    dialog.leaves();
}

SCENARIO(TestsTab, ATestThatTheHostDropsAsItFailsLeavesTheListToo) {
    three_tests(its);
    its.host.configuration->tests->drops_and_fails = true;
    Configuring dialog(its);
    its.person.picks("lvwTest", test_rows[1]);
    its.person.presses("bnRemove");
    its.expect_report(error::invalid_procedure_call, "dlgConfiguration.bnRemove_Click",
                      ErrorLibrary::hlxER01);
    EXPECT_EQ(its.person.lines_of("lvwTest"), (Lines{test_rows[0], test_rows[2]}));
    EXPECT_EQ(its.person.sees("lvwTest").selected, -1) << "Nobody chose the next one.";
    dialog.leaves();
}

SCENARIO(TestsTab, TestsUpToTheOneThatCannotBeReadAreListed) {
    three_tests(its);
    its.host.calls.fail_on("hlxOPCTest.OPCItemID", 1);
    Configuring dialog(its);
    expect_report_of_a_failed_call(its, "Form_Load");
    its.host.calls.fail_on("");
    EXPECT_EQ(its.person.lines_of("lvwTest"), (Lines{test_rows[0], "Width |  |  | "}));
    its.person.picks("lvwTest", "Width |  |  | ");
    its.person.presses("cmdEdit");
    EXPECT_EQ(its.person.reads("txtTest"), "Width");
    its.person.presses("bnCancel");
    its.person.presses("bnRemove");
    EXPECT_EQ(characteristics(its), (Lines{"Length", "Mass"}));
    EXPECT_EQ(its.person.lines_of("lvwTest"), Lines{test_rows[0]});
    its.person.picks("lvwTest", test_rows[0]);
    its.person.presses("bnRemove");
    EXPECT_EQ(characteristics(its), Lines{"Mass"});
    dialog.closes(); // nobody takes the empty list for all that there is
    EXPECT_EQ(dialog.fields().subgroup_trigger_item, "Line1.Speed");
}

SCENARIO(TestsTab, ATestWithoutANameEndsTheListBeforeIt) {
    three_tests(its);
    its.host.calls.fail_on("hlxOPCTest.CharacteristicName", 2);
    Configuring dialog(its);
    expect_report_of_a_failed_call(its, "Form_Load");
    EXPECT_EQ(its.person.lines_of("lvwTest"), (Lines{test_rows[0], test_rows[1]}));
    dialog.leaves();
}

SCENARIO(TestsTab, AConfirmedTestMakesAListInPartWhole) {
    three_tests(its);
    its.host.configuration->tests->entries[1]->fields.item_text = "Line1.Force";
    its.host.calls.fail_on("hlxOPCTests.Item", 2);
    Configuring dialog(its);
    expect_report_of_a_failed_call(its, "Form_Load");
    EXPECT_EQ(its.person.lines_of("lvwTest").size(), 2U);
    its.host.calls.fail_on("");
    its.person.double_clicks("lvwTest", test_rows[1]);
    its.person.presses("bnOK");
    its.person.is_at("dlgConfiguration");
    EXPECT_EQ(its.person.lines_of("lvwTest"), test_rows);
    EXPECT_EQ(its.person.sees("lvwTest").selected, 1);
    dialog.leaves();
}

SCENARIO(TestsTab, ATestThatCannotBeListedIsStillATest) {
    Configuring dialog(its);
    prepares_width(its);
    its.host.calls.fail_on("hlxOPCTest.CharacteristicName");
    its.person.presses("bnOK");
    expect_report_of_a_failed_call(its, "bnAdd_Click");
    EXPECT_EQ(its.person.lines_of("lvwTest"), Lines());
    dialog.closes(); // nobody asks whether it is to be removed
}

SCENARIO(TestsTab, RowsThatCannotBeReadAgainStayOutOfReachUntilTheyCan) {
    a_filled_configuration(its);
    its.host.has_test(9, "Mass")->fields.item_id = "Line1.Torque";
    Configuring dialog(its);
    const Lines before = its.person.lines_of("lvwTest");
    its.person.picks("lvwTest", test_rows[0]);
    its.person.presses("cmdEdit");
    its.host.calls.fail_on("hlxOPCTest.CharacteristicName");
    its.person.presses("bnOK");
    expect_report_of_a_failed_call(its, "cmdEdit_Click");
    EXPECT_EQ(its.person.lines_of("lvwTest"), before);
    expect_tests_out_of_reach(its);
    its.host.calls.fail_on("");
    expect_tests_out_of_reach(its);
    its.person.presses("bnAdd");
    its.person.presses("bnCancel");
    EXPECT_EQ(characteristics(its), (Lines{"Length", "Mass"}));
    expect_tests_out_of_reach(its);
    adds_width(its);
    EXPECT_EQ(its.person.lines_of("lvwTest"), (Lines{test_rows[0], test_rows[2], test_rows[1]}));
    EXPECT_EQ(its.person.sees("lvwTest").selected, 2);
    EXPECT_TRUE(its.person.can_press("cmdEdit"));
    its.person.presses("bnRemove");
    EXPECT_EQ(characteristics(its), (Lines{"Length", "Mass"}));
    dialog.leaves();
}

SCENARIO(TestsTab, ACancelledTestThatTheHostKeepsUnreadLeavesTheRowsOutOfReach) {
    three_tests(its);
    its.host.configuration->tests->keeps_all = true;
    Configuring dialog(its);
    its.person.presses("bnAdd");
    its.host.calls.fail_on("hlxOPCTests.Count");
    its.person.presses("bnCancel");
    its.expect_report(error::invalid_procedure_call, "dlgConfiguration.bnAdd_Click", ErrorLibrary::hlxER01);
    EXPECT_EQ(its.person.lines_of("lvwTest"), test_rows);
    expect_tests_out_of_reach(its);
    dialog.leaves();
    its.host.calls.fail_on("");
    Configuring again(its);
    EXPECT_EQ(its.person.lines_of("lvwTest").size(), 4U);
    EXPECT_TRUE(its.person.can_press("cmdEdit"));
    EXPECT_TRUE(its.person.can_press("bnRemove"));
    again.leaves();
}

SCENARIO(TestsTab, ATestThatTheHostAddsAsItFailsIsListed) {
    for (const bool it_fails : {true, false}) {
        FakeTests& tests = *its.host.configuration->tests;
        tests.entries.clear();
        a_filled_configuration(its);
        Configuring dialog(its);
        (it_fails ? tests.adds_and_fails : tests.gives_nothing) = true;
        its.person.presses("bnAdd");
        its.person.is_at("dlgConfiguration");
        if (!it_fails) its.expect_report(error::type_mismatch, "TestConfiguration.ResolvehlxOPCTest");
        its.expect_report(it_fails ? error::invalid_procedure_call : error::object_not_set,
                          "dlgConfiguration.bnAdd_Click", ErrorLibrary::hlxER01);
        tests.adds_and_fails = tests.gives_nothing = false;
        const std::string unfinished = " |  | Matrix | PC7";
        EXPECT_EQ(its.person.lines_of("lvwTest"), (Lines{test_rows[0], unfinished}));
        adds_width(its);
        EXPECT_EQ(its.person.lines_of("lvwTest"), (Lines{test_rows[0], unfinished, test_rows[1]}));
        its.person.presses("cmdEdit");
        EXPECT_EQ(its.person.reads("txtTest"), "Width");
        its.person.presses("bnCancel");
        its.person.picks("lvwTest", unfinished);
        its.person.presses("bnRemove");
        EXPECT_EQ(characteristics(its), (Lines{"Length", "Width"}));
        EXPECT_EQ(its.person.lines_of("lvwTest"), (Lines{test_rows[0], test_rows[1]}));
        dialog.leaves();
        its.host.browser->root.branches.clear();
    }
}

SCENARIO(TestsTab, ATestThatTheHostAddsUnreadLeavesTheRowsOutOfReach) {
    three_tests(its);
    its.host.configuration->tests->adds_and_fails = true;
    Configuring dialog(its);
    its.host.calls.fail_on("hlxOPCTest.State");
    its.person.presses("bnAdd");
    its.expect_report(error::invalid_procedure_call, "dlgConfiguration.bnAdd_Click", ErrorLibrary::hlxER01);
    EXPECT_EQ(its.person.lines_of("lvwTest"), test_rows);
    expect_tests_out_of_reach(its);
    dialog.leaves();
}

SCENARIO(TestsTab, AListInPartStaysSoThroughAnEditAndAnAdd) {
    a_filled_configuration(its);
    its.host.has_test(9, "Mass")->untold = "OPCItemID";
    const Lines in_part = {test_rows[0], "Mass |  |  | "};
    const auto expect_report_of_the_mass = [&](const std::string& procedure) {
        its.expect_report(error::invalid_procedure_call, "dlgConfiguration." + procedure,
                          ErrorLibrary::hlxER01);
    };
    Configuring dialog(its);
    expect_report_of_the_mass("Form_Load");
    EXPECT_EQ(its.person.lines_of("lvwTest"), in_part);
    its.person.double_clicks("lvwTest", in_part[0]);
    its.host.configuration->tests->entries[0]->fields.characteristic = "Breadth";
    its.person.presses("bnOK");
    expect_report_of_the_mass("lvwTest_DblClick");
    const std::string edited = "Breadth | Line1.Speed | Matrix | PC7";
    EXPECT_EQ(its.person.lines_of("lvwTest"), (Lines{edited, in_part[1]}));
    EXPECT_EQ(its.person.sees("lvwTest").selected, 0);
    adds_width(its);
    expect_report_of_the_mass("bnAdd_Click");
    EXPECT_EQ(its.person.lines_of("lvwTest"), (Lines{edited, in_part[1]}));
    its.person.presses("cmdEdit");
    EXPECT_EQ(its.person.reads("txtTest"), "Breadth");
    its.person.presses("bnCancel");
    its.person.picks("lvwTest", in_part[1]);
    its.person.presses("bnRemove");
    EXPECT_EQ(characteristics(its), (Lines{"Length", "Width"}));
    its.person.double_clicks("lvwTest", edited);
    its.person.presses("bnOK"); // nothing is unreadable any more
    EXPECT_EQ(its.person.lines_of("lvwTest"), (Lines{edited, test_rows[1]}));
    dialog.leaves();
}

SCENARIO(TestsTab, AListInPartIsOutOfReachWhenARemovalFails) {
    a_filled_configuration(its);
    its.host.has_test(9, "Mass")->untold = "OPCItemID";
    its.host.configuration->tests->keeps_all = true;
    Configuring dialog(its);
    its.expect_report(error::invalid_procedure_call, "dlgConfiguration.Form_Load", ErrorLibrary::hlxER01);
    its.person.picks("lvwTest", test_rows[0]);
    its.person.presses("bnRemove");
    its.expect_report(error::invalid_procedure_call, "dlgConfiguration.bnRemove_Click",
                      ErrorLibrary::hlxER01);
    EXPECT_EQ(its.person.lines_of("lvwTest"), (Lines{test_rows[0], "Mass |  |  | "}));
    expect_tests_out_of_reach(its);
    dialog.leaves();
}
