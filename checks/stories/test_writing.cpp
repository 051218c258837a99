#include "calls.h"
#include "testing.h"

// What OK calls, what it writes into the test, and what becomes of the test when the host fails half-way.

using namespace brx;
using namespace brx::checks;

SCENARIO(TestDialog, ANewTestTakesTheseCallsAndNoOthers) {
    its.host.group->items->has("Line1.Force");
    its.host.help_service = std::make_shared<FakeHelpService>(its.host.calls);
    CallsMade calls(its);
    Testing testing(its, its.host.has_test(0, ""));
    EXPECT_EQ(calls.since_then(),
              Lines({"hlxOPCTest.Parent", "hlxOPCTests.Parent", "hlxOPCConfiguration.Server",
                     "hlxOPCServerHolder.ServerEntry", "hlxOPCServer.Parent", "hlxOPCServers.Parent",
                     "hlxApplication.Database", "hlxOPCTest.State", "hlxOPCTest.ItemText",
                     "hlxOPCTest.OPCItemID", "create hlxHelp", "hlxHelp.HelpFile"}));
    testing.picks_characteristic(7, "Length", 2);
    EXPECT_EQ(calls.since_then(),
              Lines({"create hlxTestSelection", "hlxSelection.Show", "hlxSelection.Record", "hlxTestData.ID",
                     "hlxOPCTest.Parent", "hlxOPCTests.Count", "hlxOPCTests.Item", "hlxOPCTest.TestData",
                     "hlxTestData.ID", "hlxTestData.GroupID", "create hlxTestGroup", "hlxRecord.ID=",
                     "hlxRecord.SearchFlag=", "hlxRecord.Load", "hlxRecord.Name", "hlxTestData.Name"}));
    its.person.presses("bnItem");
    Lines until_the_browser = calls.since_then();
    until_the_browser.resize(6);
    EXPECT_EQ(until_the_browser, Lines({"hlxOPCTest.Parent", "hlxOPCTests.Parent",
                                        "hlxOPCConfiguration.Server", "hlxOPCServerHolder.ServerEntry",
                                        "hlxOPCServer.OPCServer", "hlxOPCConfiguration.OPCGroup"}));
    its.person.enters("txtFullPath", "Line1.Speed");
    calls.since_then();
    its.person.presses("bnOK");
    EXPECT_EQ(calls.since_then(), Lines({"OPCGroup.OPCItems", "OPCItems.Validate", // the browser asks first
                                         "OPCGroup.OPCItems", "OPCItems.Count", "OPCItems.Item",
                                         "OPCItem.ItemID", "OPCItems.Validate", "OPCItems.AddItems"}));
    its.person.ticks("chkItemTrigger");
    EXPECT_EQ(calls.since_then(), Lines());
    its.person.presses("bnOK");
    EXPECT_EQ(calls.since_then(),
              Lines({"hlxOPCTest.Parent", "hlxOPCTests.Parent", "hlxOPCConfiguration.OPCGroup",
                     "OPCGroup.OPCItems", "OPCItems.Item", "OPCItem.CanonicalDataType",
                     "hlxOPCTest.ItemTrigger=", "hlxOPCTest.TriggerValue=", "hlxOPCTest.ClientHandle=",
                     "hlxOPCTest.TriggerExpression=", "hlxOPCTest.OPCItemID=", "hlxOPCTest.State=",
                     "hlxOPCTest.TestData", "hlxTestData.ID=", "hlxTestData.Flag=", "hlxTestData.Mode=",
                     "hlxTestData.Save", "hlxOPCTest.Constant=", "hlxOPCTest.SaveAs="}));
    EXPECT_TRUE(testing.result());
}

