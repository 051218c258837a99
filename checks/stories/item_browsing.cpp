#include "browsing.h"

// The tree of branches in the item browser.

using namespace brx;
using namespace brx::checks;

SCENARIO(ItemBrowser, OpensWithTheServersNodeBeforeItsName) {
    a_plant(its);
    const Browsing browsing(its);
    EXPECT_EQ(its.person.title(), "Select Item");
    EXPECT_EQ(its.person.reads("txtServer"), "PC7 Matrix");
    EXPECT_EQ(its.person.reads("Label1"), "Server Name:");
    EXPECT_EQ(its.person.reads("Label2"), "&A. Groups:");
    EXPECT_EQ(its.person.reads("Label3"), "&B. Items:");
    EXPECT_EQ(its.person.reads("Label4"), "&C. Item (Examples: somegroup.someitem or [mytopic]myitem)");
    EXPECT_EQ(its.person.reads("cmdRefresh"), "&Refresh");
    EXPECT_EQ(its.person.reads("bnOK"), "OK");
    EXPECT_EQ(its.person.reads("bnCancel"), "&Cancel");
    EXPECT_FALSE(its.person.can_press("bnOK"));
    EXPECT_EQ(its.person.reads("txtFullPath"), "");
    EXPECT_EQ(its.person.lines_of("lstItem"), Lines());
    its.person.presses("bnCancel");
}

SCENARIO(ItemBrowser, ALocalServersNameFollowsABlank) {
    its.host.connection->server_node = "";
    a_plant(its);
    const Browsing browsing(its);
    EXPECT_EQ(its.person.reads("txtServer"), " Matrix");
    its.person.presses("bnCancel");
}

SCENARIO(ItemBrowser, TheServersNameCannotBeChanged) {
    a_plant(its);
    const Browsing browsing(its);
    its.person.goes_to("txtServer");
    EXPECT_FALSE(its.person.screen().paste("Sim"));
    EXPECT_EQ(its.person.reads("txtServer"), "PC7 Matrix");
    its.person.presses("bnCancel");
}

SCENARIO(ItemBrowser, TheRootBranchesShowInTheServersOrderEachWithASign) {
    a_plant(its);
    its.host.browser->root.has("A line");
    Browsing browsing(its);
    EXPECT_EQ(its.person.lines_of("TrView"), Lines({"+Line1", "+Line2", "+A line"}));
    EXPECT_EQ(its.person.sees("TrView").selected, -1);
    const Calls expected = {"OPCServer.ServerNode",    "OPCServer.ServerName",    "OPCServer.CreateBrowser",
                            "OPCBrowser.MoveToRoot",   "OPCBrowser.ShowBranches", "OPCBrowser.Count",
                            "OPCBrowser.Organization", "OPCBrowser.MoveToRoot",   "OPCBrowser.ShowBranches",
                            "OPCBrowser.Count",        "OPCBrowser.Item(1)",      "OPCBrowser.Item(2)",
                            "OPCBrowser.Item(3)"};
    EXPECT_EQ(browsing.calls(), expected);
    its.person.presses("bnCancel");
}

SCENARIO(ItemBrowser, ExpandingABranchReadsItsSubBranchesSelectsItAndListsItsLeaves) {
    a_plant(its);
    Browsing browsing(its);
    browsing.calls();
    its.person.expands("TrView", "Line1");
    EXPECT_EQ(its.person.lines_of("TrView"), Lines({"-Line1", "  +Oven", "  +Press", "+Line2"}));
    EXPECT_EQ(its.person.sees("TrView").selected, 0);
    EXPECT_EQ(its.person.lines_of("lstItem"), Lines({"Running", "Speed"}));
    const Calls expected = {
        "OPCBrowser.Organization",     "OPCBrowser.MoveToRoot", "OPCBrowser.MoveTo(Line1)",
        "OPCBrowser.ShowBranches",     "OPCBrowser.Count",      "OPCBrowser.Item(1)",
        "OPCBrowser.Item(2)",          "OPCBrowser.MoveToRoot", "OPCBrowser.MoveTo(Line1)",
        "OPCBrowser.ShowLeafs(False)", "OPCBrowser.Count",      "OPCBrowser.Item(1)",
        "OPCBrowser.Item(2)"};
    EXPECT_EQ(browsing.calls(), expected);
    its.person.presses("bnCancel");
}

