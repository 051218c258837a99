#include "calls.h"
#include "triggering.h"

#include <utility>

// The dialog of one trigger, which the configuration dialog opens: its fields and the item browser.

using namespace brx;
using namespace brx::checks;

SCENARIO(TriggerDialog, EveryFieldHasItsLabelAndItsLetter) {
    a_filled_configuration(its);
    Triggering trigger(its);
    its.person.is_at("dlgEvaluation");
    EXPECT_EQ(its.person.title(), "Set Trigger");
    EXPECT_EQ(its.person.reads("Label1"), "&A. OPC Item:");
    EXPECT_EQ(its.person.reads("Label2"), "&B. Expression");
    EXPECT_EQ(its.person.reads("Label3"), "&C. Value");
    EXPECT_EQ(its.person.reads("bnOK"), "OK");
    EXPECT_EQ(its.person.reads("bnCancel"), "&Cancel");
    const std::pair<char, const char*> letters[] = {
        {'b', "cboExpression"}, {'a', "cboItem"}, {'c', "txtValue"}, {'c', "bnCancel"}};
    for (const auto& [letter, control] : letters) {
        its.person.uses_accelerator(letter);
        EXPECT_TRUE(its.person.has_focus(control)) << letter;
    }
    trigger.cancels();
}

SCENARIO(TriggerDialog, TheBrowserStartsAtThePresentItemAndWhatIsPickedIsAdded) {
    a_filled_configuration(its);
    its.host.browser->root.leaves = {"Version"};
    its.host.browser->root.has("Line1", {"Speed", "Force"});
    its.host.group->items->answers["Version"] = 0;
    Triggering trigger(its);
    its.person.presses("bnItem");
    its.person.is_at("dlgItemSelect");
    EXPECT_EQ(its.person.reads("txtFullPath"), "Line1.Speed");
    its.person.enters("txtFullPath", "Version");
    its.person.presses("bnOK");
    its.person.is_at("dlgEvaluation");
    EXPECT_EQ(its.person.reads("cboItem"), "Version");
    EXPECT_EQ(its.person.lines_of("cboItem"), Lines({"<None>", "Line1.Speed", "Line1.Force", "Version"}));
    its.person.presses("bnOK");
    its.person.is_at("dlgConfiguration");
    EXPECT_EQ(its.person.reads("txtSGEval"), "Version = 5");
    EXPECT_EQ(its.host.group->items->added, std::vector{StringArray{{"Version"}}});
    EXPECT_EQ(its.host.group->items->ids(),
              std::vector<std::string>({"Line1.Speed", "Line1.Force", "Version"}));
    trigger.configuration().leaves();
}

SCENARIO(TriggerDialog, ADisconnectedServerCannotBeBrowsedAndIsReportedOnce) {
    a_filled_configuration(its);
    an_unconnected_server(its, "Plant.Simulation.1");
    Triggering trigger(its);
    its.person.presses("bnItem");
    its.expect_report(error::type_mismatch, "CommonTools.ResolveOPCServer");
    its.person.is_at("dlgEvaluation");
    EXPECT_EQ(its.person.reads("cboItem"), "Line1.Speed");
    trigger.cancels();
}

SCENARIO(TriggerDialog, ABrowsedItemTakesTheseCallsAndNoOthers) {
    a_filled_configuration(its);
    its.host.help_service = std::make_shared<FakeHelpService>(its.host.calls);
    its.host.group->items->answers["Version"] = 0;
    Configuring dialog(its);
    dialog.turns_to_sampling();
    CallsMade calls(its);
    its.person.presses("cmdSubgroupTrigger");
    EXPECT_EQ(calls.since_then(),
              Lines({"create hlxHelp", "hlxHelp.HelpFile", "hlxOPCConfiguration.OPCGroup",
                     "OPCGroup.OPCItems", "OPCItems.Count", "OPCItems.Item", "OPCItem.ItemID",
                     "OPCItems.Item", "OPCItem.ItemID", "hlxOPCConfiguration.OPCGroup", "OPCGroup.OPCItems",
                     "OPCItems.Item", "OPCItem.CanonicalDataType"}));
    its.person.presses("bnItem");
    Lines until_the_browser = calls.since_then();
    until_the_browser.resize(4);
    EXPECT_EQ(until_the_browser, Lines({"hlxOPCConfiguration.Server", "hlxOPCServerHolder.ServerEntry",
                                        "hlxOPCServer.OPCServer", "hlxOPCConfiguration.OPCGroup"}));
    its.person.enters("txtFullPath", "Version");
    calls.since_then();
    its.person.presses("bnOK");
    EXPECT_EQ(calls.since_then(),
              Lines({"OPCGroup.OPCItems", "OPCItems.Validate", // the browser asks
                     "OPCGroup.OPCItems", "OPCItems.Count", "OPCItems.Item", "OPCItem.ItemID",
                     "OPCItems.Item", "OPCItem.ItemID", "OPCItems.AddItems", "hlxOPCConfiguration.OPCGroup",
                     "OPCGroup.OPCItems", "OPCItems.Item", "OPCItem.CanonicalDataType"}));
    its.person.presses("bnOK");
    EXPECT_EQ(calls.since_then(), Lines({"hlxOPCConfiguration.OPCGroup", "OPCGroup.OPCItems", "OPCItems.Item",
                                         "OPCItem.CanonicalDataType"}));
    its.person.is_at("dlgConfiguration");
    dialog.leaves();
}

