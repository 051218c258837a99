#include "calls_of.h"

#include "stories/configuring.h"

// The same of the configuration dialog and of those that it opens.

using namespace brx;
using namespace brx::checks;

namespace {

/// The calls while the configuration dialog is open at a tab.
Calls calls_in_the_dialog(const std::string& tab, const Story& story,
                          const Story& before = a_filled_configuration) {
    Calls calls;
    play([&](Play& its) {
        before(its);
        Configuring dialog(its);
        dialog.turns_to(tab);
        CallsMade made(its);
        story(its);
        dialog.leaves();
        calls = made.since_then();
    });
    return calls;
}

} // namespace

TEST(CallsToTheHost, WhileATestIsAddedEditedAndRemoved) {
    const Calls calls = calls_in_the_dialog("&1. General", [](Play& its) {
        its.host.picker->picks = std::make_shared<FakeTestData>(its.host.calls, 8, 1, "Width");
        its.host.browser->root.has("Line1", {"Speed", "Force"});
        its.person.presses("bnAdd");
        its.person.presses("bnTest");
        its.host.picker->picks = nullptr;
        its.person.presses("bnItem");
        its.host.group->items->answers["Line1.Force"] = 0;
        its.person.enters("txtFullPath", "Line1.Force");
        its.person.presses("bnOK");
        its.person.presses("bnOK");
        its.person.picks("lvwTest", its.person.line_of("lvwTest", 0));
        its.person.presses("cmdEdit");
        its.person.presses("bnOK");
        its.person.picks("lvwTest", its.person.line_of("lvwTest", 1));
        its.person.presses("bnRemove");
    });
    expect_calls(calls, R"(
        hlxOPCConfiguration.Tests; hlxOPCTests.Add; hlxOPCTest.Parent; hlxOPCTests.Parent;
        hlxOPCConfiguration.Server; hlxOPCServerHolder.ServerEntry; hlxOPCServer.Parent; hlxOPCServers.Parent;
        hlxApplication.Database; hlxOPCTest.State; hlxOPCTest.ItemText; hlxOPCTest.OPCItemID; create hlxHelp;
        hlxHelp.HelpFile; create hlxTestSelection; hlxSelection.Show; hlxSelection.Record; hlxTestData.ID;
        hlxOPCTest.Parent; hlxOPCTests.Count; hlxOPCTests.Item; hlxOPCTest.TestData; hlxTestData.ID;
        hlxOPCTests.Item; hlxOPCTest.TestData; hlxTestData.ID; hlxTestData.GroupID; create hlxTestGroup;
        hlxRecord.ID=; hlxRecord.SearchFlag=; hlxRecord.Load; hlxRecord.Name; hlxTestData.Name;
        hlxOPCTest.Parent; hlxOPCTests.Parent; hlxOPCConfiguration.Server; hlxOPCServerHolder.ServerEntry;
        hlxOPCServer.OPCServer; hlxOPCConfiguration.OPCGroup; hlxHelp.HelpFile; OPCServer.ServerNode;
        OPCServer.ServerName; OPCServer.CreateBrowser; OPCBrowser.MoveToRoot; OPCBrowser.ShowBranches;
        OPCBrowser.Count; OPCBrowser.Organization; OPCBrowser.MoveToRoot; OPCBrowser.ShowBranches;
        OPCBrowser.Count; OPCBrowser.Item(1); OPCGroup.OPCItems; OPCItems.Validate; OPCGroup.OPCItems;
        OPCItems.Count; OPCItems.Item; OPCItem.ItemID; OPCItems.Item; OPCItem.ItemID; hlxOPCTest.ItemTrigger=;
        hlxOPCTest.ClientHandle=; hlxOPCTest.TriggerExpression=; hlxOPCTest.OPCItemID=; hlxOPCTest.State=;
        hlxOPCTest.TestData; hlxTestData.ID=; hlxTestData.Flag=; hlxTestData.Mode=; hlxTestData.Save;
        hlxOPCTest.Constant=; hlxOPCTest.SaveAs=; hlxOPCConfiguration.Tests; hlxOPCTests.Count;
        hlxOPCTests.Item; hlxOPCTest.CharacteristicName; hlxOPCTest.OPCItemID; hlxOPCTest.Parent;
        hlxOPCTests.Parent; hlxOPCConfiguration.Server; hlxOPCServerHolder.ServerEntry;
        hlxOPCServer.ServerName; hlxOPCServer.Node; hlxOPCTest.State; hlxOPCTests.Item;
        hlxOPCTest.CharacteristicName; hlxOPCTest.OPCItemID; hlxOPCTest.Parent; hlxOPCTests.Parent;
        hlxOPCConfiguration.Server; hlxOPCServerHolder.ServerEntry; hlxOPCServer.ServerName;
        hlxOPCServer.Node; hlxOPCTest.State; hlxOPCConfiguration.Tests; hlxOPCTests.Item; hlxOPCTest.Parent;
        hlxOPCTests.Parent; hlxOPCConfiguration.Server; hlxOPCServerHolder.ServerEntry; hlxOPCServer.Parent;
        hlxOPCServers.Parent; hlxApplication.Database; hlxOPCTest.State; hlxOPCTest.ItemText;
        hlxOPCTest.OPCItemID; hlxOPCTest.ClientHandle; hlxOPCTest.CharacteristicName; hlxOPCTest.ItemTrigger;
        hlxOPCTest.Constant; hlxOPCTest.SaveAs; hlxHelp.HelpFile; hlxOPCTest.ItemTrigger=;
        hlxOPCTest.ClientHandle=; hlxOPCTest.TriggerExpression=; hlxOPCTest.OPCItemID=; hlxOPCTest.State=;
        hlxOPCTest.Constant=; hlxOPCTest.SaveAs=; hlxOPCConfiguration.Tests; hlxOPCTests.Count;
        hlxOPCTests.Item; hlxOPCTest.CharacteristicName; hlxOPCTest.OPCItemID; hlxOPCTest.Parent;
        hlxOPCTests.Parent; hlxOPCConfiguration.Server; hlxOPCServerHolder.ServerEntry;
        hlxOPCServer.ServerName; hlxOPCServer.Node; hlxOPCTest.State; hlxOPCTests.Item;
        hlxOPCTest.CharacteristicName; hlxOPCTest.OPCItemID; hlxOPCTest.Parent; hlxOPCTests.Parent;
        hlxOPCConfiguration.Server; hlxOPCServerHolder.ServerEntry; hlxOPCServer.ServerName;
        hlxOPCServer.Node; hlxOPCTest.State; hlxOPCConfiguration.Tests; hlxOPCTests.Remove;
    )");
}

