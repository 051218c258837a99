#include "browsing.h"

// The list of leaves in the item browser.

using namespace brx;
using namespace brx::checks;

namespace {

const Calls line1_listed = {"OPCBrowser.MoveToRoot",       "OPCBrowser.MoveTo(Line1)",
                            "OPCBrowser.ShowLeafs(False)", "OPCBrowser.Count",
                            "OPCBrowser.Item(1)",          "OPCBrowser.Item(2)"};

} // namespace

SCENARIO(ItemBrowser, ClickingABranchListsItsLeavesTwiceInARow) {
    a_plant(its);
    Browsing browsing(its);
    browsing.calls();
    its.person.clicks_node("TrView", "Line1");
    EXPECT_EQ(its.person.lines_of("lstItem"), Lines({"Running", "Speed"}));
    EXPECT_EQ(its.person.sees("lstItem").selected, -1);
    Calls twice = line1_listed;
    twice.insert(twice.end(), line1_listed.begin(), line1_listed.end());
    EXPECT_EQ(browsing.calls(), twice);
    its.person.presses("bnCancel");
}

SCENARIO(ItemBrowser, ClickingTheSelectedBranchListsItsLeavesAfresh) {
    a_plant(its);
    const Browsing browsing(its);
    its.person.clicks_node("TrView", "Line1");
    its.person.picks("lstItem", "Speed");
    its.host.browser->root.branches[0].leaves = {"Running", "Speed", "Stopped"};
    its.person.clicks_node("TrView", "Line1");
    EXPECT_EQ(its.person.lines_of("lstItem"), Lines({"Running", "Speed", "Stopped"}));
    EXPECT_EQ(its.person.sees("lstItem").selected, -1);
    EXPECT_EQ(its.person.reads("txtFullPath"), "");
    EXPECT_FALSE(its.person.can_press("bnOK"));
    its.person.presses("bnCancel");
}

SCENARIO(ItemBrowser, TheArrowKeysListABranchesLeavesOnce) {
    a_plant(its);
    Browsing browsing(its);
    its.person.clicks_node("TrView", "Line2");
    browsing.calls();
    its.person.hits(Key::up);
    EXPECT_EQ(its.person.lines_of("lstItem"), Lines({"Running", "Speed"}));
    EXPECT_EQ(browsing.calls(), line1_listed);
    its.person.presses("bnCancel");
}

SCENARIO(ItemBrowser, ABranchWithoutLeavesGivesAnEmptyList) {
    its.host.browser->root.has("Line1").has("Oven", {"Temperature"});
    its.host.browser->root.has("Line2");
    const Browsing browsing(its);
    its.person.clicks_node("TrView", "Line1");
    EXPECT_EQ(its.person.lines_of("lstItem"), Lines());
    EXPECT_TRUE(its.person.sees("lstItem").enabled);
    its.person.presses("bnCancel");
}

SCENARIO(ItemBrowser, ClickingALeafShowsTheServersIdentifierForIt) {
    a_plant(its);
    Browsing browsing(its);
    its.person.expands("TrView", "Line1");
    its.person.clicks_node("TrView", "Oven");
    browsing.calls();
    its.person.picks("lstItem", "Temperature");
    EXPECT_EQ(its.person.reads("txtFullPath"), "Line1.Oven.Temperature");
    EXPECT_TRUE(its.person.can_press("bnOK"));
    EXPECT_EQ(browsing.calls(), Calls{"OPCBrowser.GetItemID(Temperature)"});
    its.person.presses("bnOK");
    EXPECT_TRUE(browsing.result());
    EXPECT_EQ(browsing.ItemID(), "Line1.Oven.Temperature");
}

SCENARIO(ItemBrowser, DoubleClickingALeafAcceptsIt) {
    a_plant(its);
    Browsing browsing(its);
    its.person.clicks_node("TrView", "Line1");
    its.person.double_clicks("lstItem", "Speed");
    EXPECT_TRUE(browsing.result());
    EXPECT_EQ(browsing.ItemID(), "Line1.Speed");
}

SCENARIO(ItemBrowser, ALeafWithoutAnIdentifierLeavesTheFormerOneInTheEntry) {
    a_plant(its);
    Browsing browsing(its);
    its.person.clicks_node("TrView", "Line1");
    its.person.picks("lstItem", "Speed");
    its.host.browser->failing = {"GetItemID"};
    its.person.picks("lstItem", "Running");
    EXPECT_EQ(its.person.reads("txtFullPath"), "Line1.Speed");
    EXPECT_TRUE(its.person.can_press("bnOK"));
    its.person.presses("bnOK");
    EXPECT_TRUE(browsing.result());
    EXPECT_EQ(browsing.ItemID(), "Line1.Speed");
}

SCENARIO(ItemBrowser, ALeafWithoutAnIdentifierAndNoFormerOneLeavesTheEntryEmptyAndOKDisabled) {
    a_plant(its);
    const Browsing browsing(its);
    its.host.browser->failing = {"GetItemID"};
    its.person.clicks_node("TrView", "Line1");
    its.person.picks("lstItem", "Speed");
    EXPECT_EQ(its.person.reads("txtFullPath"), "");
    EXPECT_FALSE(its.person.can_press("bnOK"));
    its.person.presses("bnCancel");
}

