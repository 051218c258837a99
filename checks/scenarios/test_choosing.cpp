#include "testing.h"

// Choosing the characteristic and the item of a test.

using namespace brx;
using namespace brx::checks;

SCENARIO(TestDialog, OpensEmptyForANewTest) {
    const Testing testing(its, its.host.has_test(0, ""));
    EXPECT_EQ(its.person.title(), "OPC Test Configuration");
    EXPECT_EQ(its.person.reads("lblTest"), "&A. Test:");
    EXPECT_EQ(its.person.reads("lblItem"), "&B. OPC Item:");
    EXPECT_EQ(its.person.reads("lblSaveAs"), "&C. Save As:");
    EXPECT_EQ(its.person.reads("lblConstant"), "&D. Constant:");
    EXPECT_EQ(its.person.reads("chkItemTrigger"), "&E. Trigger On Change Event");
    EXPECT_EQ(its.person.reads("lblExpression"), "&F. Expression:");
    EXPECT_EQ(its.person.reads("lblValue"), "&G. Value:");
    EXPECT_EQ(its.person.reads("bnCancel"), "&Cancel");
    EXPECT_EQ(its.person.lines_of("cboExpression"),
              Lines({"Always", " = ", " > ", " >= ", " < ", " <= ", " <> "}));
    EXPECT_EQ(its.person.sees("cboExpression").selected, 0);
    EXPECT_EQ(its.person.lines_of("cboSaveAs"),
              Lines({"Actual Value", "Absolute Value", "Reversed Sign of Actual Value", "Constant Value"}));
    EXPECT_EQ(its.person.sees("cboSaveAs").selected, 0);
    for (const char* name :
         {"bnOK", "chkItemTrigger", "cboExpression", "lblExpression", "txtValue", "lblValue"})
        EXPECT_FALSE(its.person.sees(name).enabled) << name;
    EXPECT_EQ(its.person.sees("chkItemTrigger").selected, 0);
    its.person.presses("bnCancel");
}

SCENARIO(TestDialog, ANewTestGetsItsCharacteristicAndItsItem) {
    Testing testing(its, its.host.has_test(0, ""));
    testing.picks_characteristic(7, "Length", 2);
    EXPECT_EQ(its.person.reads("txtTest"), "Length");
    EXPECT_FALSE(its.person.can_press("bnOK"));
    testing.picks_item("Line1.Speed");
    EXPECT_EQ(its.person.reads("txtItem"), "Line1.Speed");
    EXPECT_TRUE(its.person.can_press("bnOK"));
    EXPECT_TRUE(its.person.sees("chkItemTrigger").enabled);
    EXPECT_EQ(its.host.group->items->ids(), std::vector<std::string>{"Line1.Speed"});
    EXPECT_EQ(its.host.group->items->client_handles, std::vector{LongArray{{7}}});
    its.person.presses("bnOK");
    EXPECT_TRUE(testing.result());
    EXPECT_EQ(testing.fields().item_id, "Line1.Speed");
    EXPECT_EQ(testing.fields().client_handle, 101);
    EXPECT_EQ(testing.fields().state, 1);
    const auto& data = *its.host.configuration->tests->entries[0]->data;
    EXPECT_EQ(data.savings, (std::vector<FakeTestData::Saving>{{7, 0, 1, true}}));
}

SCENARIO(TestDialog, WritesInOneOrder) {
    Testing testing(its, its.host.has_test(0, ""));
    testing.picks_characteristic(7, "Length");
    testing.picks_item("Line1.Speed");
    its.person.ticks("chkItemTrigger");
    its.person.presses("bnOK");
    EXPECT_TRUE(testing.result());
    std::vector<std::string> writes = testing.writes();
    std::erase_if(writes, [](const std::string& member) { return member.starts_with("hlxRecord."); });
    EXPECT_EQ(writes, std::vector<std::string>(
                          {"hlxOPCTest.ItemTrigger=", "hlxOPCTest.TriggerValue=", "hlxOPCTest.ClientHandle=",
                           "hlxOPCTest.TriggerExpression=", "hlxOPCTest.OPCItemID=", "hlxOPCTest.State=",
                           "hlxTestData.ID=", "hlxTestData.Flag=", "hlxTestData.Mode=", "hlxTestData.Save",
                           "hlxOPCTest.Constant=", "hlxOPCTest.SaveAs="}));
}

