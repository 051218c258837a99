#include "calls_of.h"

#include "stories/browsing.h"
#include "stories/configuring.h"
#include "stories/testing.h"

// What a host sees of each dialog's main story: every call, in the order of its making. The same source is
// built by every compiler, for the order must not be one compiler's choice.

using namespace brx;
using namespace brx::checks;

TEST(CallsToTheHost, WhileAnItemIsBrowsed) {
    const Calls calls = calls_of([](Play& its) {
        a_plant(its);
        Browsing browser(its, "Line2.Count");
        its.person.expands("TrView", "Line1");
        its.person.clicks_node("TrView", "Oven");
        its.person.picks("lstItem", "Temperature");
        its.person.presses("bnOK");
        EXPECT_TRUE(browser.result());
    });
    expect_calls(calls, R"(
        create hlxHelp; hlxHelp.HelpFile; OPCServer.ServerNode; OPCServer.ServerName; OPCServer.CreateBrowser;
        OPCBrowser.MoveToRoot; OPCBrowser.ShowBranches; OPCBrowser.Count; OPCBrowser.Organization;
        OPCBrowser.MoveToRoot; OPCBrowser.ShowBranches; OPCBrowser.Count; OPCBrowser.Item(1);
        OPCBrowser.Item(2); OPCBrowser.MoveToRoot; OPCBrowser.ShowLeafs(True); OPCBrowser.Count;
        OPCBrowser.Organization; OPCBrowser.MoveToRoot; OPCBrowser.MoveTo(Line1); OPCBrowser.ShowBranches;
        OPCBrowser.Count; OPCBrowser.Item(1); OPCBrowser.Item(2); OPCBrowser.MoveToRoot;
        OPCBrowser.MoveTo(Line1); OPCBrowser.ShowLeafs(False); OPCBrowser.Count; OPCBrowser.Item(1);
        OPCBrowser.Item(2); OPCBrowser.MoveToRoot; OPCBrowser.MoveTo(Line1|Oven); OPCBrowser.ShowLeafs(False);
        OPCBrowser.Count; OPCBrowser.Item(1); OPCBrowser.Item(2); OPCBrowser.MoveToRoot;
        OPCBrowser.MoveTo(Line1|Oven); OPCBrowser.ShowLeafs(False); OPCBrowser.Count; OPCBrowser.Item(1);
        OPCBrowser.Item(2); OPCBrowser.GetItemID(Temperature); OPCGroup.OPCItems; OPCItems.Validate;
    )");
}

TEST(CallsToTheHost, WhileANewTestIsConfigured) {
    const Calls calls = calls_of([](Play& its) {
        Testing testing(its, its.host.has_test(0, ""));
        testing.picks_characteristic(7, "Length");
        testing.picks_item("Line1.Speed");
        its.person.ticks("chkItemTrigger");
        its.person.picks("cboExpression", " > ");
        its.person.enters("txtValue", "12");
        its.person.presses("bnOK");
        EXPECT_TRUE(testing.result());
    });
    expect_calls(calls, R"(
        hlxOPCTest.Parent; hlxOPCTests.Parent; hlxOPCConfiguration.Server; hlxOPCServerHolder.ServerEntry;
        hlxOPCServer.Parent; hlxOPCServers.Parent; hlxApplication.Database; hlxOPCTest.State;
        hlxOPCTest.ItemText; hlxOPCTest.OPCItemID; create hlxHelp; hlxHelp.HelpFile; create hlxTestSelection;
        hlxSelection.Show; hlxSelection.Record; hlxTestData.ID; hlxOPCTest.Parent; hlxOPCTests.Count;
        hlxOPCTests.Item; hlxOPCTest.TestData; hlxTestData.ID; hlxTestData.GroupID; create hlxTestGroup;
        hlxRecord.ID=; hlxRecord.SearchFlag=; hlxRecord.Load; hlxRecord.Name; hlxTestData.Name;
        hlxOPCTest.Parent; hlxOPCTests.Parent; hlxOPCConfiguration.Server; hlxOPCServerHolder.ServerEntry;
        hlxOPCServer.OPCServer; hlxOPCConfiguration.OPCGroup; hlxHelp.HelpFile; OPCServer.ServerNode;
        OPCServer.ServerName; OPCServer.CreateBrowser; OPCBrowser.MoveToRoot; OPCBrowser.ShowBranches;
        OPCBrowser.Count; OPCBrowser.Organization; OPCBrowser.MoveToRoot; OPCBrowser.ShowBranches;
        OPCBrowser.Count; OPCBrowser.Item(1); OPCGroup.OPCItems; OPCItems.Validate; OPCGroup.OPCItems;
        OPCItems.Count; OPCItems.Validate; OPCItems.AddItems; hlxOPCTest.Parent; hlxOPCTests.Parent;
        hlxOPCConfiguration.OPCGroup; OPCGroup.OPCItems; OPCItems.Item; OPCItem.CanonicalDataType;
        hlxOPCTest.ItemTrigger=; hlxOPCTest.TriggerValue=; hlxOPCTest.ClientHandle=;
        hlxOPCTest.TriggerExpression=; hlxOPCTest.OPCItemID=; hlxOPCTest.State=; hlxOPCTest.TestData;
        hlxTestData.ID=; hlxTestData.Flag=; hlxTestData.Mode=; hlxTestData.Save; hlxOPCTest.Constant=;
        hlxOPCTest.SaveAs=;
    )");
}