TEST(CallsToTheHost, WhileATestThatWasAddedIsGivenUp) {
    const Calls calls = calls_in_the_dialog("&1. General", [](Play& its) {
        its.person.presses("bnAdd");
        its.person.presses("bnCancel");
    });
    expect_calls(calls, R"(
        hlxOPCConfiguration.Tests; hlxOPCTests.Add; hlxOPCTest.Parent; hlxOPCTests.Parent;
        hlxOPCConfiguration.Server; hlxOPCServerHolder.ServerEntry; hlxOPCServer.Parent; hlxOPCServers.Parent;
        hlxApplication.Database; hlxOPCTest.State; hlxOPCTest.ItemText; hlxOPCTest.OPCItemID; create hlxHelp;
        hlxHelp.HelpFile; hlxOPCTest.Parent; hlxOPCTest.Index; hlxOPCTests.Remove;
    )");
}

TEST(CallsToTheHost, WhileATriggerIsSet) {
    const Calls calls = calls_in_the_dialog("&2. Sampling", [](Play& its) {
        its.host.browser->root.has("Line1", {"Speed", "Force", "Count"});
        its.host.group->items->answers["Line1.Count"] = 0;
        its.person.presses("cmdSubgroupTrigger");
        its.person.presses("bnItem");
        its.person.enters("txtFullPath", "Line1.Count");
        its.person.presses("bnOK");
        its.person.picks("cboExpression", " >= ");
        its.person.enters("txtValue", "3");
        its.person.presses("bnOK");
    });
    expect_calls(calls, R"(
        create hlxHelp; hlxHelp.HelpFile; hlxOPCConfiguration.OPCGroup; OPCGroup.OPCItems; OPCItems.Count;
        OPCItems.Item; OPCItem.ItemID; OPCItems.Item; OPCItem.ItemID; hlxOPCConfiguration.OPCGroup;
        OPCGroup.OPCItems; OPCItems.Item; OPCItem.CanonicalDataType; hlxOPCConfiguration.Server;
        hlxOPCServerHolder.ServerEntry; hlxOPCServer.OPCServer; hlxOPCConfiguration.OPCGroup;
        hlxHelp.HelpFile; OPCServer.ServerNode; OPCServer.ServerName; OPCServer.CreateBrowser;
        OPCBrowser.MoveToRoot; OPCBrowser.ShowBranches; OPCBrowser.Count; OPCBrowser.Organization;
        OPCBrowser.MoveToRoot; OPCBrowser.ShowBranches; OPCBrowser.Count; OPCBrowser.Item(1);
        OPCBrowser.MoveToRoot; OPCBrowser.ShowLeafs(True); OPCBrowser.Count; OPCGroup.OPCItems;
        OPCItems.Validate; OPCGroup.OPCItems; OPCItems.Count; OPCItems.Item; OPCItem.ItemID; OPCItems.Item;
        OPCItem.ItemID; OPCItems.AddItems; hlxOPCConfiguration.OPCGroup; OPCGroup.OPCItems; OPCItems.Item;
        OPCItem.CanonicalDataType; hlxOPCConfiguration.OPCGroup; OPCGroup.OPCItems; OPCItems.Item;
        OPCItem.CanonicalDataType;
    )");
}

