#include "scenario.h"

using namespace brx;
using namespace brx::checks;

namespace {

/// A host with three servers, the second without a name, and the dialog on the screen.
void three_servers(Play& its) {
    its.host.servers->has("Matrix");
    its.host.servers->has("", "PC7");
    its.host.servers->has("Sim", "PC7");
}

} // namespace

SCENARIO(ServerSelection, ListsTheServersByNodeAndName) {
    three_servers(its);
    Showing select(*its.stage, "ServerSelect");
    select.show(its.host.servers);
    its.person.is_at("dlgServerSelect");
    EXPECT_EQ(its.person.title(), "Select OPC Server");
    EXPECT_EQ(its.person.reads("lblGeneral"), "OPC Server:");
    EXPECT_EQ(its.person.lines_of("cboServer"), (Lines{"Matrix", "PC7.Sim"}));
    EXPECT_EQ(its.person.sees("cboServer").selected, -1);
    EXPECT_FALSE(its.person.can_press("bnOK"));
    EXPECT_TRUE(its.person.can_press("bnServer"));
    its.person.presses("bnCancel");
    EXPECT_FALSE(select.result());
}

SCENARIO(ServerSelection, ReturnsThePositionOfTheChosenServerInTheCollection) {
    three_servers(its);
    Showing select(*its.stage, "ServerSelect");
    select.show(its.host.servers);
    its.person.picks("cboServer", "PC7.Sim");
    EXPECT_TRUE(its.person.can_press("bnOK"));
    its.person.presses("bnOK");
    EXPECT_TRUE(select.result());
    EXPECT_EQ(select.ServerIndex(), 3);
}

SCENARIO(ServerSelection, EnterConfirmsTheChosenServer) {
    three_servers(its);
    Showing select(*its.stage, "ServerSelect");
    select.show(its.host.servers);
    its.person.picks("cboServer", "Matrix");
    its.person.hits(Key::enter);
    EXPECT_TRUE(select.result());
    EXPECT_EQ(select.ServerIndex(), 1);
}

SCENARIO(ServerSelection, OpensWithoutAChoiceWhateverTheCallerSetAndCancellingKeepsIt) {
    three_servers(its);
    Showing select(*its.stage, "ServerSelect");
    select.set_ServerIndex(3);
    select.show(its.host.servers);
    EXPECT_EQ(its.person.sees("cboServer").selected, -1);
    EXPECT_FALSE(its.person.can_press("bnOK"));
    its.person.presses("bnCancel");
    EXPECT_FALSE(select.result());
    EXPECT_EQ(select.ServerIndex(), 3);
}

SCENARIO(ServerSelection, CancellingAfterAChoiceReturnsNothing) {
    three_servers(its);
    Showing select(*its.stage, "ServerSelect");
    select.show(its.host.servers);
    its.person.picks("cboServer", "Matrix");
    its.person.presses("bnCancel");
    EXPECT_FALSE(select.result());
    EXPECT_EQ(select.ServerIndex(), 0);
}

SCENARIO(ServerSelection, EscapeCancels) {
    three_servers(its);
    Showing select(*its.stage, "ServerSelect");
    select.show(its.host.servers);
    its.person.picks("cboServer", "Matrix");
    its.person.hits(Key::escape);
    EXPECT_FALSE(select.result());
}

SCENARIO(ServerSelection, ClosingTheWindowReturnsNothing) {
    three_servers(its);
    Showing select(*its.stage, "ServerSelect");
    select.show(its.host.servers);
    its.person.picks("cboServer", "Matrix");
    its.person.closes_the_window();
    EXPECT_FALSE(select.result());
    EXPECT_EQ(select.ServerIndex(), 0);
}

SCENARIO(ServerSelection, AnEmptyCollectionLeavesNothingToConfirm) {
    Showing select(*its.stage, "ServerSelect");
    select.show(its.host.servers);
    EXPECT_EQ(its.person.lines_of("cboServer"), Lines{});
    EXPECT_FALSE(its.person.can_press("bnOK"));
    its.person.presses("bnCancel");
    EXPECT_FALSE(select.result());
}

