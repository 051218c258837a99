#include "plant/test_bench.h"
#include "sample/plant_reading.h"
#include "sample/plant_stage.h"

#include <gmock/gmock.h>

#include <set>

namespace brx::plant {

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using namespace std::chrono_literals;

class PlantTestBench : public PlantCheck {
protected:
    OPCBrowserPtr browser_of(const std::string& name) {
        server = connected("Simulation." + name + ".1", "TESTBENCH");
        return server->CreateBrowser();
    }
    static StringArray path(std::vector<std::string> names) { return {std::move(names), 0}; }
    std::uint32_t objection(const std::string& item_id) {
        const auto group = server->groups()->make("");
        return static_cast<std::uint32_t>(
            group->items()->Validate({{item_id}}, std::nullopt, std::nullopt).at(1));
    }

    std::shared_ptr<Server> server;
};

TEST_F(PlantTestBench, HasAServerForEachWayToBeDifficult) {
    const Variant found = plant->make_server()->GetOPCServers("testbench");
    EXPECT_EQ(std::get<StringArray>(found).elements.size(), test_bench().size());
    for (const std::string& name : std::get<StringArray>(found).elements)
        EXPECT_EQ(connected(name, "TESTBENCH")->VendorInfo().rfind("Test bench: ", 0), 0U) << name;
}

TEST_F(PlantTestBench, OneServerCannotBeBrowsedButHasItems) {
    EXPECT_EQ(code_of([&] { browser_of("NoBrowser"); }), com_error::unspecified);
    EXPECT_EQ(objection("[gauge1]Thickness"), 0U);
    EXPECT_EQ(objection("[gauge3]Thickness"), opc_error::unknown_item_id);
}

TEST_F(PlantTestBench, OneServerHasNothingAndOneLeavesOnly) {
    const auto empty = browser_of("EmptyRoot");
    EXPECT_EQ(empty->Organization(), 1);
    EXPECT_THAT(branches(empty), IsEmpty());
    EXPECT_THAT(leaves(empty, true), IsEmpty());
    const auto leaves_only = browser_of("LeavesOnly");
    EXPECT_EQ(leaves_only->Organization(), 1);
    EXPECT_THAT(branches(leaves_only), IsEmpty());
    EXPECT_THAT(leaves(leaves_only), ElementsAre("Diameter", "Roundness", "Part number"));
}

TEST_F(PlantTestBench, OneServerHasBranchesOnlyAtItsRoot) {
    const auto browser = browser_of("BranchesOnly");
    EXPECT_THAT(leaves(browser), IsEmpty());
    EXPECT_THAT(branches(browser), ElementsAre("Station 1", "Station 2", "Station 3"));
    browser->MoveTo(path({"Station 1"}));
    EXPECT_THAT(leaves(browser), IsEmpty());
    EXPECT_THAT(branches(browser), ElementsAre("Gauge"));
    browser->MoveTo(path({"Station 3"}));
    EXPECT_THAT(leaves(browser), IsEmpty());
    EXPECT_THAT(branches(browser), IsEmpty());
}

TEST_F(PlantTestBench, OneServerIsSixBranchesDeep) {
    const auto browser = browser_of("Deep");
    browser->MoveTo(path({"Works", "Hall 2", "Line 4", "Machine 7", "Spindle", "Drive"}));
    EXPECT_THAT(branches(browser), IsEmpty());
    EXPECT_THAT(leaves(browser), ElementsAre("Torque", "Current"));
    EXPECT_EQ(browser->GetItemID("Torque"), "Works.Hall 2.Line 4.Machine 7.Spindle.Drive.Torque");
}

TEST_F(PlantTestBench, OfTwoBranchesOfOneNameTheFirstIsReached) {
    const auto browser = browser_of("Twins");
    browser->MoveTo(path({"Cooling"}));
    EXPECT_THAT(branches(browser), ElementsAre("Pump", "Pump"));
    EXPECT_THAT(leaves(browser, true), ElementsAre("Cooling.Pump.Speed", "Cooling.Pump.Flow",
                                                   "Cooling.Pump#2.Speed", "Cooling.Pump#2.Pressure"));
    browser->MoveTo(path({"Cooling", "Pump"}));
    EXPECT_THAT(leaves(browser), ElementsAre("Speed", "Flow"));
    EXPECT_EQ(objection("Cooling.Pump#2.Pressure"), 0U);
    browser->MoveTo(path({"Heating", "BURNER"}));
    EXPECT_THAT(leaves(browser), ElementsAre("Starts"));
}

TEST_F(PlantTestBench, EveryUnusualNameIsReadBackAsItIs) {
    const auto browser = browser_of("Names");
    const auto roots = branches(browser);
    EXPECT_THAT(roots, Contains("Rev. 2.1"));
    EXPECT_THAT(roots, Contains("Left\tRight"));
    EXPECT_THAT(roots, Contains(testing::SizeIs(2000)));
    EXPECT_THAT(roots, Contains("תנור 3"));
    EXPECT_THAT(roots, Contains("🔥 Furnace"));
    EXPECT_EQ(std::set(roots.begin(), roots.end()).size(), roots.size());
    browser->MoveTo(path({"Pick & Place"}));
    EXPECT_THAT(leaves(browser), ElementsAre("R&D", "&Speed", "Feed && Hold", "Feed\tRate", "", " padded "));
}

TEST_F(PlantTestBench, EveryItemWithAnUnusualNameCanBeHadByItsIdentifier) {
    const auto browser = browser_of("Names");
    for (const std::string& branch : branches(browser)) {
        browser->MoveTo(path({branch}));
        for (const std::string& leaf : leaves(browser))
            EXPECT_EQ(objection(browser->GetItemID(leaf)), 0U) << browser->GetItemID(leaf);
    }
}

TEST_F(PlantTestBench, AnUnsteadyListLosesItsLastNameWithEveryFifthThatIsRead) {
    const auto browser = browser_of("Unsteady");
    browser->ShowBranches();
    EXPECT_EQ(browser->Count(), 12);
    for (std::int32_t i = 1; i <= 4; ++i) browser->Item(i);
    EXPECT_EQ(browser->Count(), 12);
    EXPECT_EQ(browser->Item(5), "Station 05");
    EXPECT_EQ(browser->Count(), 11);
    for (std::int32_t i = 6; i <= 10; ++i) browser->Item(i);
    EXPECT_EQ(browser->Count(), 10);
    EXPECT_EQ(code_of([&] { browser->Item(11); }), com_error::invalid_argument);
    browser->ShowBranches();
    EXPECT_EQ(browser->Count(), 12);
}

TEST_F(PlantTestBench, EveryFortiethCallOfAFailingBrowserFailsAndTheNextOneWorks) {
    const auto browser = browser_of("Failing");
    for (int round = 0; round < 2; ++round) {
        for (int call = 1; call < 40; ++call) browser->MoveToRoot();
        EXPECT_EQ(code_of([&] { browser->ShowBranches(); }), com_error::unspecified);
        browser->ShowBranches();
        for (int call = 2; call < 40; ++call) browser->Item(1);
        EXPECT_EQ(code_of([&] { browser->Item(1); }), com_error::unspecified);
    }
}

TEST_F(PlantTestBench, EveryCallOfASlowBrowserTakesItsTime) {
    const auto browser = browser_of("Slow");
    const auto before = clock->waited();
    EXPECT_EQ(branches(browser).size(), 12U);
    EXPECT_EQ(clock->waited() - before, 14 * 60ms);
}

TEST_F(PlantTestBench, TheLargeSpaceHasAHundredThousandDifferentLeaves) {
    const auto browser = browser_of("Large");
    EXPECT_EQ(browser->Organization(), 2);
    const auto names = leaves(browser, true);
    EXPECT_EQ(names.size(), 100'000U);
    EXPECT_EQ(std::set(names.begin(), names.end()).size(), names.size());
    EXPECT_EQ(names.front(), "Area 001.TT-0001");
    EXPECT_EQ(names.back(), "Area 100.TT-1000");
    EXPECT_EQ(objection("Area 077.TT-0512"), 0U);
}

TEST_F(PlantTestBench, TheWideSpaceHasFiveThousandBranchesAtItsRoot) {
    const auto browser = browser_of("Wide");
    const auto names = branches(browser);
    EXPECT_EQ(names.size(), 5000U);
    EXPECT_EQ(std::set(names.begin(), names.end()).size(), names.size());
    browser->MoveTo(path({"Valve 4711"}));
    EXPECT_THAT(branches(browser), ElementsAre("Actuator"));
    EXPECT_THAT(leaves(browser), ElementsAre("Open", "Position"));
    browser->MoveToRoot();
    browser->ShowLeafs(true);
    EXPECT_EQ(browser->Count(), 15'000);
}

TEST_F(PlantTestBench, ASpaceIsBuiltWhenItIsFirstUsedAndNotByConnecting) {
    static int built;
    built = 0;
    static constexpr ServerDescription counting{
        .program_id = "Counting", .vendor = "", .fill = [](AddressSpace&) { ++built; }};
    static constexpr NodeDescription node{.name = "", .servers = {&counting, 1}};
    const auto other = std::make_shared<Plant>(std::span(&node, 1), clock);
    const auto first = other->make_server();
    first->Connect("Counting", "");
    first->groups()->make("");
    EXPECT_EQ(built, 0);
    first->CreateBrowser();
    EXPECT_EQ(built, 1);
    const auto second = other->make_server();
    second->Connect("Counting", "");
    second->groups()->make("")->items()->Validate({{"x"}}, std::nullopt, std::nullopt);
    EXPECT_EQ(built, 1);
}

TEST_F(PlantTestBench, OneServerHasAnItemOfEveryDataType) {
    server = connected("Simulation.Types.1", "TESTBENCH");
    const auto items = server->groups()->make("")->items();
    items->AddItems({{"Numbers.Integer 16 bit", "Numbers.Integer 32 bit", "Numbers.Single", "Numbers.Double",
                      "Numbers.Currency", "Other.Date", "Other.String", "Other.Boolean", "Numbers.Byte"}},
                    {std::vector<std::int32_t>(9)}, std::nullopt, std::nullopt);
    std::vector<int> types;
    std::vector<Variant> first;
    for (std::int32_t i = 1; i <= items->Count(); ++i) {
        const auto item = std::dynamic_pointer_cast<Item>(items->Item(i));
        types.push_back(item->CanonicalDataType());
        first.push_back(item->read().value);
    }
    EXPECT_THAT(types, ElementsAre(2, 3, 4, 5, 6, 7, 8, 11, 17));
    // Each value moves within a minute.
    std::set<std::size_t> moved;
    for (int second = 0; second < 60; ++second) {
        clock->advance(1);
        for (std::size_t i = 0; i < first.size(); ++i) {
            const auto item = std::dynamic_pointer_cast<Item>(items->Item(static_cast<std::int32_t>(i + 1)));
            const Variant now = item->read().value;
            const auto* const before = std::get_if<Opaque>(&first[i]);
            if (before ? std::get<Opaque>(now).text != before->text : now != first[i]) moved.insert(i);
        }
    }
    EXPECT_EQ(moved.size(), first.size());
}

TEST_F(PlantTestBench, OneItemIsValidButCannotBeAdded) {
    browser_of("Types");
    EXPECT_EQ(objection("Trouble.Cannot be added"), 0U);
    const auto items = server->groups()->make("")->items();
    const AddedItems added =
        items->AddItems({{"Trouble.Cannot be added"}}, {{1}}, std::nullopt, std::nullopt);
    EXPECT_EQ(added.Errors.at(1), as_number(opc_error::bad_rights));
    EXPECT_EQ(added.ServerHandles.at(1), 0);
    EXPECT_EQ(items->Count(), 0);
}

TEST_F(PlantTestBench, OneItemDoesNotTellItsDataType) {
    browser_of("Types");
    const auto items = server->groups()->make("")->items();
    items->AddItems({{"Trouble.Type unreadable"}}, {{1}}, std::nullopt, std::nullopt);
    ASSERT_EQ(items->Count(), 1);
    EXPECT_EQ(code_of([&] { items->Item(std::int32_t{1})->CanonicalDataType(); }), opc_error::bad_type);
}

} // namespace

} // namespace brx::plant