SCENARIO(TestDialog, TheItemMayBeChosenBeforeTheCharacteristic) {
    its.host.group->items->has("Line1.Force");
    Testing testing(its, its.host.has_test(0, ""));
    its.person.presses("bnItem");
    its.person.enters("txtFullPath", "Line1.Speed");
    its.person.presses("bnOK");
    EXPECT_FALSE(its.person.can_press("bnOK"));
    testing.picks_characteristic(7, "Length", 2);
    EXPECT_TRUE(its.person.can_press("bnOK"));
    EXPECT_TRUE(its.person.sees("chkItemTrigger").enabled);
    its.person.presses("bnOK");
    EXPECT_TRUE(testing.result());
}

SCENARIO(TestDialog, ATestThatLosesItsTriggerLosesItsOperatorToo) {
    const auto test = a_bound_test(its, 2);
    Testing testing(its, test);
    its.person.ticks("chkItemTrigger");
    its.person.presses("bnOK");
    EXPECT_TRUE(testing.result());
    EXPECT_FALSE(test->fields.item_trigger);
    EXPECT_EQ(test->fields.expression, 0);
    EXPECT_EQ(test->fields.value, Variant(std::int16_t{12}));
}

SCENARIO(TestDialog, AnOperatorThatBecomesAlwaysIsWritten) {
    const auto test = a_bound_test(its, 2);
    Testing testing(its, test);
    its.person.picks("cboExpression", "Always");
    its.person.presses("bnOK");
    EXPECT_TRUE(testing.result());
    EXPECT_TRUE(test->fields.item_trigger);
    EXPECT_EQ(test->fields.expression, 0);
}

SCENARIO(TestDialog, AnExistingTestTakesTheseCallsAndNoOthers) {
    const auto test = a_bound_test(its, 2);
    its.host.help_service = std::make_shared<FakeHelpService>(its.host.calls);
    CallsMade calls(its);
    Testing testing(its, test);
    Lines of_the_dialog = calls.since_then();
    ASSERT_GT(of_the_dialog.size(), 9U);
    of_the_dialog.erase(of_the_dialog.begin(), of_the_dialog.begin() + 9);
    EXPECT_EQ(
        of_the_dialog,
        Lines({"hlxOPCTest.OPCItemID", "hlxOPCTest.ClientHandle", "hlxOPCTest.CharacteristicName",
               "hlxOPCTest.ItemTrigger", "hlxOPCTest.Constant", "hlxOPCTest.SaveAs", "hlxOPCTest.Parent",
               "hlxOPCTests.Parent", "hlxOPCConfiguration.OPCGroup", "OPCGroup.OPCItems", "OPCItems.Item",
               "OPCItem.CanonicalDataType", "hlxOPCTest.TriggerExpression", "hlxOPCTest.TriggerValue",
               "create hlxHelp", "hlxHelp.HelpFile"}));
    its.person.ticks("chkItemTrigger");
    its.person.presses("bnOK");
    EXPECT_EQ(calls.since_then(), Lines({"hlxOPCTest.ItemTrigger=", "hlxOPCTest.ClientHandle=",
                                         "hlxOPCTest.TriggerExpression=", "hlxOPCTest.OPCItemID=",
                                         "hlxOPCTest.State=", "hlxOPCTest.Constant=", "hlxOPCTest.SaveAs="}));
    EXPECT_TRUE(testing.result());
}

namespace {

/// Whichever of these calls fails, the test is as before, and OK can be pressed again.
void is_as_before_when_these_fail(Play& its, const Lines& members) {
    for (const std::string& member : members) {
        SCOPED_TRACE(member);
        start_over(its);
        Testing testing(its, a_bound_test(its, 2));
        testing.picks_characteristic(8, "Width");
        testing.picks_item("Line1.Force");
        its.person.picks("cboExpression", " <> ");
        its.person.enters("txtValue", "77");
        its.person.enters("txtConstant", "9");
        its.person.picks("cboSaveAs", "Absolute Value");
        const TestFields before = testing.fields();
        its.host.calls.fail_on(member);
        its.person.presses("bnOK");
        its.expect_report(CallLog::failure_number, "dlgOPCTest.TestChoices");
        its.person.is_at("dlgOPCTest");
        EXPECT_EQ(testing.fields(), before);
        its.host.calls.fail_on("");
        its.person.presses("bnOK"); // nothing that was entered is lost
        EXPECT_TRUE(testing.result());
        EXPECT_EQ(testing.fields().item_id, "Line1.Force");
        EXPECT_EQ(testing.fields().value, Variant(77.0));
        EXPECT_EQ(testing.fields().save_as, 1);
        EXPECT_EQ(its.host.configuration->tests->entries.at(0)->data->id, 8);
    }
}

} // namespace