SCENARIO(ItemBrowser, ExpandingABranchAgainReadsItsLeavesAndNotItsSubBranches) {
    a_plant(its);
    Browsing browsing(its);
    its.person.expands("TrView", "Line1");
    browsing.calls();
    its.person.collapses("TrView", "Line1");
    EXPECT_EQ(its.person.lines_of("TrView"), Lines({"+Line1", "+Line2"}));
    its.host.browser->root.branches[0].has("A new one");
    its.person.expands("TrView", "Line1");
    EXPECT_EQ(its.person.lines_of("TrView"), Lines({"-Line1", "  +Oven", "  +Press", "+Line2"}));
    const Calls calls = browsing.calls();
    EXPECT_EQ(std::count(calls.begin(), calls.end(), "OPCBrowser.ShowBranches"), 0);
    EXPECT_EQ(std::count(calls.begin(), calls.end(), "OPCBrowser.ShowLeafs(False)"), 2);
    its.person.presses("bnCancel");
}

SCENARIO(ItemBrowser, ExpandingABranchAgainSelectsItAndListsItsLeaves) {
    a_plant(its);
    const Browsing browsing(its);
    its.person.expands("TrView", "Line1");
    its.person.collapses("TrView", "Line1");
    its.person.clicks_node("TrView", "Line2");
    its.person.expands("TrView", "Line1");
    EXPECT_EQ(its.person.sees("TrView").selected, 0);
    EXPECT_EQ(its.person.lines_of("lstItem"), Lines({"Running", "Speed"}));
    its.person.presses("bnCancel");
}

SCENARIO(ItemBrowser, ExpandingABranchEmptiesTheEntry) {
    a_plant(its);
    const Browsing browsing(its);
    its.person.clicks_node("TrView", "Line2");
    its.person.picks("lstItem", "Count");
    its.person.expands("TrView", "Line1");
    EXPECT_EQ(its.person.lines_of("lstItem"), Lines({"Running", "Speed"}));
    EXPECT_EQ(its.person.reads("txtFullPath"), "");
    EXPECT_FALSE(its.person.can_press("bnOK"));
    its.person.presses("bnCancel");
}

SCENARIO(ItemBrowser, ABranchWithoutSubBranchesLosesItsSignWhenExpanded) {
    a_plant(its);
    const Browsing browsing(its);
    its.person.expands("TrView", "Line2");
    EXPECT_EQ(its.person.lines_of("TrView"), Lines({"+Line1", " Line2"}));
    EXPECT_EQ(its.person.sees("TrView").selected, 1);
    EXPECT_EQ(its.person.lines_of("lstItem"), Lines({"Count"}));
    its.person.presses("bnCancel");
}

SCENARIO(ItemBrowser, DeeperBranchesAreReachedByTheirWholePath) {
    a_plant(its);
    Browsing browsing(its);
    its.person.expands("TrView", "Line1");
    browsing.calls();
    its.person.expands("TrView", "Press");
    EXPECT_EQ(browsing.calls().nth(2), "OPCBrowser.MoveTo(Line1|Press)");
    EXPECT_EQ(its.person.lines_of("TrView"), Lines({"-Line1", "  +Oven", "   Press", "+Line2"}));
    its.person.clicks_node("TrView", "Oven");
    EXPECT_EQ(its.person.lines_of("lstItem"), Lines({"Temperature", "Door"}));
    its.person.presses("bnCancel");
}

