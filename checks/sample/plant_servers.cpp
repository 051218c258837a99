#include "sample/plant_stage.h"

#include <gmock/gmock.h>

namespace brx::plant {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using namespace std::chrono_literals;

class PlantServers : public PlantCheck {
protected:
    std::vector<std::string> found_on(const std::string& node) {
        const Variant found = plant->make_server()->GetOPCServers(node);
        EXPECT_EQ(std::get<StringArray>(found).lower_bound, 1);
        return std::get<StringArray>(found).elements;
    }
};

TEST_F(PlantServers, AreListedWithoutAConnection) {
    const Variant found = plant->make_server()->GetOPCServers(std::nullopt);
    EXPECT_THAT(std::get<StringArray>(found).elements,
                ElementsAre("Simulation.Packing.1", "Simulation.Metering.1", "Simulation.Terminal.1"));
}

TEST_F(PlantServers, OfTheLocalComputerAreFoundByEveryNameOfIt) {
    const auto local = found_on("");
    EXPECT_EQ(found_on("localhost"), local);
    EXPECT_EQ(found_on("LocalHost"), local);
    EXPECT_EQ(found_on("127.0.0.1"), local);
}

TEST_F(PlantServers, OfANodeAreFoundInAnyLetterCase) {
    EXPECT_THAT(found_on("LINE1"), testing::Contains("Simulation.Filling.1"));
    EXPECT_EQ(found_on("line1"), found_on("LINE1"));
}

TEST_F(PlantServers, TheWarehouseTakesTwoAndAHalfSecondsToListThem) {
    EXPECT_THAT(found_on("WAREHOUSE"), ElementsAre("Simulation.Storage.1"));
    EXPECT_EQ(clock->waited(), 2500ms);
}

TEST_F(PlantServers, TheOfficeHasNone) { EXPECT_THAT(found_on("OFFICE"), IsEmpty()); }

TEST_F(PlantServers, TheGatewayRefusesToListThem) {
    EXPECT_EQ(code_of([&] { found_on("GATEWAY"); }), com_error::access_denied);
}

TEST_F(PlantServers, OfAnUnknownNodeCannotBeReached) {
    EXPECT_EQ(code_of([&] { found_on("NOWHERE"); }), com_error::node_unavailable);
    EXPECT_EQ(code_of([&] { connected("Simulation.Packing.1", "NOWHERE"); }), com_error::node_unavailable);
}

TEST_F(PlantServers, AnUnconnectedServerIsDisconnectedAndHasNoNames) {
    const auto server = plant->make_server();
    EXPECT_EQ(server->ServerState(), server_state::disconnected);
    EXPECT_EQ(server->ServerName(), "");
    EXPECT_EQ(server->ServerNode(), "");
    EXPECT_EQ(server->ClientName(), "");
    EXPECT_EQ(server->OPCGroups()->Count(), 0);
}

TEST_F(PlantServers, WhatNeedsAConnectionFailsWithoutOne) {
    const auto server = plant->make_server();
    const std::function<void()> calls[] = {
        [&] { server->StartTime(); },      [&] { server->CurrentTime(); },
        [&] { server->LastUpdateTime(); }, [&] { server->MajorVersion(); },
        [&] { server->MinorVersion(); },   [&] { server->BuildNumber(); },
        [&] { server->VendorInfo(); },     [&] { server->Bandwidth(); },
        [&] { server->CreateBrowser(); },  [&] { server->groups()->make("x"); },
    };
    for (const auto& call : calls) EXPECT_EQ(code_of(call), com_error::unspecified);
}

TEST_F(PlantServers, AConnectedServerTellsAboutItself) {
    const auto server = connected("simulation.filling.1", "line1");
    EXPECT_EQ(server->ServerName(), "Simulation.Filling.1");
    EXPECT_EQ(server->ServerNode(), "LINE1");
    EXPECT_EQ(server->ServerState(), server_state::running);
    EXPECT_EQ(server->MajorVersion(), 3);
    EXPECT_EQ(server->MinorVersion(), 1);
    EXPECT_EQ(server->BuildNumber(), 96);
    EXPECT_EQ(server->VendorInfo(), "Simulated filling line");
    EXPECT_EQ(server->Bandwidth(), 27);
}

TEST_F(PlantServers, ALocalServerHasNoNodeHoweverTheComputerWasSpelt) {
    EXPECT_EQ(connected("Simulation.Packing.1", "localhost")->ServerNode(), "");
}

TEST_F(PlantServers, TheClientNameIsRemembered) {
    const auto server = plant->make_server();
    server->set_ClientName("Sample");
    EXPECT_EQ(server->ClientName(), "Sample");
}

TEST_F(PlantServers, TimesFollowTheClockAndTheStartTimeStands) {
    const auto server = connected("Simulation.Packing.1");
    const Date start = server->StartTime();
    EXPECT_LT(start.days, HandClock::noon - 1);
    EXPECT_DOUBLE_EQ(server->CurrentTime().days, HandClock::noon);
    EXPECT_DOUBLE_EQ(server->LastUpdateTime().days, HandClock::noon);
    clock->advance(10.75);
    EXPECT_EQ(server->StartTime(), start);
    EXPECT_NEAR(server->CurrentTime().days * 86400, HandClock::noon * 86400 + 10.75, 1e-3);
    EXPECT_NEAR(server->LastUpdateTime().days * 86400, HandClock::noon * 86400 + 10, 1e-3);
    EXPECT_EQ(connected("Simulation.Packing.1")->StartTime(), start);
}

TEST_F(PlantServers, OneThatNeverSentDataReportsTheYear1601) {
    EXPECT_EQ(connected("Simulation.Terminal.1")->LastUpdateTime().days, -109205);
}

TEST_F(PlantServers, TheKilnCannotBeConnected) {
    EXPECT_EQ(code_of([&] { connected("Simulation.Kiln.1", "LAB"); }), com_error::server_execution_failed);
}

TEST_F(PlantServers, OneThatIsNotRegisteredCannotBeConnected) {
    EXPECT_EQ(code_of([&] { connected("Simulation.Nothing.1"); }), com_error::unspecified);
    EXPECT_EQ(code_of([&] { connected("Simulation.Filling.1"); }), com_error::unspecified);
}

TEST_F(PlantServers, AFailedConnectionLeavesNoneEvenIfThereWasOne) {
    const auto server = connected("Simulation.Packing.1");
    EXPECT_NE(code_of([&] { server->Connect("Simulation.Kiln.1", "LAB"); }), 0U);
    EXPECT_EQ(server->ServerState(), server_state::disconnected);
}

TEST_F(PlantServers, DisconnectingIsAlwaysFine) {
    const auto server = connected("Simulation.Packing.1");
    server->Disconnect();
    server->Disconnect();
    EXPECT_EQ(server->ServerState(), server_state::disconnected);
}

TEST_F(PlantServers, HaveATextForEveryErrorCodeOfTheirs) {
    const auto server = connected("Simulation.Packing.1");
    EXPECT_EQ(server->GetErrorString(as_number(opc_error::unknown_item_id)),
              "The item identifier is not known to the server.");
    EXPECT_EQ(server->GetErrorString(as_number(com_error::access_denied)), "Access is denied.");
    EXPECT_EQ(code_of([&] { server->GetErrorString(12345); }), com_error::unspecified);
    EXPECT_EQ(code_of([&] { plant->make_server()->GetErrorString(12345); }), com_error::no_interface);
}

} // namespace

} // namespace brx::plant