SCENARIO(TestDialog, WithoutATriggerNoTriggerValueIsWritten) {
    Testing testing(its, its.host.has_test(0, ""));
    testing.picks_characteristic(7, "Length");
    testing.picks_item("Line1.Speed");
    its.person.presses("bnOK");
    EXPECT_TRUE(testing.result());
    EXPECT_EQ(its.host.calls.count("hlxOPCTest.TriggerValue="), 0);
    EXPECT_EQ(its.host.calls.count("OPCItem.CanonicalDataType"), 0);
}

SCENARIO(TestDialog, ThePickerShowsThePresentCharacteristicAndMayBeCancelled) {
    Testing testing(its, its.host.has_test(0, ""));
    testing.picks_characteristic(7, "Length");
    its.host.picker->picks = nullptr;
    its.person.presses("bnTest");
    EXPECT_EQ(its.host.picker->shown_with, std::vector<std::int32_t>({0, 7}));
    EXPECT_TRUE(its.host.picker->shows_the_hosts_database);
    EXPECT_EQ(its.person.reads("txtTest"), "Length");
    its.person.presses("bnCancel");
    EXPECT_FALSE(testing.result());
}

SCENARIO(TestDialog, ACharacteristicThatTheConfigurationHasIsRefused) {
    its.host.has_test(7, "Length");
    Testing testing(its, its.host.has_test(0, ""));
    testing.picks_characteristic(7, "Length");
    its.person.answers({.text = "DUPLICATE TEST!  Unable to add duplicate tests to a group.",
                        .style = message::exclamation,
                        .title = "Add Error"});
    EXPECT_EQ(its.person.reads("txtTest"), "");
    its.person.presses("bnCancel");
    EXPECT_FALSE(testing.result());
}

SCENARIO(TestDialog, TheEditedTestsOwnCharacteristicIsRefusedToo) {
    const Testing testing(its, a_bound_test(its, 5));
    its.host.picker->picks = std::make_shared<FakeTestData>(its.host.calls, 7, 1, "Length");
    its.person.presses("bnTest");
    its.person.answers({.text = "DUPLICATE TEST!  Unable to add duplicate tests to a group.",
                        .style = message::exclamation,
                        .title = "Add Error"});
    EXPECT_EQ(its.person.reads("txtTest"), "Length");
    EXPECT_TRUE(its.person.can_press("bnOK"));
    its.person.presses("bnCancel");
}

SCENARIO(TestDialog, AnItemThatTheGroupHasIsNotAddedAgain) {
    its.host.group->items->has("Line1.Speed");
    Testing testing(its, its.host.has_test(0, ""));
    testing.picks_item("Line1.Speed");
    EXPECT_EQ(its.person.reads("txtItem"), "Line1.Speed");
    EXPECT_TRUE(its.host.group->items->added.empty());
    its.person.presses("bnCancel");
    EXPECT_FALSE(testing.result());
    EXPECT_TRUE(its.host.group->items->removed.empty());
}

SCENARIO(TestDialog, ItemsInOtherLetterCaseAreOthers) {
    its.host.group->items->has("line1.speed");
    Testing testing(its, its.host.has_test(0, ""));
    testing.picks_item("Line1.Speed");
    EXPECT_EQ(its.host.group->items->ids(), std::vector<std::string>({"line1.speed", "Line1.Speed"}));
    its.person.presses("bnCancel");
}

SCENARIO(TestDialog, CancelTakesTheItemBackThatItAdded) {
    its.host.group->items->has("Line2.Count");
    Testing testing(its, its.host.has_test(0, ""));
    testing.picks_item("Line1.Speed");
    its.person.presses("bnCancel");
    EXPECT_FALSE(testing.result());
    EXPECT_EQ(its.host.group->items->removed, std::vector{LongArray{{102}}});
    EXPECT_EQ(its.host.group->items->ids(), std::vector<std::string>{"Line2.Count"});
}

SCENARIO(TestDialog, OnlyTheLastItemAddedIsTakenBack) {
    Testing testing(its, its.host.has_test(0, ""));
    testing.picks_item("Line1.Speed");
    testing.picks_item("Line1.Force");
    its.person.presses("bnCancel");
    EXPECT_EQ(its.host.group->items->ids(), std::vector<std::string>{"Line1.Speed"});
    EXPECT_FALSE(testing.result());
}

