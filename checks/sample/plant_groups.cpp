#include "sample/plant_stage.h"

#include <gmock/gmock.h>

namespace brx::plant {

namespace {

using testing::ElementsAre;

class PlantGroups : public PlantCheck {
protected:
    static AddedItems add(Items& items, const StringArray& ids) {
        LongArray clients;
        clients.elements.resize(ids.elements.size());
        return items.AddItems(ids, clients, std::nullopt, std::nullopt);
    }
    static std::int32_t error(std::uint32_t code) { return as_number(code); }

    std::shared_ptr<Server> server = connected("Simulation.Packing.1");
    std::shared_ptr<Group> group = server->groups()->make("Weights");
    std::shared_ptr<Items> items = group->items();
};

TEST_F(PlantGroups, AreFoundByPositionFromOneAndByName) {
    server->groups()->make("Second");
    const OPCGroupsPtr groups = server->OPCGroups();
    EXPECT_EQ(groups->Count(), 2);
    EXPECT_EQ(groups->Item(std::int32_t{1})->Name(), "Weights");
    EXPECT_EQ(groups->Item(std::int16_t{2})->Name(), "Second");
    EXPECT_EQ(groups->Item(std::string("Second"))->Name(), "Second");
    for (const Variant& wrong : {Variant(std::int32_t{0}), Variant(std::int32_t{3}),
                                 Variant(std::string("second")), Variant(1.0), Variant(Empty{})})
        EXPECT_EQ(code_of([&] { groups->Item(wrong); }), com_error::invalid_argument);
}

TEST_F(PlantGroups, AreAddedAndRemovedByWhoeverHoldsTheirCollection) {
    const OPCGroupsPtr groups = server->OPCGroups();
    const OPCGroupPtr named = groups->Add("Volumes");
    const OPCGroupPtr nameless = groups->Add(std::nullopt);
    EXPECT_EQ(named->Name(), "Volumes");
    EXPECT_NE(nameless->Name(), "");
    EXPECT_EQ(groups->Count(), 3);
    groups->Remove(std::string("Volumes"));
    groups->Remove(group->ServerHandle());
    EXPECT_EQ(groups->Count(), 1);
    EXPECT_EQ(groups->Item(std::int32_t{1})->Name(), nameless->Name());
    for (const Variant& wrong : {Variant(std::int32_t{999}), Variant(std::string("volumes")),
                                 Variant(std::int16_t{1}), Variant(Empty{})})
        EXPECT_EQ(code_of([&] { groups->Remove(wrong); }), com_error::invalid_argument);
    groups->RemoveAll();
    EXPECT_EQ(groups->Count(), 0);
    EXPECT_EQ(code_of([&] { nameless->Name(); }), com_error::unspecified);
}

TEST_F(PlantGroups, GetANameOfTheServersChoosingAndNeverTheSameTwice) {
    EXPECT_FALSE(server->groups()->make("")->Name().empty());
    EXPECT_EQ(code_of([&] { server->groups()->make("Weights"); }), opc_error::duplicate_name);
}

TEST_F(PlantGroups, KnowTheirServerAndKeepItAlive) {
    const OPCGroupPtr held = server->OPCGroups()->Item(std::int32_t{1});
    EXPECT_EQ(held->Parent(), server);
    group = nullptr;
    items = nullptr;
    server = nullptr;
    EXPECT_EQ(held->Parent()->ServerName(), "Simulation.Packing.1");
}

TEST_F(PlantGroups, LeaveNothingBehindWhenNobodyHoldsThem) {
    const std::weak_ptr<Server> watched = server;
    add(*items, {{"Running"}});
    group = nullptr;
    items = nullptr;
    server = nullptr;
    EXPECT_TRUE(watched.expired());
}

TEST_F(PlantGroups, FailOnceTheyAreRemoved) {
    add(*items, {{"Running"}});
    const OPCItemPtr item = items->Item(std::int32_t{1});
    server->groups()->Remove(std::string("Weights"));
    EXPECT_EQ(server->OPCGroups()->Count(), 0);
    EXPECT_EQ(code_of([&] { group->Name(); }), com_error::unspecified);
    EXPECT_EQ(code_of([&] { group->Parent(); }), com_error::unspecified);
    EXPECT_EQ(code_of([&] { group->OPCItems(); }), com_error::unspecified);
    EXPECT_EQ(code_of([&] { items->Count(); }), com_error::unspecified);
    EXPECT_EQ(code_of([&] { item->ItemID(); }), com_error::unspecified);
}

TEST_F(PlantGroups, GoWithTheConnection) {
    server->Disconnect();
    EXPECT_EQ(server->OPCGroups()->Count(), 0);
    EXPECT_EQ(code_of([&] { group->Name(); }), com_error::unspecified);
}

TEST_F(PlantGroups, ItemsAreAddedOneByOneAndRefusedOneByOne) {
    const AddedItems added =
        items->AddItems({{"Filler.Head 1.Weight", "Filler.Head 9.Weight", "", "Running"}}, {{7, 8, 9, 10}},
                        std::nullopt, std::nullopt);
    EXPECT_THAT(added.Errors.elements,
                ElementsAre(0, error(opc_error::unknown_item_id), error(opc_error::invalid_item_id), 0));
    EXPECT_EQ(added.Errors.lower_bound, 1);
    EXPECT_NE(added.ServerHandles.at(1), 0);
    EXPECT_EQ(added.ServerHandles.at(2), 0);
    EXPECT_EQ(added.ServerHandles.at(3), 0);
    EXPECT_NE(added.ServerHandles.at(4), added.ServerHandles.at(1));
    EXPECT_EQ(items->Count(), 2);
    EXPECT_EQ(items->Item(std::int32_t{1})->ItemID(), "Filler.Head 1.Weight");
    EXPECT_EQ(items->Item(std::string("Running"))->ItemID(), "Running");
    EXPECT_EQ(items->by_handle(added.ServerHandles.at(4))->ClientHandle(), 10);
}

TEST_F(PlantGroups, ItemIdentifiersAreComparedExactly) {
    EXPECT_EQ(add(*items, {{"running"}}).Errors.at(1), error(opc_error::unknown_item_id));
}

TEST_F(PlantGroups, ItemsAreRefusedForAPathOrADataTypeThatTheServerLacks) {
    const StringArray weight{{"Filler.Head 1.Weight"}};
    EXPECT_EQ(items->Validate(weight, ShortArray{{0}}, StringArray{{""}}).at(1), 0);
    EXPECT_EQ(items->Validate(weight, ShortArray{{5}}, std::nullopt).at(1), 0);
    EXPECT_EQ(items->Validate(weight, ShortArray{{8}}, std::nullopt).at(1), 0);
    EXPECT_EQ(items->Validate(weight, ShortArray{{11}}, std::nullopt).at(1), error(opc_error::bad_type));
    EXPECT_EQ(items->Validate(weight, std::nullopt, StringArray{{"COM1"}}).at(1),
              error(opc_error::unknown_path));
}

TEST_F(PlantGroups, ValidatingAddsNothing) {
    EXPECT_THAT(items->Validate({{"Running", "Nothing"}}, std::nullopt, std::nullopt).elements,
                ElementsAre(0, error(opc_error::unknown_item_id)));
    EXPECT_EQ(items->Count(), 0);
}

TEST_F(PlantGroups, ArraysThatAreTooShortAreAnInvalidArgument) {
    EXPECT_EQ(code_of([&] { items->AddItems({{"Running"}}, {}, std::nullopt, std::nullopt); }),
              com_error::invalid_argument);
    EXPECT_EQ(code_of([&] { items->Validate({{"Running"}}, ShortArray{}, std::nullopt); }),
              com_error::invalid_argument);
    EXPECT_EQ(code_of([&] { items->Validate({{"Running"}}, std::nullopt, StringArray{}); }),
              com_error::invalid_argument);
}

TEST_F(PlantGroups, ItemsAreRemovedByTheirHandles) {
    const AddedItems added = add(*items, {{"Running", "Operator"}});
    const OPCItemPtr running = items->Item(std::int32_t{1});
    EXPECT_THAT(items->Remove({{0, added.ServerHandles.at(1), 99}}).elements,
                ElementsAre(error(opc_error::invalid_handle), 0, error(opc_error::invalid_handle)));
    EXPECT_EQ(items->Count(), 1);
    EXPECT_EQ(items->Item(std::int32_t{1})->ItemID(), "Operator");
    EXPECT_EQ(code_of([&] { running->ItemID(); }), com_error::unspecified);
}

TEST_F(PlantGroups, ItemsTellTheirDataTypeAndCanBeSwitchedOff) {
    add(*items, {{"Filler.Head 1.Weight", "Filler.Speed", "Filler.Bottles", "Filler.Head 1.Volume",
                  "Labeller.Price", "Labeller.Printed", "Operator", "Running"}});
    std::vector<int> types;
    for (std::int32_t i = 1; i <= items->Count(); ++i) types.push_back(items->Item(i)->CanonicalDataType());
    EXPECT_THAT(types, ElementsAre(4, 2, 3, 5, 6, 7, 8, 11));
    const OPCItemPtr item = items->Item(std::int32_t{1});
    EXPECT_TRUE(item->IsActive());
    item->set_IsActive(false);
    EXPECT_FALSE(items->Item(std::int32_t{1})->IsActive());
}

} // namespace

} // namespace brx::plant
