#include "sample/store_stage.h"

#include <gmock/gmock.h>

namespace brx::host {

namespace {

using testing::HasSubstr;

class StoreServers : public StoreCheck {
protected:
    std::shared_ptr<Host> host = opened();
    std::shared_ptr<Servers> servers = host->servers();
};

TEST_F(StoreServers, AreConnectedAsFarAsTheyCanBe) {
    servers->connect_all();
    EXPECT_EQ(servers->at(1).state_text(), "Running");
    EXPECT_EQ(servers->at(2).state_text(), "Running");
    EXPECT_EQ(servers->at(3).state_text(), "Not connected: Server execution failed (0x80080005)");
    EXPECT_NE(servers->Item(std::int32_t{1})->OPCServer(), nullptr);
    EXPECT_EQ(servers->Item(std::int32_t{3})->OPCServer(), nullptr);
}

TEST_F(StoreServers, TellTheirNameAndNode) {
    EXPECT_EQ(servers->Item(std::int32_t{1})->ServerName(), "Simulation.Packing.1");
    EXPECT_EQ(servers->Item(std::int32_t{1})->Node(), "");
    EXPECT_EQ(servers->Item(std::int16_t{2})->Node(), "LINE1");
    EXPECT_EQ(servers->Item(2.0)->ServerName(), "Simulation.Filling.1");
}

TEST_F(StoreServers, ThereIsNoneBeforeTheFirstOrBehindTheLast) {
    EXPECT_EQ(error_of([&] { servers->Item(std::int32_t{0}); }), error::subscript_out_of_range);
    EXPECT_EQ(error_of([&] { servers->Item(std::int32_t{4}); }), error::subscript_out_of_range);
    EXPECT_EQ(error_of([&] { servers->Item(std::string("LAB")); }), error::type_mismatch);
    EXPECT_EQ(error_of([&] { servers->at(4); }), error::subscript_out_of_range);
}

TEST_F(StoreServers, AddingConnectsStoresAndAppends) {
    const hlxOPCServerPtr added = servers->Add("Simulation.Climate.1", " LAB ", true);
    ASSERT_NE(added, nullptr);
    EXPECT_EQ(added->Node(), "LAB");
    EXPECT_EQ(resolve<OPCServer>(added->OPCServer())->ServerName(), "Simulation.Climate.1");
    EXPECT_EQ(servers->LastError(), "");
    EXPECT_EQ(servers->Count(), 4);
    EXPECT_EQ(servers->Item(std::int32_t{4}).get(), added.get());
    const auto again = opened()->servers();
    ASSERT_EQ(again->Count(), 4);
    EXPECT_EQ(again->at(4).display_text(), "LAB.Simulation.Climate.1");
    EXPECT_EQ(again->at(4).state_text(), "Not connected: not connected yet");
}

TEST_F(StoreServers, AddingWithoutConnectingOnlyStores) {
    const hlxOPCServerPtr added = servers->Add("Simulation.Kiln.1", "LAB", false);
    ASSERT_NE(added, nullptr);
    EXPECT_EQ(added->OPCServer(), nullptr);
    EXPECT_EQ(opened()->servers()->Count(), 4);
}

TEST_F(StoreServers, OneThatCannotBeConnectedIsNotAdded) {
    EXPECT_EQ(servers->Add("Simulation.Kiln.1", "LAB", true), nullptr);
    EXPECT_EQ(servers->LastError(), "Server execution failed (0x80080005)");
    EXPECT_EQ(servers->Count(), 3);
    EXPECT_EQ(opened()->servers()->Count(), 3);
    EXPECT_NE(servers->Add("Simulation.Metering.1", "", true), nullptr);
    EXPECT_EQ(servers->LastError(), "");
}

TEST_F(StoreServers, OneWithoutANameIsNotAdded) {
    EXPECT_EQ(servers->Add(" ", "", false), nullptr);
    EXPECT_EQ(servers->LastError(), "The server has no name.");
}

TEST_F(StoreServers, OneThatCannotBeStoredIsNotAddedAndNotLeftConnected) {
    struct Watched final : OpcSource {
        ObjectPtr make() override { return nullptr; }
        ObjectPtr connect(const std::string&, const std::string&) override {
            ++connections;
            return std::make_shared<Object>();
        }
        std::unique_ptr<GroupAccess> access(const ObjectPtr&) override { return nullptr; }
        double seconds() override { return 0; }
        void disconnect(const ObjectPtr&) noexcept override { --connections; }
        int connections = 0;
    };
    const auto watched = std::make_shared<Watched>();
    servers->set_source(watched);
    const int before = watched->connections;
    fill_the_disk(*host, "INSERT ON server");
    EXPECT_EQ(servers->Add("Simulation.Metering.1", "", true), nullptr);
    EXPECT_THAT(servers->LastError(), HasSubstr("no room left"));
    EXPECT_EQ(servers->Count(), 3);
    EXPECT_EQ(watched->connections, before);
    EXPECT_EQ(opened()->servers()->Count(), 3);
}

TEST_F(StoreServers, RemovingTakesThemOutOfTheFileToo) {
    const hlxOPCServerPtr held = servers->Item(std::int32_t{2});
    servers->connect_all();
    servers->remove(2);
    EXPECT_EQ(servers->Count(), 2);
    EXPECT_EQ(servers->at(2).display_text(), "LAB.Simulation.Kiln.1");
    EXPECT_EQ(opened()->servers()->Count(), 2);
    EXPECT_EQ(held->OPCServer(), nullptr);
    EXPECT_EQ(held->Parent(), nullptr);
    EXPECT_EQ(error_of([&] { servers->remove(3); }), error::subscript_out_of_range);
}

TEST_F(StoreServers, AreFoundByTheirDisplayText) {
    EXPECT_EQ(servers->find("line1.simulation.filling.1"), 2);
    EXPECT_EQ(servers->find("Simulation.Packing.1"), 1);
    EXPECT_EQ(servers->find("Simulation.Filling.1"), 0);
}

TEST_F(StoreServers, RememberTheItemThatWasChosenLast) {
    EXPECT_EQ(servers->at(1).last_item(), "");
    servers->set_last_item(1, "Filler.Head 1.Weight");
    servers->set_last_item(2, "Bottle.Weight");
    servers->set_last_item(1, "Capper.Torque");
    EXPECT_EQ(servers->at(1).last_item(), "Capper.Torque");
    servers->remove(1);
    const auto again = opened()->servers();
    EXPECT_EQ(again->at(1).last_item(), "Bottle.Weight");
    EXPECT_EQ(again->at(2).last_item(), "");
    EXPECT_EQ(error_of([&] { servers->set_last_item(3, "x"); }), error::subscript_out_of_range);
}

TEST_F(StoreServers, TheChainOfParentsReachesTheDatabase) {
    const auto owner = resolve<hlxOPCServers>(servers->Item(std::int32_t{1})->Parent());
    EXPECT_EQ(owner.get(), servers.get());
    const auto application = resolve<hlxApplication>(owner->Parent());
    EXPECT_EQ(application.get(), host.get());
    EXPECT_NE(resolve<hlxDatabase>(application->Database()), nullptr);
}

TEST_F(StoreServers, AnyPartThatIsHeldKeepsTheHostAlive) {
    const hlxOPCServerPtr held = servers->Item(std::int32_t{1});
    const std::weak_ptr<Host> watched = host;
    host = nullptr;
    servers = nullptr;
    EXPECT_EQ(resolve<hlxOPCServers>(held->Parent())->Count(), 3);
    EXPECT_FALSE(watched.expired());
}

TEST_F(StoreServers, NothingIsLeftWhenNobodyHoldsAPart) {
    servers->connect_all();
    const std::weak_ptr<Host> watched = host;
    const std::weak_ptr<Object> server = servers->Item(std::int32_t{1})->OPCServer();
    host = nullptr;
    servers = nullptr;
    EXPECT_TRUE(watched.expired());
    EXPECT_TRUE(server.expired());
}

TEST_F(StoreServers, ConnectingAgainTellsHowItWent) {
    EXPECT_TRUE(servers->connect(1));
    EXPECT_EQ(log.line(log.count()), "Simulation.Packing.1: Connected.");
    EXPECT_FALSE(servers->connect(3));
    EXPECT_EQ(log.line(log.count()),
              "LAB.Simulation.Kiln.1: Not connected: Server execution failed (0x80080005)");
}

TEST_F(StoreServers, ConnectingAgainDropsTheOldConnection) {
    servers->connect(1);
    const auto old = resolve<OPCServer>(servers->at(1).OPCServer());
    servers->connect(1);
    EXPECT_EQ(old->ServerState(), plant::server_state::disconnected);
    EXPECT_EQ(servers->at(1).state_text(), "Running");
}

TEST_F(StoreServers, OneInTestModeSaysSo) {
    servers->Add("Simulation.Climate.1", "LAB", true);
    EXPECT_EQ(servers->at(4).state_text(), "Test");
}

TEST_F(StoreServers, AFreshEntryListsServersAndBelongsToNobody) {
    FreshEntry fresh(source);
    EXPECT_EQ(fresh.ServerName(), "");
    EXPECT_EQ(fresh.Node(), "");
    EXPECT_EQ(fresh.Parent(), nullptr);
    const auto server = resolve<OPCServer>(fresh.OPCServer());
    EXPECT_EQ(std::get<StringArray>(server->GetOPCServers(std::nullopt)).elements.size(), 3U);
    EXPECT_EQ(fresh.OPCServer(), server);
}

} // namespace

} // namespace brx::host
