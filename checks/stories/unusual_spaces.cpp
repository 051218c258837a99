#include "browsing.h"

// Servers that cannot browse, and address spaces that few people would think of.

using namespace brx;
using namespace brx::checks;

namespace {

void expect_nothing_to_browse(Play& its) {
    EXPECT_FALSE(its.person.sees("TrView").visible);
    EXPECT_TRUE(its.person.sees("picTrView").visible);
    EXPECT_FALSE(its.person.sees("lstItem").enabled);
    EXPECT_EQ(its.person.lines_of("lstItem"), Lines());
    EXPECT_TRUE(its.person.has_focus("txtFullPath"));
    EXPECT_FALSE(its.person.can_press("bnOK"));
}

std::string last_of(const Lines& lines) { return lines.empty() ? std::string() : lines.back(); }

std::string many(const char* text, int times) {
    std::string all;
    for (int i = 0; i < times; ++i) all += text;
    return all;
}

} // namespace

SCENARIO(UnusualSpace, AServerWithoutABrowserLeavesTheItemToBeTyped) {
    its.host.connection->can_browse = false;
    its.host.group->items->answers["Line1.Speed"] = 0;
    Browsing browsing(its);
    expect_nothing_to_browse(its);
    its.person.types("Line1.Speed");
    its.person.presses("bnOK");
    EXPECT_TRUE(browsing.result());
    EXPECT_EQ(browsing.ItemID(), "Line1.Speed");
}

SCENARIO(UnusualSpace, ABrowserThatIsNothingIsNoBrowser) {
    its.host.connection->browser = nullptr;
    const Browsing browsing(its);
    expect_nothing_to_browse(its);
    its.person.presses("bnCancel");
}

SCENARIO(UnusualSpace, AnEmptyRootCountsAsNoBrowser) {
    its.host.browser->root.leaves = {"Version"};
    const Browsing browsing(its);
    expect_nothing_to_browse(its);
    its.person.presses("bnCancel");
}

SCENARIO(UnusualSpace, AFlatServerWithoutBranchesCountsAsNoBrowser) {
    its.host.browser->organization = 2;
    its.host.browser->root.leaves = {"Version", "Speed"};
    Browsing browsing(its);
    expect_nothing_to_browse(its);
    EXPECT_EQ(its.host.calls.count("OPCBrowser.Organization"), 0);
    its.person.presses("bnCancel");
}

SCENARIO(UnusualSpace, RefreshingAsksForABrowserAgainWhereThereWasNone) {
    its.host.connection->can_browse = false;
    Browsing browsing(its);
    its.host.connection->can_browse = true;
    a_plant(its);
    its.person.presses("cmdRefresh");
    EXPECT_EQ(its.person.lines_of("TrView"), Lines({"+Line1", "+Line2"}));
    EXPECT_TRUE(its.person.sees("TrView").visible);
    EXPECT_TRUE(its.person.sees("lstItem").enabled);
    EXPECT_EQ(its.host.calls.count("OPCServer.CreateBrowser"), 2);
    its.person.presses("cmdRefresh");
    EXPECT_EQ(its.host.calls.count("OPCServer.CreateBrowser"), 2);
    its.person.presses("bnCancel");
}

SCENARIO(UnusualSpace, ABrowserWithNothingToShowIsGivenBackAndAskedForAgain) {
    Browsing browsing(its);
    EXPECT_EQ(its.host.browser.use_count(), 2);
    a_plant(its);
    its.person.presses("cmdRefresh");
    EXPECT_EQ(its.host.calls.count("OPCServer.CreateBrowser"), 2);
    EXPECT_EQ(its.person.lines_of("TrView"), Lines({"+Line1", "+Line2"}));
    its.person.presses("bnCancel");
}

SCENARIO(UnusualSpace, ARootThatLosesItsBranchesIsCoveredAfterARefresh) {
    a_plant(its);
    const Browsing browsing(its);
    its.person.clicks_node("TrView", "Line1");
    its.host.browser->root.branches.clear();
    its.person.presses("cmdRefresh");
    expect_nothing_to_browse(its);
    its.person.presses("bnCancel");
}

SCENARIO(UnusualSpace, ASpaceWhoseOrganizationCannotBeReadShowsATreeWithNothingInIt) {
    its.host.connection->can_browse = false;
    const Browsing browsing(its);
    its.host.connection->can_browse = true;
    a_plant(its);
    its.host.browser->failing = {"Organization"};
    its.person.presses("cmdRefresh");
    its.expect_report(-2147467259, "dlgItemSelect.BuildGroupList");
    EXPECT_TRUE(its.person.sees("TrView").visible);
    EXPECT_EQ(its.person.lines_of("TrView"), Lines());
    its.host.browser->failing.clear();
    its.person.presses("bnCancel");
}

SCENARIO(UnusualSpace, AFlatServerWithoutLeavesHidesTheTree) {
    its.host.browser->organization = 2;
    its.host.browser->root.has("Line1");
    const Browsing browsing(its);
    EXPECT_FALSE(its.person.sees("TrView").visible);
    EXPECT_EQ(its.person.lines_of("lstItem"), Lines());
    its.person.presses("bnCancel");
}