SCENARIO(ItemBrowser, RefreshingReadsTheRootAgainWithTheSameBrowser) {
    a_plant(its);
    Browsing browsing(its);
    its.person.expands("TrView", "Line1");
    its.person.clicks_node("TrView", "Line1");
    its.person.picks("lstItem", "Speed");
    its.host.browser->root.has("Line3");
    browsing.calls();
    its.person.presses("cmdRefresh");
    EXPECT_EQ(its.person.lines_of("TrView"), Lines({"+Line1", "+Line2", "+Line3"}));
    EXPECT_EQ(its.person.lines_of("lstItem"), Lines());
    EXPECT_EQ(its.person.reads("txtFullPath"), "");
    EXPECT_FALSE(its.person.can_press("bnOK"));
    EXPECT_EQ(browsing.calls().nth(0), "OPCBrowser.MoveToRoot");
    its.host.browser->root.branches[0].has("A new one");
    its.person.expands("TrView", "Line1");
    EXPECT_EQ(its.person.lines_of("TrView"),
              Lines({"-Line1", "  +Oven", "  +Press", "  +A new one", "+Line2", "+Line3"}));
    its.person.presses("bnCancel");
}

SCENARIO(ItemBrowser, TheTreeObeysTheKeyboard) {
    a_plant(its);
    const Browsing browsing(its);
    its.person.clicks_node("TrView", "Line1");
    its.person.hits(Key::plus);
    EXPECT_EQ(its.person.lines_of("TrView"), Lines({"-Line1", "  +Oven", "  +Press", "+Line2"}));
    its.person.hits(Key::right);
    EXPECT_EQ(its.person.sees("TrView").text, "Oven");
    EXPECT_EQ(its.person.lines_of("lstItem"), Lines({"Temperature", "Door"}));
    its.person.hits(Key::down);
    EXPECT_EQ(its.person.sees("TrView").text, "Press");
    its.person.hits(Key::left);
    EXPECT_EQ(its.person.sees("TrView").text, "Line1");
    its.person.hits(Key::minus);
    EXPECT_EQ(its.person.lines_of("TrView"), Lines({"+Line1", "+Line2"}));
    its.person.hits(Key::right);
    EXPECT_EQ(its.person.lines_of("TrView"), Lines({"-Line1", "  +Oven", "  +Press", "+Line2"}));
    its.person.hits(Key::down);
    its.person.hits(Key::up);
    EXPECT_EQ(its.person.sees("TrView").selected, 0);
    its.person.presses("bnCancel");
}

SCENARIO(ItemBrowser, TypingGoesToTheBranchThatBeginsLikeThat) {
    a_plant(its);
    const Browsing browsing(its);
    its.person.expands("TrView", "Line1");
    its.person.types("P");
    EXPECT_EQ(its.person.sees("TrView").text, "Press");
    EXPECT_EQ(its.person.lines_of("lstItem"), Lines({"Force"}));
    its.person.presses("bnCancel");
}

SCENARIO(ItemBrowser, ADoubleClickOpensABranch) {
    a_plant(its);
    const Browsing browsing(its);
    its.person.double_clicks("TrView", "+Line1");
    EXPECT_EQ(its.person.lines_of("TrView"), Lines({"-Line1", "  +Oven", "  +Press", "+Line2"}));
    EXPECT_EQ(its.person.sees("TrView").selected, 0);
    EXPECT_EQ(its.person.lines_of("lstItem"), Lines({"Running", "Speed"}));
    its.person.double_clicks("TrView", "-Line1");
    EXPECT_EQ(its.person.lines_of("TrView"), Lines({"+Line1", "+Line2"}));
    EXPECT_EQ(its.person.lines_of("lstItem"), Lines({"Running", "Speed"}));
    its.person.presses("bnCancel");
}