TEST(CallsToTheHost, WhileADescriptorIsAddedForAnItemAndRemoved) {
    const Calls calls = calls_in_the_dialog("&3. Descriptors", [](Play& its) {
        its.host.browser->root.has("Line1", {"Speed", "Force", "Lot"});
        its.host.group->items->answers["Line1.Lot"] = 0;
        its.person.presses("bnAddDesc");
        its.person.picks("List1", "Lot");
        its.person.presses("bnOK");
        its.person.presses("bnItem");
        its.person.enters("txtFullPath", "Line1.Lot");
        its.person.presses("bnOK");
        its.person.presses("bnOK");
        its.person.picks("lvwDescriptors", its.person.line_of("lvwDescriptors", 0));
        its.person.presses("bnRemoveDesc");
    });
    expect_calls(calls, R"(
        hlxOPCConfiguration.Descriptors; hlxOPCDescriptors.NewEnum; hlxOPCDescriptors.Next;
        hlxOPCDescriptors.Add; hlxOPCConfiguration.Server; hlxOPCServerHolder.ServerEntry;
        hlxOPCServer.Parent; hlxOPCServers.Parent; hlxApplication.Database; hlxOPCDescriptor.Type;
        hlxOPCDescriptor.ItemName; hlxOPCDescriptor.GroupName; hlxOPCConfiguration.Server;
        hlxOPCServerHolder.ServerEntry; hlxOPCServer.OPCServer; hlxOPCConfiguration.OPCGroup; create hlxHelp;
        hlxHelp.HelpFile; OPCServer.ServerNode; OPCServer.ServerName; OPCServer.CreateBrowser;
        OPCBrowser.MoveToRoot; OPCBrowser.ShowBranches; OPCBrowser.Count; OPCBrowser.Organization;
        OPCBrowser.MoveToRoot; OPCBrowser.ShowBranches; OPCBrowser.Count; OPCBrowser.Item(1);
        OPCGroup.OPCItems; OPCItems.Validate; OPCGroup.OPCItems; OPCItems.Count; OPCItems.Item;
        OPCItem.ItemID; OPCItems.Item; OPCItem.ItemID; OPCItems.AddItems; hlxOPCDescriptor.ItemName=;
        hlxOPCDescriptor.GroupName=; hlxOPCDescriptor.Type; hlxOPCDescriptor.GroupName;
        hlxOPCDescriptor.ItemName; hlxOPCConfiguration.Descriptors; hlxOPCDescriptors.Remove;
    )");
}