SCENARIO(ServerSelection, AnAddedServerIsListedAndSelected) {
    Showing select(*its.stage, "ServerSelect");
    select.show(its.host.servers);
    its.person.presses("bnServer");
    its.person.is_at("dlgServerAdd");
    its.person.picks("lstOPCServers", "Line.Server.2");
    its.person.presses("bnOK");
    its.person.is_at("dlgServerSelect");
    EXPECT_EQ(its.person.lines_of("cboServer"), (Lines{"Line.Server.2"}));
    EXPECT_EQ(its.person.reads("cboServer"), "Line.Server.2");
    EXPECT_TRUE(its.person.can_press("bnOK"));
    its.person.presses("bnOK");
    EXPECT_TRUE(select.result());
    EXPECT_EQ(select.ServerIndex(), 1);
}

SCENARIO(ServerSelection, ACancelledAddLeavesTheSelectionAsItWas) {
    three_servers(its);
    Showing select(*its.stage, "ServerSelect");
    select.show(its.host.servers);
    its.person.picks("cboServer", "Matrix");
    its.person.uses_accelerator('A');
    its.person.is_at("dlgServerAdd");
    its.person.presses("bnCancel");
    its.person.is_at("dlgServerSelect");
    EXPECT_EQ(its.person.reads("cboServer"), "Matrix");
    EXPECT_TRUE(its.person.can_press("bnOK"));
    its.person.presses("bnOK");
    EXPECT_TRUE(select.result());
    EXPECT_EQ(select.ServerIndex(), 1);
}

SCENARIO(ServerSelection, ClosingTheWindowAfterAnAddReturnsTheAddedServer) {
    three_servers(its);
    Showing select(*its.stage, "ServerSelect");
    select.show(its.host.servers);
    its.person.presses("bnServer");
    its.person.picks("lstOPCServers", "Plant.Simulation.1");
    its.person.presses("bnOK");
    its.person.closes_the_window();
    EXPECT_TRUE(select.result());
    EXPECT_EQ(select.ServerIndex(), 4);
}

SCENARIO(ServerSelection, CancellingAfterAnAddReturnsNothingAndKeepsTheAddedServer) {
    three_servers(its);
    Showing select(*its.stage, "ServerSelect");
    select.show(its.host.servers);
    its.person.presses("bnServer");
    its.person.picks("lstOPCServers", "Plant.Simulation.1");
    its.person.presses("bnOK");
    its.person.presses("bnCancel");
    EXPECT_FALSE(select.result());
    EXPECT_EQ(its.host.servers->entries().size(), 4U);
}

SCENARIO(ServerSelection, AnInstanceCanBeShownAgainAndStartsAfresh) {
    three_servers(its);
    Showing select(*its.stage, "ServerSelect");
    select.show(its.host.servers);
    its.person.picks("cboServer", "PC7.Sim");
    its.person.presses("bnOK");
    EXPECT_TRUE(select.result());
    select.show(its.host.servers);
    EXPECT_EQ(its.person.sees("cboServer").selected, -1);
    EXPECT_FALSE(its.person.can_press("bnOK"));
    its.person.presses("bnCancel");
    EXPECT_FALSE(select.result());
    EXPECT_EQ(select.ServerIndex(), 3);
}

SCENARIO(ServerSelection, MoreServersThanA16BitNumberCountsAreReportedAndNotListed) {
    its.host.servers->claims_count(32768);
    Showing select(*its.stage, "ServerSelect");
    select.show(its.host.servers);
    its.person.is_at("dlgServerSelect");
    its.expect_report(error::overflow, "dlgServerSelect.BuildList");
    EXPECT_EQ(its.person.lines_of("cboServer"), Lines{});
    its.person.presses("bnCancel");
    EXPECT_FALSE(select.result());
}