SCENARIO(UnusualSpace, ARootThatLosesEverythingWhileItIsReadLeavesTheTreeThere) {
    a_plant(its);
    its.host.browser->before = [&](const std::string& member) {
        if (member == "Organization") its.host.browser->claimed_count = 0;
    };
    const Browsing browsing(its);
    EXPECT_TRUE(its.person.sees("TrView").visible);
    EXPECT_EQ(its.person.lines_of("TrView"), Lines());
    EXPECT_EQ(its.person.lines_of("lstItem"), Lines());
    its.person.presses("bnCancel");
}

SCENARIO(UnusualSpace, ABranchNameWithAFullStopLeadsToAWrongPath) {
    a_plant(its);
    its.host.browser->root.has("Area.1", {"Real leaf"}).has("Real branch");
    Browsing browsing(its);
    EXPECT_EQ(its.person.lines_of("TrView"), Lines({"+Line1", "+Line2", "+Area.1"}));
    browsing.calls();
    its.person.clicks_node("TrView", "Area.1");
    // The move fails, and the leaves of the root are listed.
    EXPECT_EQ(browsing.calls().nth(1), "OPCBrowser.MoveTo(Area|1)");
    EXPECT_EQ(its.person.lines_of("lstItem"), Lines({"Version"}));
    its.person.expands("TrView", "Area.1");
    EXPECT_EQ(its.person.lines_of("TrView"),
              Lines({"+Line1", "+Line2", "-Area.1", "  +Line1", "  +Line2", "  +Area.1"}));
    its.person.presses("bnCancel");
}

SCENARIO(UnusualSpace, AMoveThatFailsHalfWayListsWhereItGotTo) {
    a_plant(its);
    const Browsing browsing(its);
    its.person.expands("TrView", "Line1");
    its.host.browser->root.branches[0].branches.pop_front();
    its.person.clicks_node("TrView", "Oven");
    EXPECT_EQ(its.person.lines_of("lstItem"), Lines({"Running", "Speed"}));
    its.person.presses("bnCancel");
}

SCENARIO(UnusualSpace, WhereTheLeavesCannotBeShownTheBrowsersListStandsAsItIs) {
    a_plant(its);
    const Browsing browsing(its);
    its.host.browser->failing = {"ShowLeafs"};
    its.person.clicks_node("TrView", "Line1");
    EXPECT_EQ(its.person.lines_of("lstItem"), Lines({"Line1", "Line2"}));
    its.person.presses("bnCancel");
}

SCENARIO(UnusualSpace, ARootBranchThatComesTwiceIsReportedAndEndsTheLevel) {
    for (const char* name : {"A", "B", "A", "C"}) its.host.browser->root.has(name);
    const Browsing browsing(its);
    its.expect_report(error::key_not_unique, "dlgItemSelect.BuildGroupList");
    EXPECT_EQ(its.person.lines_of("TrView"), Lines({"+A", "+B"}));
    its.person.presses("bnCancel");
}

SCENARIO(UnusualSpace, ASubBranchThatComesTwiceIsReportedAndEndsTheLevel) {
    FakeBranch& line = its.host.browser->root.has("Line1");
    for (const char* name : {"A", "B", "B", "C"}) line.has(name);
    const Browsing browsing(its);
    its.person.expands("TrView", "Line1");
    its.expect_report(error::key_not_unique, "dlgItemSelect.BuildNodes");
    EXPECT_EQ(its.person.lines_of("TrView"), Lines({"-Line1", "  +A", "  +B"}));
    EXPECT_EQ(its.person.sees("TrView").selected, 0);
    its.person.presses("bnCancel");
}

SCENARIO(UnusualSpace, ABranchWhoseFirstReadingFailsHasNothingBelowItUntilARefresh) {
    a_plant(its);
    const Browsing browsing(its);
    its.host.browser->failing = {"Count"};
    its.person.expands("TrView", "Line1");
    its.expect_report(-2147467259, "dlgItemSelect.BuildNodes");
    its.expect_report(-2147467259, "dlgItemSelect.BuildLeaves");
    EXPECT_EQ(its.person.lines_of("TrView"), Lines({" Line1", "+Line2"}));
    its.host.browser->failing.clear();
    its.person.presses("cmdRefresh");
    its.person.expands("TrView", "Line1");
    EXPECT_EQ(its.person.lines_of("TrView"), Lines({"-Line1", "  +Oven", "  +Press", "+Line2"}));
    its.person.presses("bnCancel");
}

SCENARIO(UnusualSpace, TheSameNameInDifferentBranchesIsFine) {
    its.host.browser->root.has("A").has("Valve");
    its.host.browser->root.has("B").has("Valve", {"Open"});
    const Browsing browsing(its);
    its.person.expands("TrView", "A");
    its.person.expands("TrView", "B");
    EXPECT_EQ(its.person.lines_of("TrView"), Lines({"-A", "  +Valve", "-B", "  +Valve"}));
    its.person.presses("bnCancel");
}

