#include "calls.h"
#include "testing.h"

// Choosing the item of a test: adding it to the group, and taking it back.

using namespace brx;
using namespace brx::checks;

SCENARIO(TestDialog, AnItemThatTheGroupHasIsNotAddedAgain) {
    its.host.group->items->has("Line1.Speed");
    its.host.group->items->has("Line1.Force"); // which is asked for its identifier all the same
    Testing testing(its, its.host.has_test(0, ""));
    its.person.presses("bnItem");
    its.person.enters("txtFullPath", "Line1.Speed");
    CallsMade calls(its);
    its.person.presses("bnOK");
    EXPECT_EQ(calls.since_then(), Lines({"OPCGroup.OPCItems", "OPCItems.Validate", // the browser asks first
                                         "OPCGroup.OPCItems", "OPCItems.Count", "OPCItems.Item",
                                         "OPCItem.ItemID", "OPCItems.Item", "OPCItem.ItemID"}));
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
    its.person.is_at("dlgOPCTest");
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

namespace {

/// Chooses an item that is valid when the browser asks for it, and refused when it is to be added.
void browses_a_refused_item(Play& its, const std::string& item) {
    FakeOPCItems& items = *its.host.group->items;
    its.person.presses("bnItem");
    its.person.enters("txtFullPath", item);
    items.claimed_errors = LongArray{{0}};
    items.answers.erase(item);
}

} // namespace

SCENARIO(TestDialog, ARefusalIsToldThoughTheConnectionWentMeanwhile) {
    Testing testing(its, its.host.has_test(0, ""));
    browses_a_refused_item(its, "Line1.Speed");
    testing.loses_the_server();
    CallsMade calls(its);
    its.person.presses("bnOK");
    its.person.answers({.text = "UNABLE TO ADD ITEM!\r\n\r\nThe item is not known to the server.\r\n\r\n"
                                "Item: Line1.Speed",
                        .style = message::critical,
                        .title = component_name});
    EXPECT_EQ(calls.since_then(), Lines({"OPCGroup.OPCItems", "OPCItems.Validate", // the browser asks first
                                         "OPCGroup.OPCItems", "OPCItems.Count", "OPCItems.Validate",
                                         "OPCItems.AddItems", "OPCServer.GetErrorString"}));
    EXPECT_EQ(its.host.connection->error_codes, std::vector{FakeOPCItems::unknown_item});
    EXPECT_EQ(its.person.reads("txtItem"), "");
    its.person.presses("bnCancel");
    EXPECT_FALSE(testing.result());
}

SCENARIO(TestDialog, ARefusalThatTheServerHasNoTextForIsToldAndThenReported) {
    Testing testing(its, its.host.has_test(0, ""));
    testing.picks_characteristic(7, "Length");
    testing.picks_item("Line1.Speed");
    browses_a_refused_item(its, "Line1.Force");
    its.host.calls.fail_on("OPCServer.GetErrorString");
    its.person.presses("bnOK");
    EXPECT_TRUE(its.host.reports.empty());
    its.person.answers({.text = "UNABLE TO ADD ITEM!\r\n\r\n\r\n\r\nItem: Line1.Force",
                        .style = message::critical,
                        .title = component_name});
    its.expect_report(CallLog::failure_number, "dlgOPCTest.bnItem_Click");
    its.host.calls.fail_on("");
    its.person.is_at("dlgOPCTest");
    EXPECT_EQ(its.person.reads("txtItem"), "");
    EXPECT_FALSE(its.person.can_press("bnOK"));
    EXPECT_FALSE(its.person.sees("chkItemTrigger").enabled);
    its.person.presses("bnCancel"); // which takes back nothing after a refusal
    EXPECT_FALSE(testing.result());
    EXPECT_TRUE(its.host.group->items->removed.empty());
}

SCENARIO(TestDialog, AnAddedItemWhoseGroupCannotBeReachedIsTakenBackByTheNextCancel) {
    for (const char* member :
         {"hlxOPCTest.Parent", "hlxOPCTests.Parent", "hlxOPCConfiguration.OPCGroup", "OPCGroup.OPCItems"}) {
        SCOPED_TRACE(member);
        start_over(its);
        Testing testing(its, its.host.has_test(0, ""));
        testing.picks_item("Line1.Speed");
        its.host.calls.fail_on(member);
        its.person.presses("bnCancel");
        its.expect_report(CallLog::failure_number, "dlgOPCTest.bnCancel_Click");
        its.host.calls.fail_on("");
        its.person.is_at("dlgOPCTest");
        EXPECT_EQ(its.person.reads("txtItem"), "Line1.Speed");
        EXPECT_EQ(its.host.group->items->ids(), Lines{"Line1.Speed"});
        its.person.presses("bnCancel");
        EXPECT_FALSE(testing.result());
        EXPECT_EQ(its.host.group->items->ids(), Lines());
    }
}

SCENARIO(TestDialog, AnAddedItemWhoseGroupIsGoneForAWhileIsTakenBackByTheNextCancel) {
    Testing testing(its, its.host.has_test(0, ""));
    testing.picks_item("Line1.Speed");
    its.host.configuration->group = nullptr;
    its.person.presses("bnCancel");
    its.expect_report(error::type_mismatch, "CommonTools.ResolveOPCGroup");
    its.expect_report(error::object_not_set, "dlgOPCTest.bnCancel_Click");
    its.person.is_at("dlgOPCTest");
    its.host.configuration->group = its.host.group;
    its.person.presses("bnCancel");
    EXPECT_FALSE(testing.result());
    EXPECT_EQ(its.host.group->items->ids(), Lines());
}

SCENARIO(TestDialog, AHandleWhoseRemovalFailedIsNotHandedOverAgain) {
    Testing testing(its, its.host.has_test(0, ""));
    testing.picks_item("Line1.Speed");
    its.host.calls.fail_on("OPCItems.Remove");
    its.person.presses("bnCancel");
    its.expect_report(CallLog::failure_number, "dlgOPCTest.bnCancel_Click");
    its.host.calls.fail_on("");
    its.person.is_at("dlgOPCTest");
    its.person.presses("bnCancel");
    EXPECT_FALSE(testing.result());
    EXPECT_EQ(its.host.calls.count("OPCItems.Remove"), 1);
}

SCENARIO(TestDialog, AnItemWithoutAHandleIsNotTakenBack) {
    its.host.group->items->claimed_handles = LongArray{{0}};
    Testing testing(its, its.host.has_test(0, ""));
    testing.picks_item("Line1.Speed");
    EXPECT_EQ(its.person.reads("txtItem"), "Line1.Speed");
    its.person.presses("bnCancel");
    EXPECT_FALSE(testing.result());
    EXPECT_EQ(its.host.calls.count("OPCItems.Remove"), 0);
}

SCENARIO(TestDialog, CancelThatIsStoppedTakesTheItemBackAllTheSame) {
    Testing testing(its, its.host.has_test(0, ""));
    testing.picks_item("Line1.Speed");
    its.host.calls.during("OPCGroup.OPCItems", [&] {
        its.stage->pass(std::chrono::seconds(1));
        EXPECT_TRUE(its.person.screen().stop());
    });
    its.person.presses("bnCancel");
    its.person.is_at("");
    EXPECT_EQ(its.host.group->items->ids(), std::vector<std::string>());
}