SCENARIO(ItemBrowser, OKIsDisabledAgainWhenABranchEmptiesAnEntryThatIsEmptyAlready) {
    a_plant(its);
    its.host.browser->root.branches[0].leaves = {""};
    const Browsing browsing(its);
    its.person.clicks_node("TrView", "Line1");
    its.person.picks("lstItem", "");
    EXPECT_TRUE(its.person.can_press("bnOK"));
    its.person.clicks_node("TrView", "Line2");
    EXPECT_FALSE(its.person.can_press("bnOK"));
    its.person.clicks_node("TrView", "Line1");
    its.person.picks("lstItem", "");
    its.person.presses("cmdRefresh");
    EXPECT_FALSE(its.person.can_press("bnOK"));
    its.person.presses("bnCancel");
}

SCENARIO(ItemBrowser, TheServerIsNotAskedForTheIdentifierOfALeafWithoutAName) {
    a_plant(its);
    its.host.browser->root.branches[0].leaves = {"Running", ""};
    Browsing browsing(its);
    its.person.clicks_node("TrView", "Line1");
    its.person.picks("lstItem", "Running");
    browsing.calls();
    its.person.picks("lstItem", "");
    EXPECT_EQ(browsing.calls(), Calls());
    EXPECT_EQ(its.person.reads("txtFullPath"), "");
    EXPECT_TRUE(its.person.can_press("bnOK"));
    its.person.presses("bnCancel");
}

SCENARIO(ItemBrowser, AClickOnTheSelectedLeafFillsTheEntryAgain) {
    a_plant(its);
    Browsing browsing(its);
    its.person.clicks_node("TrView", "Line1");
    its.person.picks("lstItem", "Speed");
    its.person.enters("txtFullPath", "Line2.Count");
    browsing.calls();
    its.person.picks("lstItem", "Speed");
    EXPECT_EQ(its.person.reads("txtFullPath"), "Line1.Speed");
    EXPECT_EQ(browsing.calls(), Calls{"OPCBrowser.GetItemID(Speed)"});
    its.person.presses("bnCancel");
}

SCENARIO(ItemBrowser, ADoubleClickOnTheSelectedLeafTakesItAndNotWhatWasTyped) {
    a_plant(its);
    Browsing browsing(its);
    its.person.clicks_node("TrView", "Line1");
    its.person.picks("lstItem", "Speed");
    its.person.enters("txtFullPath", "Line2.Count");
    browsing.calls();
    its.person.double_clicks("lstItem", "Speed");
    EXPECT_TRUE(browsing.result());
    EXPECT_EQ(browsing.ItemID(), "Line1.Speed");
    EXPECT_EQ(browsing.calls(),
              Calls({"OPCBrowser.GetItemID(Speed)", "OPCGroup.OPCItems", "OPCItems.Validate"}));
}

SCENARIO(ItemBrowser, TheKeysDoNotAskForTheSelectedLeafAgain) {
    a_plant(its);
    Browsing browsing(its);
    its.person.clicks_node("TrView", "Line1");
    its.person.picks("lstItem", "Running");
    browsing.calls();
    its.person.hits(Key::up);
    EXPECT_EQ(browsing.calls(), Calls());
    its.person.hits(Key::down);
    EXPECT_EQ(browsing.calls(), Calls{"OPCBrowser.GetItemID(Speed)"});
    its.person.hits(Key::down);
    EXPECT_EQ(browsing.calls(), Calls());
    its.person.presses("bnCancel");
}

SCENARIO(ItemBrowser, AFlatServerShowsEveryLeafAndNoTree) {
    a_plant(its);
    its.host.browser->organization = 2;
    Browsing browsing(its);
    EXPECT_FALSE(its.person.sees("TrView").visible);
    const Lines all = {"Version",         "Line1.Running",     "Line1.Speed", "Line1.Oven.Temperature",
                       "Line1.Oven.Door", "Line1.Press.Force", "Line2.Count"};
    EXPECT_EQ(its.person.lines_of("lstItem"), all);
    EXPECT_TRUE(its.person.sees("lstItem").enabled);
    const Calls calls = browsing.calls();
    EXPECT_EQ(calls.part(6, 5),
              Calls({"OPCBrowser.Organization", "OPCBrowser.MoveToRoot", "OPCBrowser.ShowLeafs(True)",
                     "OPCBrowser.Count", "OPCBrowser.Item(1)"}));
    EXPECT_EQ(calls.size(), 17U);
    its.person.picks("lstItem", "Line1.Speed");
    EXPECT_EQ(its.person.reads("txtFullPath"), "Line1.Speed");
    its.person.presses("bnOK");
    EXPECT_TRUE(browsing.result());
}

SCENARIO(ItemBrowser, WhereTheRootLosesItsBranchesMeanwhileEveryLeafIsListed) {
    a_plant(its);
    int counted = 0;
    its.host.browser->before = [&](const std::string& member) {
        if (member == "Count" && ++counted == 2) its.host.browser->claimed_count = 0;
        if (member == "ShowLeafs") its.host.browser->claimed_count.reset();
    };
    const Browsing browsing(its);
    EXPECT_FALSE(its.person.sees("TrView").visible);
    EXPECT_EQ(its.person.lines_of("lstItem").size(), 7U);
    its.host.browser->before = [](const std::string&) {};
    its.person.presses("bnCancel");
}

SCENARIO(ItemBrowser, ALeafWithNothingElseIsAcceptedByEnter) {
    a_plant(its);
    Browsing browsing(its);
    its.person.clicks_node("TrView", "Line2");
    its.person.picks("lstItem", "Count");
    its.person.hits(Key::enter);
    EXPECT_TRUE(browsing.result());
    EXPECT_EQ(browsing.ItemID(), "Line2.Count");
}