TEST(CallsToTheHost, WhileADescriptorIsEditedFromTheDatabase) {
    const Calls calls = calls_in_the_dialog(
        "&3. Descriptors",
        [](Play& its) {
            Records& records = its.host.records;
            records.by_class = {{class_name::hlxPart, {{.id = 11, .name = "Wheel", .group_id = 2}}},
                                {class_name::hlxPartGroup, {{.id = 2, .name = "Castings"}}}};
            FakePicker& parts = *its.host.pickers.at(class_name::hlxPartSelection);
            parts.picks = std::make_shared<FakeRecord>(
                its.host.calls, records, RecordFields{.id = 11, .name = "Wheel", .group_id = 2});
            its.person.double_clicks("lvwDescriptors", its.person.line_of("lvwDescriptors", 0));
            its.person.presses("bnSelect");
            its.person.presses("bnOK");
            parts.picks = nullptr;
        },
        [](Play& its) {
            a_filled_configuration(its);
            its.host.configuration->descriptors->has({.type = 0, .item = "Axle", .group = "Castings"});
        });
    expect_calls(calls, R"(
        hlxOPCConfiguration.Descriptors; hlxOPCDescriptors.Item; hlxOPCConfiguration.Server;
        hlxOPCServerHolder.ServerEntry; hlxOPCServer.Parent; hlxOPCServers.Parent; hlxApplication.Database;
        hlxOPCDescriptor.Type; hlxOPCDescriptor.ItemName; hlxOPCDescriptor.GroupName; create hlxPart;
        hlxRecord.Name=; hlxRecord.SearchFlag=; hlxRecord.Load; create hlxPartGroup; hlxRecord.Name=;
        hlxRecord.SearchFlag=; hlxRecord.Load; hlxRecord.ID; create hlxPartSelection; hlxSelection.Show;
        hlxSelection.Record; hlxRecord.Name; hlxRecord.GroupID; create hlxPartGroup; hlxRecord.ID=;
        hlxRecord.SearchFlag=; hlxRecord.Load; hlxRecord.Name; hlxOPCDescriptor.ItemName=;
        hlxOPCDescriptor.GroupName=; hlxOPCDescriptor.Type; hlxOPCDescriptor.GroupName;
        hlxOPCDescriptor.ItemName;
    )");
}

TEST(CallsToTheHost, WhileADescriptorThatWasAddedIsGivenUp) {
    const Calls calls = calls_in_the_dialog("&3. Descriptors", [](Play& its) {
        its.person.presses("bnAddDesc");
        its.person.picks("List1", "Lot");
        its.person.presses("bnOK");
        its.person.presses("bnCancel");
    });
    expect_calls(calls, R"(
        hlxOPCConfiguration.Descriptors; hlxOPCDescriptors.NewEnum; hlxOPCDescriptors.Next;
        hlxOPCDescriptors.Add; hlxOPCConfiguration.Server; hlxOPCServerHolder.ServerEntry;
        hlxOPCServer.Parent; hlxOPCServers.Parent; hlxApplication.Database; hlxOPCDescriptor.Type;
        hlxOPCDescriptor.ItemName; hlxOPCDescriptor.GroupName; hlxOPCDescriptor.Index;
        hlxOPCDescriptors.Remove;
    )");
}

TEST(CallsToTheHost, WhileATriggerFindsItsServerGone) {
    const Calls calls = calls_in_the_dialog("&2. Sampling", [](Play& its) {
        its.person.presses("cmdSubgroupTrigger");
        an_unconnected_server(its, "Matrix");
        its.person.presses("bnItem");
        its.expect_report(error::type_mismatch, "CommonTools.ResolveOPCServer");
        its.person.presses("bnCancel");
    });
    expect_calls(calls, R"(
        create hlxHelp; hlxHelp.HelpFile; hlxOPCConfiguration.OPCGroup; OPCGroup.OPCItems; OPCItems.Count;
        OPCItems.Item; OPCItem.ItemID; OPCItems.Item; OPCItem.ItemID; hlxOPCConfiguration.OPCGroup;
        OPCGroup.OPCItems; OPCItems.Item; OPCItem.CanonicalDataType; hlxOPCConfiguration.Server;
        hlxOPCServerHolder.ServerEntry; hlxOPCServer.OPCServer; hlxOPCConfiguration.OPCGroup;
    )");
}

TEST(CallsToTheHost, WhileADescriptorFindsItsServerGone) {
    const Calls calls = calls_in_the_dialog("&3. Descriptors", [](Play& its) {
        its.person.presses("bnAddDesc");
        its.person.presses("bnOK");
        an_unconnected_server(its, "Matrix");
        its.person.presses("bnItem");
        its.person.screen().answer(message::ok);
        its.person.presses("bnCancel");
    });
    expect_calls(calls, R"(
        hlxOPCConfiguration.Descriptors; hlxOPCDescriptors.NewEnum; hlxOPCDescriptors.Next;
        hlxOPCDescriptors.Add; hlxOPCConfiguration.Server; hlxOPCServerHolder.ServerEntry;
        hlxOPCServer.Parent; hlxOPCServers.Parent; hlxApplication.Database; hlxOPCDescriptor.Type;
        hlxOPCDescriptor.ItemName; hlxOPCDescriptor.GroupName; hlxOPCConfiguration.Server;
        hlxOPCServerHolder.ServerEntry; hlxOPCServer.OPCServer; hlxOPCConfiguration.OPCGroup;
        hlxOPCDescriptor.Index; hlxOPCDescriptors.Remove;
    )");
}