SCENARIO(TestDialog, WhenTheHostFailsAtTheTriggerTheTestIsAsBefore) {
    is_as_before_when_these_fail(its, {"hlxOPCTest.ItemTrigger=", "hlxOPCTest.TriggerValue="});
}

SCENARIO(TestDialog, WhenTheHostFailsAtTheHandleOrTheOperatorTheTestIsAsBefore) {
    is_as_before_when_these_fail(its, {"hlxOPCTest.ClientHandle=", "hlxOPCTest.TriggerExpression="});
}

SCENARIO(TestDialog, WhenTheHostFailsAtTheItemOrTheStateTheTestIsAsBefore) {
    is_as_before_when_these_fail(its, {"hlxOPCTest.OPCItemID=", "hlxOPCTest.State="});
}

SCENARIO(TestDialog, WhenTheHostFailsAtTheRecordTheTestIsAsBefore) {
    is_as_before_when_these_fail(its, {"hlxOPCTest.TestData", "hlxTestData.ID="});
}

SCENARIO(TestDialog, WhenTheHostFailsToSaveTheRecordTheTestIsAsBefore) {
    is_as_before_when_these_fail(its, {"hlxTestData.Flag=", "hlxTestData.Mode=", "hlxTestData.Save"});
}

SCENARIO(TestDialog, WhenTheHostFailsAtTheConstantTheTestIsAsBefore) {
    is_as_before_when_these_fail(its, {"hlxOPCTest.Constant=", "hlxOPCTest.SaveAs="});
}

SCENARIO(TestDialog, ACharacteristicThatWasSavedStaysThoughTheHostFailsBehindIt) {
    for (const char* member : {"hlxOPCTest.Constant=", "hlxOPCTest.SaveAs="}) {
        SCOPED_TRACE(member);
        start_over(its);
        const auto test = a_bound_test(its, 2);
        Testing testing(its, test);
        testing.picks_characteristic(8, "Width");
        const TestFields before = testing.fields();
        its.host.calls.fail_on(member);
        its.person.presses("bnOK");
        its.expect_report(CallLog::failure_number, "dlgOPCTest.TestChoices");
        its.host.calls.fail_on("");
        its.person.is_at("dlgOPCTest");
        its.person.presses("bnCancel");
        EXPECT_FALSE(testing.result());
        EXPECT_EQ(testing.fields(), before);
        // Nobody read which one the record had.
        EXPECT_EQ(test->data->id, 8);
        EXPECT_EQ(test->data->savings, (std::vector<FakeTestData::Saving>{{8, 0, 1, true}}));
    }
}

SCENARIO(TestDialog, AfterAFailureBehindTheSavedRecordTheFormerCharacteristicCanBeChosenAgain) {
    const auto test = a_bound_test(its, 2);
    Testing testing(its, test);
    testing.picks_characteristic(8, "Width");
    its.host.calls.fail_on("hlxOPCTest.SaveAs=");
    its.person.presses("bnOK");
    its.expect_report(CallLog::failure_number, "dlgOPCTest.TestChoices");
    its.host.calls.fail_on("");
    testing.picks_characteristic(7, "Length");
    EXPECT_EQ(its.person.reads("txtTest"), "Length");
    its.person.presses("bnOK");
    EXPECT_TRUE(testing.result());
    EXPECT_EQ(test->data->id, 7);
}

