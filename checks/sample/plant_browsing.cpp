#include "sample/plant_reading.h"
#include "sample/plant_stage.h"

#include <gmock/gmock.h>

namespace brx::plant {

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

class PlantBrowsing : public PlantCheck {
protected:
    std::shared_ptr<Server> packing = connected("Simulation.Packing.1");
    OPCBrowserPtr browser = packing->CreateBrowser();
};

TEST_F(PlantBrowsing, AHierarchicalSpaceHasBranchesAndLeavesOnEachLevel) {
    EXPECT_EQ(browser->Organization(), 1);
    EXPECT_THAT(branches(browser), ElementsAre("Filler", "Capper", "Labeller"));
    EXPECT_THAT(leaves(browser), ElementsAre("Running", "Operator"));
    browser->MoveTo({{"Filler"}});
    EXPECT_THAT(branches(browser), ElementsAre("Head 1", "Head 2"));
    EXPECT_THAT(leaves(browser), ElementsAre("Temperature", "Speed", "Bottles"));
    browser->MoveTo({{"Filler", "Head 2"}});
    EXPECT_THAT(branches(browser), IsEmpty());
    EXPECT_THAT(leaves(browser), ElementsAre("Weight", "Volume", "Ready"));
    browser->MoveToRoot();
    EXPECT_THAT(branches(browser), ElementsAre("Filler", "Capper", "Labeller"));
}

TEST_F(PlantBrowsing, AllLeavesBelowAPlaceAreTheirIdentifiers) {
    browser->MoveTo({{"Capper"}});
    EXPECT_THAT(leaves(browser, true), ElementsAre("Capper.Torque", "Capper.Verdict", "Capper.Caps left"));
    browser->MoveToRoot();
    EXPECT_THAT(leaves(browser, true), Contains("Filler.Head 1.Weight"));
    EXPECT_EQ(browser->Count(), 18);
}

TEST_F(PlantBrowsing, ALeafsIdentifierIsItsPlaceJoinedWithFullStops) {
    browser->MoveTo({{"Filler", "Head 1"}});
    EXPECT_EQ(browser->GetItemID("Weight"), "Filler.Head 1.Weight");
    browser->MoveTo({{"Filler"}});
    EXPECT_EQ(browser->GetItemID("Head 1"), "Filler.Head 1");
    EXPECT_EQ(browser->GetItemID("Capper.Torque"), "Capper.Torque");
    EXPECT_EQ(code_of([&] { browser->GetItemID("Weight"); }), opc_error::unknown_item_id);
}

TEST_F(PlantBrowsing, MovingEmptiesTheList) {
    browser->ShowBranches();
    browser->MoveToRoot();
    EXPECT_EQ(browser->Count(), 0);
    browser->ShowBranches();
    browser->MoveTo({{"Filler"}});
    EXPECT_EQ(browser->Count(), 0);
}

TEST_F(PlantBrowsing, AMoveToAnUnknownBranchStaysAtTheLastOneReached) {
    EXPECT_EQ(code_of([&] {
                  browser->MoveTo({{"Filler", "Nowhere", "Head 1"}});
              }),
              com_error::invalid_argument);
    EXPECT_THAT(branches(browser), ElementsAre("Head 1", "Head 2"));
}

TEST_F(PlantBrowsing, EmptyNamesOnAPathAreSkipped) {
    browser->MoveTo({{"", "Filler", ""}});
    EXPECT_THAT(branches(browser), ElementsAre("Head 1", "Head 2"));
}

TEST_F(PlantBrowsing, ThereIsNoNameBeforeTheFirstOrBehindTheLast) {
    browser->ShowBranches();
    EXPECT_EQ(code_of([&] { browser->Item(0); }), com_error::invalid_argument);
    EXPECT_EQ(code_of([&] { browser->Item(4); }), com_error::invalid_argument);
}

TEST_F(PlantBrowsing, BrowsersOfOneConnectionShareTheirPosition) {
    const OPCBrowserPtr other = packing->CreateBrowser();
    other->MoveTo({{"Filler"}});
    EXPECT_THAT(branches(browser), ElementsAre("Head 1", "Head 2"));
    EXPECT_EQ(other->Count(), 0);
    const OPCBrowserPtr of_another_connection = connected("Simulation.Packing.1")->CreateBrowser();
    EXPECT_THAT(branches(of_another_connection), ElementsAre("Filler", "Capper", "Labeller"));
}

TEST_F(PlantBrowsing, AFlatSpaceListsItsIdentifiersWhateverIsAskedFor) {
    const OPCBrowserPtr flat = connected("Simulation.Metering.1")->CreateBrowser();
    EXPECT_EQ(flat->Organization(), 2);
    EXPECT_EQ(branches(flat).size(), 10U);
    EXPECT_EQ(leaves(flat), branches(flat));
    EXPECT_EQ(leaves(flat, true), branches(flat));
    EXPECT_EQ(flat->GetItemID("XV-501.Open"), "XV-501.Open");
}

TEST_F(PlantBrowsing, AnotherFlatSpaceHasNoBranches) {
    const OPCBrowserPtr flat = connected("Simulation.Balance.1", "LAB")->CreateBrowser();
    EXPECT_EQ(flat->Organization(), 2);
    EXPECT_THAT(branches(flat), IsEmpty());
    EXPECT_THAT(leaves(flat), ElementsAre("Weight", "Tare", "Stable"));
}

TEST_F(PlantBrowsing, TheTerminalCannotBrowse) {
    const auto terminal = connected("Simulation.Terminal.1");
    EXPECT_EQ(code_of([&] { terminal->CreateBrowser(); }), com_error::unspecified);
}

TEST_F(PlantBrowsing, EndsWithTheConnection) {
    browser->ShowBranches();
    packing->Disconnect();
    EXPECT_EQ(code_of([&] { browser->ShowBranches(); }), com_error::unspecified);
    EXPECT_EQ(code_of([&] { browser->MoveToRoot(); }), com_error::unspecified);
}

} // namespace

} // namespace brx::plant
