#include "scenario.h"

using namespace brx;
using namespace brx::checks;

namespace {

std::shared_ptr<FakeOPCServer> a_server(Play& its) {
    auto server = std::make_shared<FakeOPCServer>(its.host.calls);
    server->server_name = "Matrix";
    server->server_node = "PC7";
    server->start_time = Date{46024.0};              // 2 January 2026, midnight
    server->current_time = Date{46024.545196759259}; // 2 January 2026, 13:05:05
    server->last_update_time = Date{46024.5};
    return server;
}

} // namespace

SCENARIO(ServerInformation, ShowsTheServersStatus) {
    const auto server = a_server(its);
    Showing information(*its.stage, "ServerInformation");
    information.show(server);
    its.person.is_at("dlgServerInformation");
    EXPECT_EQ(its.person.title(), "PC7.Matrix");
    EXPECT_EQ(its.person.reads("Label1"), "Start Time");
    EXPECT_EQ(its.person.reads("Start"), "1/2/2026");
    EXPECT_EQ(its.person.reads("Label2"), "Current Time");
    EXPECT_EQ(its.person.reads("Current"), "1/2/2026 1:05:05 PM");
    EXPECT_EQ(its.person.reads("Label3"), "Last Update Time");
    EXPECT_EQ(its.person.reads("Last"), "1/2/2026 12:00:00 PM");
    EXPECT_EQ(its.person.reads("Label4"), "Version");
    EXPECT_EQ(its.person.reads("Version"), "3.0");
    EXPECT_EQ(its.person.reads("Label5"), "Vendor Information");
    EXPECT_EQ(its.person.reads("Vendor"), "Plant Simulations");
    EXPECT_EQ(its.host.calls.count("OPCServer.BuildNumber"), 0);
    its.person.presses("bnOK");
    EXPECT_TRUE(information.result());
}

SCENARIO(ServerInformation, AServerOnTheLocalComputerIsTitledByItsNameAlone) {
    const auto server = a_server(its);
    server->server_node = "";
    Showing information(*its.stage, "ServerInformation");
    information.show(server);
    EXPECT_EQ(its.person.title(), "Matrix");
    its.person.presses("bnOK");
    EXPECT_TRUE(information.result());
}

SCENARIO(ServerInformation, TheTimesFollowEveryTickAndNothingElseDoes) {
    const auto server = a_server(its);
    Showing information(*its.stage, "ServerInformation");
    information.show(server);
    server->start_time = Date{46025.0};
    server->current_time = Date{46025.5};
    server->last_update_time = Date{46026.0};
    server->minor_version = 9;
    server->vendor_info = "Somebody else";
    its.person.waits_for_ticks(1);
    EXPECT_EQ(its.person.reads("Start"), "1/3/2026");
    EXPECT_EQ(its.person.reads("Current"), "1/3/2026 12:00:00 PM");
    EXPECT_EQ(its.person.reads("Last"), "1/4/2026");
    EXPECT_EQ(its.person.reads("Version"), "3.0");
    EXPECT_EQ(its.person.reads("Vendor"), "Plant Simulations");
    server->current_time = Date{46025.75};
    its.person.waits_for_ticks(1);
    EXPECT_EQ(its.person.reads("Current"), "1/3/2026 6:00:00 PM");
    its.person.presses("bnOK");
    EXPECT_TRUE(information.result());
}

SCENARIO(ServerInformation, AServerThatStopsAnsweringIsReportedAtEachTickAndTheNextOneTriesAgain) {
    const auto server = a_server(its);
    Showing information(*its.stage, "ServerInformation");
    information.show(server);
    its.host.calls.fail_at(1);
    its.person.waits_for_ticks(1);
    its.expect_report(CallLog::failure_number, "dlgServerInformation.Timer1_Timer");
    its.host.calls.fail_at(2);
    its.person.waits_for_ticks(1);
    its.expect_report(CallLog::failure_number, "dlgServerInformation.Timer1_Timer");
    server->current_time = Date{46025.5};
    its.person.waits_for_ticks(1);
    EXPECT_EQ(its.person.reads("Current"), "1/3/2026 12:00:00 PM");
    its.person.presses("bnOK");
    EXPECT_TRUE(information.result());
}

SCENARIO(ServerInformation, ReturnsTrueHoweverItWasClosed) {
    const auto server = a_server(its);
    Showing information(*its.stage, "ServerInformation");
    information.show(server);
    its.person.closes_the_window();
    EXPECT_TRUE(information.result());
    information.show(server);
    its.person.hits(Key::escape);
    EXPECT_TRUE(information.result());
    information.show(server);
    its.person.hits(Key::enter);
    EXPECT_TRUE(information.result());
}

SCENARIO(ServerInformation, StartsOnOKAndItsFieldsAreReachedByTab) {
    const auto server = a_server(its);
    Showing information(*its.stage, "ServerInformation");
    information.show(server);
    EXPECT_TRUE(its.person.has_focus("bnOK"));
    its.person.hits(Key::tab);
    EXPECT_TRUE(its.person.has_focus("Start"));
    its.person.presses("bnOK");
    EXPECT_TRUE(information.result());
}

SCENARIO(ServerInformation, NobodyCanTypeIntoTheFields) {
    const auto server = a_server(its);
    Showing information(*its.stage, "ServerInformation");
    information.show(server);
    its.person.goes_to("Vendor");
    its.person.types("x");
    EXPECT_EQ(its.person.reads("Vendor"), "Plant Simulations");
    its.person.presses("bnOK");
    EXPECT_TRUE(information.result());
}

SCENARIO(ServerInformation, NothingIsReportedAndOpensNoDialog) {
    Showing information(*its.stage, "ServerInformation");
    information.show(nullptr);
    its.person.is_at("");
    EXPECT_FALSE(information.result());
    its.expect_report(error::type_mismatch, "CommonTools.ResolveOPCServer");
}

SCENARIO(ServerInformation, AWrongObjectIsReportedAndOpensNoDialog) {
    Showing information(*its.stage, "ServerInformation");
    information.show(its.host.servers);
    its.person.is_at("");
    EXPECT_FALSE(information.result());
    its.expect_report(error::type_mismatch, "CommonTools.ResolveOPCServer");
}

SCENARIO(ServerInformation, ADialogWhoseHostHasNoHelpStillLoads) {
    its.host.help_service = nullptr;
    const auto server = a_server(its);
    Showing information(*its.stage, "ServerInformation");
    information.show(server);
    EXPECT_EQ(its.person.reads("Version"), "3.0");
    its.person.presses("bnOK");
    EXPECT_TRUE(information.result());
}