SCENARIO(UnusualSpace, SixLevelsDeepTheIdentifierIsWhole) {
    FakeBranch* at = &its.host.browser->root;
    for (const char* name : {"Site", "Hall", "Line", "Station", "Unit", "Sensor"}) at = &at->has(name);
    at->leaves = {"Value"};
    const Browsing browsing(its);
    for (const char* name : {"Site", "Hall", "Line", "Station", "Unit"}) its.person.expands("TrView", name);
    EXPECT_EQ(last_of(its.person.lines_of("TrView")), "          +Sensor");
    its.person.clicks_node("TrView", "Sensor");
    its.person.picks("lstItem", "Value");
    EXPECT_EQ(its.person.reads("txtFullPath"), "Site.Hall.Line.Station.Unit.Sensor.Value");
    its.person.presses("bnCancel");
}

SCENARIO(UnusualSpace, NamesOfAllSortsComeThroughWhole) {
    const std::vector<std::string> names = {"Filler & Capper",
                                            "&Line",
                                            "Left\tright",
                                            "\xD7\xA9\xD7\xA7\xD7\x99\xD7\x9C\xD7\x94", // right to left
                                            "\xF0\x9F\x8C\xA1 hot",
                                            many("long", 500)};
    FakeBranch& line = its.host.browser->root.has("L&ine \xF0\x9F\x8F\xAD", names);
    for (const std::string& name : names) line.has(name);
    Browsing browsing(its);
    its.person.clicks_node("TrView", "L&ine \xF0\x9F\x8F\xAD");
    EXPECT_EQ(its.person.lines_of("lstItem"), names);
    for (const std::string& name : names) {
        const std::string id = "L&ine \xF0\x9F\x8F\xAD." + name;
        its.host.group->items->answers[id] = 0;
        its.person.picks("lstItem", name);
        EXPECT_EQ(its.person.reads("txtFullPath"), id);
    }
    its.person.presses("bnOK");
    EXPECT_TRUE(browsing.result());
    EXPECT_EQ(browsing.ItemID(), "L&ine \xF0\x9F\x8F\xAD." + names.back());
}

SCENARIO(UnusualSpace, ABranchWithAnUnusualNameIsReadByIt) {
    const std::string name = "A&B \t\xD7\xA9 \xF0\x9F\x8C\xA1 " + many("long", 500);
    its.host.browser->root.has(name, {"Leaf"}).has("Below");
    Browsing browsing(its);
    browsing.calls();
    its.person.screen().expand("TrView", 0);
    EXPECT_EQ(browsing.calls().nth(2), "OPCBrowser.MoveTo(" + name + ")");
    EXPECT_EQ(last_of(its.person.lines_of("TrView")), "  +Below");
    its.person.presses("bnCancel");
}

SCENARIO(UnusualSpace, AListThatShrinksWhileItIsReadIsReportedAndShowsWhatCame) {
    a_plant(its);
    const Browsing browsing(its);
    its.host.browser->claimed_count = 5;
    its.person.screen().choose("TrView", 0);
    its.expect_report(error::subscript_out_of_range, "dlgItemSelect.BuildLeaves");
    its.expect_report(error::subscript_out_of_range, "dlgItemSelect.BuildLeaves"); // it is read twice
    EXPECT_EQ(its.person.lines_of("lstItem"), Lines({"Running", "Speed"}));
    its.person.expands("TrView", "Line1");
    its.expect_report(error::subscript_out_of_range, "dlgItemSelect.BuildNodes");
    its.expect_report(error::subscript_out_of_range, "dlgItemSelect.BuildLeaves");
    EXPECT_EQ(its.person.lines_of("TrView"), Lines({"-Line1", "  +Oven", "  +Press", "+Line2"}));
    its.person.presses("bnCancel");
}

SCENARIO(UnusualSpace, ANegativeCountListsNothing) {
    a_plant(its);
    its.host.browser->before = [&](const std::string& member) {
        if (member == "ShowLeafs" || member == "MoveTo") its.host.browser->claimed_count = -1;
    };
    const Browsing browsing(its);
    its.person.clicks_node("TrView", "Line1");
    EXPECT_EQ(its.person.lines_of("lstItem"), Lines());
    its.person.expands("TrView", "Line1");
    EXPECT_EQ(its.person.lines_of("TrView"), Lines({" Line1", "+Line2"}));
    its.host.browser->before = [](const std::string&) {};
    its.person.presses("bnCancel");
}

SCENARIO(UnusualSpace, ARealBranchNamedLikeThePlaceholderIsTakenForIt) {
    its.host.browser->root.has("Line1").has("xxX").has("Deep");
    const Browsing browsing(its);
    its.person.expands("TrView", "Line1");
    EXPECT_EQ(its.person.lines_of("TrView"), Lines({"-Line1", "  +xxX"}));
    its.person.collapses("TrView", "Line1");
    // Its first child reads like the placeholder, so the level is read again.
    its.person.expands("TrView", "Line1");
    EXPECT_EQ(its.person.lines_of("TrView"), Lines({"-Line1", "  +xxX"}));
    EXPECT_EQ(its.host.calls.count("OPCBrowser.ShowBranches"), 4); // two times for the root
    its.person.presses("bnCancel");
}