SCENARIO(ItemBrowser, ClosingABranchMovesTheSelectionUpToItAndListsItsLeaves) {
    a_plant(its);
    Browsing browsing(its);
    its.person.expands("TrView", "Line1");
    its.person.clicks_node("TrView", "Oven");
    browsing.calls();
    its.person.collapses("TrView", "Line1");
    EXPECT_EQ(its.person.sees("TrView").text, "Line1");
    EXPECT_EQ(its.person.lines_of("lstItem"), Lines({"Running", "Speed"}));
    EXPECT_EQ(browsing.calls().nth(1), "OPCBrowser.MoveTo(Line1)");
    its.person.presses("bnCancel");
}

SCENARIO(ItemBrowser, ClosingABranchListsTheLeavesOfTheOneThatIsSelectedElsewhere) {
    a_plant(its);
    const Browsing browsing(its);
    its.person.expands("TrView", "Line1");
    its.person.clicks_node("TrView", "Line2");
    its.host.browser->root.branches[1].leaves = {"Count", "Rejects"};
    its.person.collapses("TrView", "Line1");
    EXPECT_EQ(its.person.sees("TrView").text, "Line2");
    EXPECT_EQ(its.person.lines_of("lstItem"), Lines({"Count", "Rejects"}));
    its.person.presses("bnCancel");
}

SCENARIO(ItemBrowser, TheKeysOpenABranchAndListNothing) {
    a_plant(its);
    Browsing browsing(its);
    its.person.clicks_node("TrView", "Line1");
    its.person.picks("lstItem", "Speed");
    EXPECT_EQ(its.person.reads("txtFullPath"), "Line1.Speed");
    its.person.goes_to("TrView");
    its.person.hits(Key::plus);
    EXPECT_EQ(its.person.lines_of("lstItem"), Lines());
    EXPECT_EQ(its.person.reads("txtFullPath"), "");
    browsing.calls();
    its.person.hits(Key::minus);
    its.person.hits(Key::plus);
    EXPECT_EQ(browsing.calls(), Calls());
    its.person.presses("bnCancel");
}

SCENARIO(ItemBrowser, StartsInItsTreeAndTheServersNameIsReachedByTab) {
    a_plant(its);
    const Browsing browsing(its);
    EXPECT_TRUE(its.person.has_focus("TrView"));
    its.person.hits(Key::back_tab);
    EXPECT_TRUE(its.person.has_focus("txtServer"));
    its.person.hits(Key::tab);
    EXPECT_TRUE(its.person.has_focus("TrView"));
    its.person.presses("bnCancel");
}

SCENARIO(ItemBrowser, TheLettersOfTheLabelsLeadToTreeListAndEntry) {
    a_plant(its);
    const Browsing browsing(its);
    its.person.uses_accelerator('b');
    EXPECT_TRUE(its.person.has_focus("lstItem"));
    its.person.uses_accelerator('a');
    EXPECT_TRUE(its.person.has_focus("TrView"));
    its.person.uses_accelerator('r');
    EXPECT_EQ(its.host.calls.count("OPCServer.ServerName"), 1);
    its.person.goes_to("txtFullPath");
    its.person.hits(Key::tab);
    EXPECT_TRUE(its.person.has_focus("cmdRefresh"));
    its.person.presses("bnCancel");
}

SCENARIO(ItemBrowser, TheHourglassShowsWhileItLoadsAndRefreshes) {
    a_plant(its);
    int busy = 0;
    its.host.browser->before = [&](const std::string& member) {
        if (member == "Organization") busy += its.person.screen().hourglass() ? 1 : 0;
    };
    const Browsing browsing(its);
    EXPECT_FALSE(its.person.screen().hourglass());
    EXPECT_EQ(busy, 1);
    its.person.presses("cmdRefresh");
    EXPECT_FALSE(its.person.screen().hourglass());
    EXPECT_EQ(busy, 2);
    its.host.browser->before = [](const std::string&) {};
    its.person.presses("bnCancel");
}

SCENARIO(ItemBrowser, HelpOpensAtItsTopic) {
    a_plant(its);
    const HelpFile file(its);
    const Browsing browsing(its);
    file.expect_f1_to_open_at(197);
    its.person.presses("bnCancel");
}