SCENARIO(ServerSelection, AnEntryThatFailsLeavesTheListAsFarAsItWasFilled) {
    three_servers(its);
    its.host.servers->claims_count(4);
    Showing select(*its.stage, "ServerSelect");
    select.show(its.host.servers);
    its.expect_report(error::subscript_out_of_range, "dlgServerSelect.BuildList");
    EXPECT_EQ(its.person.lines_of("cboServer"), (Lines{"Matrix", "PC7.Sim"}));
    its.person.picks("cboServer", "PC7.Sim");
    its.person.presses("bnOK");
    EXPECT_TRUE(select.result());
    EXPECT_EQ(select.ServerIndex(), 3);
}

SCENARIO(ServerSelection, AListThatCannotBeBuiltAgainLeavesNothingToConfirm) {
    three_servers(its);
    Showing select(*its.stage, "ServerSelect");
    select.show(its.host.servers);
    its.person.picks("cboServer", "Matrix");
    its.person.presses("bnServer");
    its.person.picks("lstOPCServers", "Plant.Simulation.1");
    // Looking for a duplicate takes 7 calls, connecting 2; then the new position is read, and the list built.
    its.host.calls.fail_at(11);
    its.person.presses("bnOK");
    its.expect_report(CallLog::failure_number, "dlgServerSelect.BuildList");
    EXPECT_EQ(its.person.lines_of("cboServer"), Lines{});
    EXPECT_FALSE(its.person.can_press("bnOK"));
    its.person.presses("bnCancel");
    EXPECT_FALSE(select.result());
}

SCENARIO(ServerSelection, AbsurdNamesAreShownWhole) {
    const std::string long_name(2000, 'x');
    its.host.servers->has("A&B\tC");
    its.host.servers->has(long_name, "N\xC3\xB6rd");
    Showing select(*its.stage, "ServerSelect");
    select.show(its.host.servers);
    EXPECT_EQ(its.person.lines_of("cboServer"), (Lines{"A&B\tC", "N\xC3\xB6rd." + long_name}));
    its.person.closes_the_window();
    EXPECT_FALSE(select.result());
}

SCENARIO(ServerSelection, NothingIsReportedAndOpensNoDialog) {
    Showing select(*its.stage, "ServerSelect");
    select.show(nullptr);
    its.person.is_at("");
    EXPECT_FALSE(select.result());
    its.expect_report(error::type_mismatch, "ServerSelect.ResolvehlxOPCServers");
}

SCENARIO(ServerSelection, AWrongObjectIsReportedAndOpensNoDialog) {
    const auto entry = its.host.servers->has("Matrix");
    Showing select(*its.stage, "ServerSelect");
    select.show(entry);
    its.person.is_at("");
    EXPECT_FALSE(select.result());
    its.expect_report(error::type_mismatch, "ServerSelect.ResolvehlxOPCServers");
}

SCENARIO(ServerSelection, TheTabKeyWalksThroughTheControlsInOrder) {
    three_servers(its);
    Showing select(*its.stage, "ServerSelect");
    select.show(its.host.servers);
    EXPECT_TRUE(its.person.has_focus("cboServer"));
    its.person.hits(Key::tab);
    EXPECT_TRUE(its.person.has_focus("bnServer"));
    its.person.hits(Key::tab);
    EXPECT_TRUE(its.person.has_focus("bnCancel")) << "bnOK is disabled.";
    its.person.hits(Key::tab);
    EXPECT_TRUE(its.person.has_focus("cboServer"));
    its.person.hits(Key::back_tab);
    EXPECT_TRUE(its.person.has_focus("bnCancel"));
    its.person.hits(Key::enter);
    EXPECT_FALSE(select.result());
}

SCENARIO(ServerSelection, TheArrowKeysChooseAServer) {
    three_servers(its);
    Showing select(*its.stage, "ServerSelect");
    select.show(its.host.servers);
    its.person.hits(Key::down);
    EXPECT_EQ(its.person.reads("cboServer"), "Matrix");
    its.person.hits(Key::down);
    EXPECT_EQ(its.person.reads("cboServer"), "PC7.Sim");
    its.person.hits(Key::up);
    its.person.uses_accelerator('C');
    EXPECT_FALSE(select.result());
}