TEST(CallsToTheHost, WhileATestIsEditedAndItsNewItemGivenUp) {
    const Calls calls = calls_of([](Play& its) {
        Testing testing(its, a_bound_test(its, 2));
        testing.picks_item("Line1.Force");
        its.person.presses("bnCancel");
        EXPECT_FALSE(testing.result());
    });
    expect_calls(calls, R"(
        hlxOPCTest.Parent; hlxOPCTests.Parent; hlxOPCConfiguration.Server; hlxOPCServerHolder.ServerEntry;
        hlxOPCServer.Parent; hlxOPCServers.Parent; hlxApplication.Database; hlxOPCTest.State;
        hlxOPCTest.ItemText; hlxOPCTest.OPCItemID; hlxOPCTest.ClientHandle; hlxOPCTest.CharacteristicName;
        hlxOPCTest.ItemTrigger; hlxOPCTest.Constant; hlxOPCTest.SaveAs; hlxOPCTest.Parent; hlxOPCTests.Parent;
        hlxOPCConfiguration.OPCGroup; OPCGroup.OPCItems; OPCItems.Item; OPCItem.CanonicalDataType;
        hlxOPCTest.TriggerExpression; hlxOPCTest.TriggerValue; create hlxHelp; hlxHelp.HelpFile;
        hlxOPCTest.Parent; hlxOPCTests.Parent; hlxOPCConfiguration.Server; hlxOPCServerHolder.ServerEntry;
        hlxOPCServer.OPCServer; hlxOPCConfiguration.OPCGroup; hlxHelp.HelpFile; OPCServer.ServerNode;
        OPCServer.ServerName; OPCServer.CreateBrowser; OPCBrowser.MoveToRoot; OPCBrowser.ShowBranches;
        OPCBrowser.Count; OPCBrowser.Organization; OPCBrowser.MoveToRoot; OPCBrowser.ShowBranches;
        OPCBrowser.Count; OPCBrowser.Item(1); OPCBrowser.MoveToRoot; OPCBrowser.ShowLeafs(True);
        OPCBrowser.Count; OPCGroup.OPCItems; OPCItems.Validate; OPCGroup.OPCItems; OPCItems.Count;
        OPCItems.Item; OPCItem.ItemID; OPCItems.Validate; OPCItems.AddItems; hlxOPCTest.Parent;
        hlxOPCTests.Parent; hlxOPCConfiguration.OPCGroup; OPCGroup.OPCItems; OPCItems.Remove;
    )");
}

TEST(CallsToTheHost, WhileATestFindsItsServerGone) {
    const Calls calls = calls_of([](Play& its) {
        Testing testing(its, its.host.has_test(0, ""));
        testing.loses_the_server();
        its.person.presses("bnItem");
        its.person.screen().answer(message::ok);
        its.person.presses("bnCancel");
        EXPECT_FALSE(testing.result());
    });
    expect_calls(calls, R"(
        hlxOPCTest.Parent; hlxOPCTests.Parent; hlxOPCConfiguration.Server; hlxOPCServerHolder.ServerEntry;
        hlxOPCServer.Parent; hlxOPCServers.Parent; hlxApplication.Database; hlxOPCTest.State;
        hlxOPCTest.ItemText; hlxOPCTest.OPCItemID; create hlxHelp; hlxHelp.HelpFile; hlxOPCTest.Parent;
        hlxOPCTests.Parent; hlxOPCConfiguration.Server; hlxOPCServerHolder.ServerEntry;
        hlxOPCServer.OPCServer; hlxOPCConfiguration.OPCGroup; hlxOPCServer.Node; hlxOPCServer.ServerName;
    )");
}