SCENARIO(TestDialog, ATestThatFailedHalfWayCanBeLeftAsItWas) {
    const auto test = a_bound_test(its, 2);
    test->fields.state = 3;
    const TestFields before = test->fields;
    Testing testing(its, test);
    its.person.ticks("chkItemTrigger");
    its.person.enters("txtConstant", "9");
    its.host.calls.fail_on("hlxOPCTest.SaveAs=");
    its.person.presses("bnOK");
    its.expect_report(CallLog::failure_number, "dlgOPCTest.TestChoices");
    // The host may have taken what it failed at.
    EXPECT_EQ(its.host.calls.count("hlxOPCTest.SaveAs="), 2);
    its.host.calls.fail_on("");
    its.person.presses("bnCancel");
    EXPECT_FALSE(testing.result());
    EXPECT_EQ(test->fields, before);
}

SCENARIO(TestDialog, ATriggerThatWasOffIsOffAgainWhenTheHostFailsHalfWay) {
    const auto test = a_bound_test(its, 2);
    test->fields.item_trigger = false;
    TestFields expected = test->fields;
    Testing testing(its, test);
    its.person.ticks("chkItemTrigger");
    its.person.picks("cboExpression", " = ");
    its.person.enters("txtValue", "77");
    its.host.calls.fail_on("hlxOPCTest.SaveAs=");
    its.person.presses("bnOK");
    its.expect_report(CallLog::failure_number, "dlgOPCTest.TestChoices");
    // Nobody read what the trigger that was off compared.
    expected.expression = 1;
    expected.value = std::int16_t{77};
    EXPECT_EQ(test->fields, expected);
    its.host.calls.fail_on("");
    its.person.presses("bnCancel");
    EXPECT_FALSE(testing.result());
}

SCENARIO(TestDialog, InANewTestNothingIsWrittenBack) {
    Testing testing(its, its.host.has_test(0, ""));
    testing.picks_characteristic(7, "Length");
    testing.picks_item("Line1.Speed");
    CallsMade calls(its);
    its.host.calls.fail_on("hlxOPCTest.SaveAs=");
    its.person.presses("bnOK");
    its.expect_report(CallLog::failure_number, "dlgOPCTest.TestChoices");
    its.host.calls.fail_on("");
    its.person.is_at("dlgOPCTest");
    its.person.presses("bnOK");
    EXPECT_TRUE(testing.result());
    const Lines once = {
        "hlxOPCTest.ItemTrigger=", "hlxOPCTest.ClientHandle=", "hlxOPCTest.TriggerExpression=",
        "hlxOPCTest.OPCItemID=",   "hlxOPCTest.State=",        "hlxOPCTest.TestData",
        "hlxTestData.ID=",         "hlxTestData.Flag=",        "hlxTestData.Mode=",
        "hlxTestData.Save",        "hlxOPCTest.Constant=",     "hlxOPCTest.SaveAs="};
    Lines twice = once;
    twice.insert(twice.end(), once.begin(), once.end());
    EXPECT_EQ(calls.since_then(), twice);
}

SCENARIO(TestDialog, ACharacteristicRecordThatIsGoneIsReportedAndTheTestIsAsBefore) {
    const auto test = a_bound_test(its, 2);
    Testing testing(its, test);
    testing.picks_characteristic(8, "Width");
    its.person.enters("txtValue", "77");
    const TestFields before = testing.fields();
    const auto record = test->data;
    test->data = nullptr;
    its.person.presses("bnOK");
    its.expect_report(error::type_mismatch, "dlgOPCTest.ResolveTestDat");
    its.expect_report(error::object_not_set, "dlgOPCTest.TestChoices");
    its.person.is_at("dlgOPCTest");
    EXPECT_EQ(testing.fields(), before);
    its.person.presses("bnCancel");
    test->data = record;
}