SCENARIO(TriggerDialog, ABrowsedItemThatTheGroupHasIsSelected) {
    a_filled_configuration(its);
    its.host.group->items->has("Line1.Torque"); // which is asked for its identifier all the same
    its.host.group->items->answers["Line1.Force"] = 0;
    Triggering trigger(its);
    its.person.presses("bnItem");
    its.person.enters("txtFullPath", "Line1.Force");
    CallsMade calls(its);
    its.person.presses("bnOK");
    EXPECT_EQ(calls.since_then(), Lines({"OPCGroup.OPCItems", "OPCItems.Validate", // the browser asks first
                                         "OPCGroup.OPCItems", "OPCItems.Count", "OPCItems.Item",
                                         "OPCItem.ItemID", "OPCItems.Item", "OPCItem.ItemID", "OPCItems.Item",
                                         "OPCItem.ItemID", "hlxOPCConfiguration.OPCGroup",
                                         "OPCGroup.OPCItems", "OPCItems.Item", "OPCItem.CanonicalDataType"}));
    its.person.is_at("dlgEvaluation");
    EXPECT_EQ(its.person.reads("cboItem"), "Line1.Force");
    EXPECT_EQ(its.person.lines_of("cboItem"),
              Lines({"<None>", "Line1.Speed", "Line1.Force", "Line1.Torque"}));
    trigger.cancels();
}

SCENARIO(TriggerDialog, ABrowsedItemThatCannotBeAddedChangesNothingSilently) {
    a_filled_configuration(its);
    its.host.group->items->claimed_errors = LongArray{{0}};
    Triggering trigger(its);
    its.person.presses("bnItem");
    its.person.enters("txtFullPath", "Odd");
    its.person.presses("bnOK");
    its.person.is_at("dlgEvaluation");
    EXPECT_EQ(its.person.reads("cboItem"), "Line1.Speed");
    EXPECT_EQ(its.person.lines_of("cboItem"), Lines({"<None>", "Line1.Speed", "Line1.Force"}));
    EXPECT_EQ(its.host.calls.count("OPCServer.GetErrorString"), 0);
    trigger.cancels();
}

SCENARIO(TriggerDialog, ARefusalIsAsSilentWhenTheConnectionWentMeanwhile) {
    a_filled_configuration(its);
    its.host.group->items->claimed_errors = LongArray{{0}};
    Triggering trigger(its);
    its.person.presses("bnItem");
    its.person.enters("txtFullPath", "Odd");
    an_unconnected_server(its, "Matrix");
    CallsMade calls(its);
    its.person.presses("bnOK");
    EXPECT_EQ(calls.since_then(),
              Lines({"OPCGroup.OPCItems", "OPCItems.Validate", // the browser asks first
                     "OPCGroup.OPCItems", "OPCItems.Count", "OPCItems.Item", "OPCItem.ItemID",
                     "OPCItems.Item", "OPCItem.ItemID", "OPCItems.AddItems",
                     // the type of the item that stays
                     "hlxOPCConfiguration.OPCGroup", "OPCGroup.OPCItems", "OPCItems.Item",
                     "OPCItem.CanonicalDataType"}));
    its.person.is_at("dlgEvaluation");
    EXPECT_EQ(its.person.reads("cboItem"), "Line1.Speed");
    EXPECT_EQ(its.host.group->items->ids(), (Lines{"Line1.Speed", "Line1.Force"}));
    trigger.cancels();
}

SCENARIO(TriggerDialog, ACancelledBrowserChangesNothing) {
    a_filled_configuration(its);
    Triggering trigger(its);
    its.person.presses("bnItem");
    its.person.presses("bnCancel");
    its.person.is_at("dlgEvaluation");
    EXPECT_EQ(its.person.reads("cboItem"), "Line1.Speed");
    EXPECT_EQ(its.person.lines_of("cboItem"), Lines({"<None>", "Line1.Speed", "Line1.Force"}));
    trigger.cancels();
}

SCENARIO(TriggerDialog, AGroupThatIsGoneCannotBeBrowsedAndIsReportedOnce) {
    a_filled_configuration(its);
    Triggering trigger(its);
    its.host.configuration->group = nullptr;
    its.person.presses("bnItem");
    its.expect_report(error::type_mismatch, "CommonTools.ResolveOPCGroup");
    its.person.is_at("dlgEvaluation");
    EXPECT_EQ(its.person.reads("cboItem"), "Line1.Speed");
    its.host.configuration->group = its.host.group;
    trigger.cancels();
}