SCENARIO(TestDialog, AnItemThatCannotBeAddedIsToldAndForgotten) {
    its.host.has_test(8, "Width");
    Testing testing(its, its.host.has_test(0, ""));
    testing.picks_characteristic(7, "Length");
    testing.picks_item_that_is_refused("Line1.Speed");
    EXPECT_EQ(its.person.reads("txtItem"), "");
    EXPECT_FALSE(its.person.can_press("bnOK"));
    EXPECT_FALSE(its.person.sees("chkItemTrigger").enabled);
    its.person.presses("bnCancel");
    EXPECT_FALSE(testing.result());
    EXPECT_TRUE(its.host.group->items->removed.empty());
}

SCENARIO(TestDialog, AfterARefusedItemNothingIsTakenBack) {
    Testing testing(its, its.host.has_test(0, ""));
    testing.picks_item("Line1.Speed");
    testing.picks_item_that_is_refused("Line1.Force");
    its.person.presses("bnCancel");
    EXPECT_FALSE(testing.result());
    EXPECT_TRUE(its.host.group->items->removed.empty());
    EXPECT_EQ(its.host.group->items->ids(), std::vector<std::string>{"Line1.Speed"});
}

SCENARIO(TestDialog, AnItemThatTheGroupHasLeavesTheAddedOneToBeTakenBack) {
    its.host.group->items->has("Line1.Force");
    Testing testing(its, its.host.has_test(0, ""));
    testing.picks_item("Line1.Speed");
    testing.picks_item("Line1.Force");
    its.person.presses("bnCancel");
    EXPECT_FALSE(testing.result());
    EXPECT_EQ(its.host.group->items->ids(), std::vector<std::string>{"Line1.Force"});
}

SCENARIO(TestDialog, AnItemAloneIsNotEnough) {
    Testing testing(its, its.host.has_test(0, ""));
    testing.picks_item("Line1.Speed");
    EXPECT_FALSE(its.person.can_press("bnOK"));
    EXPECT_FALSE(its.person.sees("chkItemTrigger").enabled);
    its.person.presses("bnCancel");
}

SCENARIO(TestDialog, ADisconnectedServerIsToldAndThenNoMissingGroup) {
    Testing testing(its, its.host.has_test(0, ""));
    testing.loses_the_server();
    for (const bool with_group : {true, false}) {
        if (!with_group) its.host.configuration->group = nullptr;
        its.person.presses("bnItem");
        its.person.answers({.text = "The OPCServer is disconnected or does not exist.\r\nServer Node: PC9\r\n"
                                    "Server Name: Sim",
                            .style = message::exclamation,
                            .title = "Server Error"});
        its.person.is_at("dlgOPCTest");
    }
    its.person.presses("bnCancel");
}

SCENARIO(TestDialog, AMissingGroupIsTold) {
    its.host.configuration->group = nullptr;
    const Testing testing(its, its.host.has_test(0, ""));
    its.person.presses("bnItem");
    its.person.answers(
        {.text = "The OPCGroup is Invalid.", .style = message::exclamation, .title = "Server Error"});
    its.person.presses("bnCancel");
}

SCENARIO(TestDialog, TheBrowserStartsAtThePresentItemAndMayBeCancelled) {
    const Testing testing(its, a_bound_test(its, 5));
    its.host.browser->root.leaves = {"Version"};
    its.person.presses("bnItem");
    EXPECT_EQ(its.person.reads("txtFullPath"), "Line1.Speed");
    its.person.presses("bnCancel");
    its.person.is_at("dlgOPCTest");
    EXPECT_EQ(its.person.reads("txtItem"), "Line1.Speed");
    its.person.presses("bnCancel");
}

SCENARIO(TestDialog, AnItemThatTheHostFailsToAddIsForgotten) {
    Testing testing(its, a_bound_test(its, 2));
    its.host.calls.fail_on("OPCItems.AddItems");
    testing.picks_item("Line1.Force");
    its.expect_report(CallLog::failure_number, "dlgOPCTest.bnItem_Click");
    its.host.calls.fail_on("");
    EXPECT_EQ(its.person.reads("txtItem"), "");
    EXPECT_FALSE(its.person.can_press("bnOK"));
    its.person.presses("bnCancel");
    EXPECT_FALSE(testing.result());
}
