#include "sample/store_stage.h"

#include "collect/reference.h"

#include <cmath>
#include <functional>
#include <limits>
#include <vector>

namespace brx::host {

namespace {

class StoreConfigurations : public StoreCheck {
protected:
    /// The first configuration of the first server, as a new start of the host finds it.
    std::shared_ptr<Configuration> found_again() {
        kept = opened();
        return kept->servers()->at(1).configurations().at(1);
    }

    std::shared_ptr<Host> kept;
    std::shared_ptr<Host> host = opened();
    Configurations& configurations = host->servers()->at(1).configurations();
    std::shared_ptr<Configuration> configuration = configurations.at(1);
};

/// A property: how it is written, and what must be read then.
struct Property {
    const char* name;
    std::function<void(hlxOPCConfiguration&)> write;
    std::function<bool(hlxOPCConfiguration&)> is_written;
};

template <class Value, class Get, class Set>
Property property(const char* name, Get get, Set set, const Value& value) {
    return {name, [=](hlxOPCConfiguration& of) { (of.*set)(value); },
            [=](hlxOPCConfiguration& of) { return (of.*get)() == value; }};
}

std::vector<Property> all_properties() {
    using C = hlxOPCConfiguration;
    const auto text = std::string("K\xC3\xB6nig's \"line\"");
    return {
        property("SubgroupSize", &C::SubgroupSize, &C::set_SubgroupSize, std::int32_t{2'000'000'000}),
        property("SubgroupTriggerItem", &C::SubgroupTriggerItem, &C::set_SubgroupTriggerItem, text),
        property("SubgroupInterval", &C::SubgroupInterval, &C::set_SubgroupInterval, std::int32_t{-3}),
        property("SubgroupTimeUnit", &C::SubgroupTimeUnit, &C::set_SubgroupTimeUnit, std::int16_t{-1}),
        property("PieceTriggerItem", &C::PieceTriggerItem, &C::set_PieceTriggerItem, text + "2"),
        property("PieceInterval", &C::PieceInterval, &C::set_PieceInterval, std::int32_t{44}),
        property("PieceTimeUnit", &C::PieceTimeUnit, &C::set_PieceTimeUnit, std::int16_t{7}),
        property("SyncDateTime", &C::SyncDateTime, &C::set_SyncDateTime, Date{45000.123456789}),
        property("SubgroupTriggerType", &C::SubgroupTriggerType, &C::set_SubgroupTriggerType,
                 std::int16_t{6}),
        property("SubgroupTriggerValue", &C::SubgroupTriggerValue, &C::set_SubgroupTriggerValue,
                 Variant(std::int16_t{5})),
        property("PieceTriggerType", &C::PieceTriggerType, &C::set_PieceTriggerType, std::int16_t{2}),
        property("PieceTriggerValue", &C::PieceTriggerValue, &C::set_PieceTriggerValue, Variant(0.1)),
        property("Name", &C::Name, &C::set_Name, text + "3"),
        property("Active", &C::Active, &C::set_Active, false),
        property("DeadBand", &C::DeadBand, &C::set_DeadBand, 0.1F),
        property("UpdateRate", &C::UpdateRate, &C::set_UpdateRate, std::int32_t{250}),
    };
}

TEST_F(StoreConfigurations, EveryPropertyIsReadAtOnceAndAfterARestart) {
    for (const Property& each : all_properties()) {
        EXPECT_FALSE(each.is_written(*configuration)) << each.name;
        each.write(*configuration);
        EXPECT_TRUE(each.is_written(*configuration)) << each.name;
    }
    const auto again = found_again();
    for (const Property& each : all_properties()) EXPECT_TRUE(each.is_written(*again)) << each.name;
}

TEST_F(StoreConfigurations, AWriteThatFailsChangesNothing) {
    fill_the_disk(*host, "UPDATE ON configuration");
    for (const Property& each : all_properties()) {
        EXPECT_EQ(error_of([&] { each.write(*configuration); }), database_error) << each.name;
        EXPECT_FALSE(each.is_written(*configuration)) << each.name;
    }
    const auto again = found_again();
    for (const Property& each : all_properties()) EXPECT_FALSE(each.is_written(*again)) << each.name;
}

/// In the order of the configuration dialog.
TEST_F(StoreConfigurations, KnowHowMuchADialogHasKept) {
    const std::int16_t code = 0;
    configuration->hold();
    EXPECT_EQ(configuration->kept(), Kept::nothing);
    configuration->Tests()->Item(std::int32_t{1})->set_Constant(5);
    configuration->Descriptors()->Remove(1);
    EXPECT_EQ(configuration->kept(), Kept::nothing);
    configuration->set_Name("Filler head 1");
    EXPECT_EQ(configuration->kept(), Kept::some);
    configuration->set_SubgroupTriggerType(code);
    configuration->set_SubgroupTriggerValue(Empty{});
    configuration->set_PieceTriggerType(code);
    EXPECT_EQ(error_of([&] { configuration->set_PieceTriggerValue(Missing{}); }), error::type_mismatch);
    EXPECT_EQ(configuration->kept(), Kept::some);
    configuration->set_PieceTriggerValue(Empty{});
    EXPECT_EQ(configuration->kept(), Kept::all);
    configurations.settle(1);
    EXPECT_EQ(configuration->kept(), Kept::all);
    configuration->hold();
    EXPECT_EQ(configuration->kept(), Kept::nothing);
    fill_the_disk(*host, "UPDATE ON configuration");
    EXPECT_EQ(error_of([&] { configuration->set_Name("x"); }), database_error);
    EXPECT_EQ(configuration->kept(), Kept::nothing);
}

TEST_F(StoreConfigurations, ATriggerValueKeepsItsType) {
    const Variant values[] = {Empty{},
                              Null{},
                              std::int16_t{-7},
                              std::int32_t{100'000},
                              0.1F,
                              0.1,
                              std::numeric_limits<double>::infinity(),
                              Currency{-12'345},
                              Date{45000.5},
                              std::string("5"),
                              std::string(),
                              true,
                              false};
    for (const Variant& value : values) {
        configuration->set_PieceTriggerValue(value);
        EXPECT_EQ(configuration->PieceTriggerValue(), value);
        EXPECT_EQ(found_again()->PieceTriggerValue(), value) << vartype(value);
    }
}

TEST_F(StoreConfigurations, ATriggerValueThatCannotBeKeptIsRefused) {
    const Variant before = configuration->PieceTriggerValue();
    for (const Variant& value : {Variant(ObjectPtr(host)), Variant(Missing{}), Variant(StringArray{}),
                                 Variant(Opaque{17, nullptr, "9"})})
        EXPECT_EQ(error_of([&] { configuration->set_PieceTriggerValue(value); }), error::type_mismatch);
    EXPECT_EQ(error_of([&] { configuration->set_PieceTriggerValue(std::nan("")); }),
              error::invalid_procedure_call);
    EXPECT_EQ(configuration->PieceTriggerValue(), before);
    EXPECT_EQ(found_again()->PieceTriggerValue(), before);
}

TEST_F(StoreConfigurations, CodesThatDoNotExistAreRefused) {
    EXPECT_EQ(error_of([&] { configuration->set_SubgroupTimeUnit(8); }), error::invalid_procedure_call);
    EXPECT_EQ(error_of([&] { configuration->set_PieceTimeUnit(-2); }), error::invalid_procedure_call);
    EXPECT_EQ(error_of([&] { configuration->set_SubgroupTriggerType(7); }), error::invalid_procedure_call);
    EXPECT_EQ(error_of([&] { configuration->set_PieceTriggerType(-1); }), error::invalid_procedure_call);
    EXPECT_EQ(configuration->PieceTriggerType(), 1);
}

TEST_F(StoreConfigurations, BelongToAServerAndLeadToTheDatabase) {
    const auto entry = configuration->Server()->ServerEntry();
    EXPECT_EQ(entry.get(), host->servers()->Item(std::int32_t{1}).get());
    const auto application = resolve<hlxApplication>(resolve<hlxOPCServers>(entry->Parent())->Parent());
    EXPECT_NE(resolve<hlxDatabase>(application->Database()), nullptr);
    EXPECT_EQ(host->servers()->at(2).configurations().at(1)->Name(), "Bottles");
    EXPECT_EQ(host->servers()->at(3).configurations().count(), 0);
}

TEST_F(StoreConfigurations, ANewOneIsTheLastAndHasANameButNoTests) {
    const auto added = configurations.add();
    EXPECT_EQ(configurations.count(), 2);
    EXPECT_EQ(configurations.at(2)->id(), added->id());
    EXPECT_EQ(added->Name(), "Configuration 3");
    EXPECT_TRUE(added->Active());
    EXPECT_EQ(added->UpdateRate(), 1000);
    EXPECT_EQ(added->SubgroupSize(), 5);
    EXPECT_EQ(added->SubgroupTriggerItem(), "");
    EXPECT_EQ(added->PieceTriggerValue(), Variant(Empty{}));
    EXPECT_EQ(added->SyncDateTime().days, std::floor(added->SyncDateTime().days));
    EXPECT_GT(added->SyncDateTime().days, 45000);
    EXPECT_EQ(added->Tests()->Count(), 0);
    EXPECT_EQ(added->Descriptors()->Count(), 0);
    EXPECT_EQ(opened()->servers()->at(1).configurations().at(2)->Name(), "Configuration 3");
}

TEST_F(StoreConfigurations, OneThatCannotBeStoredIsNotAdded) {
    fill_the_disk(*host, "UPDATE ON configuration"); // the second half of adding
    EXPECT_EQ(error_of([&] { configurations.add(); }), database_error);
    EXPECT_EQ(configurations.count(), 1);
    EXPECT_EQ(opened()->servers()->at(1).configurations().count(), 1);
}

TEST_F(StoreConfigurations, OneWithoutTestsIsRemovedOnceItsDialogHasClosed) {
    host->servers()->connect(1);
    configurations.add();
    EXPECT_FALSE(configurations.settle(2));
    EXPECT_EQ(configurations.count(), 1);
    EXPECT_TRUE(configurations.settle(1));
    EXPECT_EQ(configurations.count(), 1);
    EXPECT_EQ(opened()->servers()->at(1).configurations().count(), 1);
    const auto server = resolve<OPCServer>(host->servers()->at(1).OPCServer());
    EXPECT_EQ(server->OPCGroups()->Count(), 1);
}

TEST_F(StoreConfigurations, OneThatCannotBeRemovedStays) {
    fill_the_disk(*host, "DELETE ON configuration");
    EXPECT_EQ(error_of([&] { configurations.remove(1); }), database_error);
    EXPECT_EQ(configurations.count(), 1);
    configuration->set_Name("Still there");
    EXPECT_EQ(found_again()->Name(), "Still there");
}

TEST_F(StoreConfigurations, GoWithTheirServer) {
    host->servers()->remove(1);
    const auto again = opened();
    EXPECT_EQ(again->servers()->at(1).configurations().at(1)->Name(), "Bottles");
    Statement left(again->database()->file(), "SELECT count(*) FROM test WHERE configuration_id = 1");
    ASSERT_TRUE(left.step());
    EXPECT_EQ(left.number(0), 0);
}

TEST_F(StoreConfigurations, ARemovedOneRefusesToBeWritten) {
    const auto test = configuration->Tests()->Item(std::int32_t{1});
    configurations.remove(1);
    EXPECT_EQ(error_of([&] { configuration->set_Name("x"); }), database_error);
    EXPECT_EQ(error_of([&] { test->set_OPCItemID("x"); }), database_error);
    configuration = nullptr;
    EXPECT_EQ(test->Parent(), nullptr);
    EXPECT_EQ(test->Index(), 0);
}

TEST_F(StoreConfigurations, AnyPartThatIsHeldKeepsTheHostAliveAndNothingIsLeftAfterwards) {
    const std::weak_ptr<Host> watched = host;
    auto held = configuration->Tests()->Item(std::int32_t{1});
    host->servers()->connect_all();
    configuration = nullptr;
    host = nullptr;
    EXPECT_EQ(held->Parent()->Parent()->Server()->ServerEntry()->ServerName(), "Simulation.Packing.1");
    EXPECT_FALSE(watched.expired());
    held = nullptr;
    EXPECT_TRUE(watched.expired());
}

TEST_F(StoreConfigurations, DescriptorsAreKeptInOrderWithTypeAndTexts) {
    const auto descriptors = configuration->Descriptors();
    EXPECT_EQ(descriptors->Count(), 3);
    const auto added = descriptors->Add(7);
    added->set_ItemName("(%Filler.Bottles)");
    added->set_GroupName("any");
    EXPECT_EQ(added->Index(), 4);
    descriptors->Remove(2);
    EXPECT_EQ(added->Index(), 3);
    const auto again = found_again()->Descriptors();
    std::string all;
    const auto each = again->NewEnum();
    while (const auto descriptor = each->Next())
        all += std::to_string(descriptor->Type()) + " " + descriptor->ItemName() + " of " +
               descriptor->GroupName() + "; ";
    EXPECT_EQ(all, "0 Bottle 0.5 l of Bottles; 4 Early shift of Weekdays; 7 (%Filler.Bottles) of any; ");
    EXPECT_EQ(error_of([&] { descriptors->Add(9); }), error::invalid_procedure_call);
    EXPECT_EQ(error_of([&] { descriptors->Remove(4); }), error::subscript_out_of_range);
}

TEST_F(StoreConfigurations, ADescriptorThatCannotBeStoredOrRemovedChangesNothing) {
    const auto descriptors = configuration->Descriptors();
    fill_the_disk(*host, "INSERT ON descriptor");
    EXPECT_EQ(error_of([&] { descriptors->Add(8); }), database_error);
    host->database()->file().run("DROP TRIGGER full");
    fill_the_disk(*host, "DELETE ON descriptor");
    EXPECT_EQ(error_of([&] { descriptors->Remove(1); }), database_error);
    host->database()->file().run("DROP TRIGGER full");
    fill_the_disk(*host, "UPDATE ON descriptor");
    EXPECT_EQ(error_of([&] { descriptors->Item(1.0)->set_ItemName("x"); }), database_error);
    EXPECT_EQ(descriptors->Count(), 3);
    EXPECT_EQ(descriptors->Item(std::int32_t{1})->ItemName(), "Bottle 0.5 l");
    EXPECT_EQ(found_again()->Descriptors()->Count(), 3);
}

TEST_F(StoreConfigurations, AReferenceToAnItemStandsBetweenItsSigns) {
    EXPECT_EQ(collect::referred_item("(%Labeller.Batch)"), "Labeller.Batch");
    EXPECT_EQ(collect::referred_item("(%Tank (A).Level)"), "Tank (A).Level");
    EXPECT_EQ(collect::referred_item("Bottle 0.5 l"), "");
    EXPECT_EQ(collect::referred_item("(%Labeller"), "");
    EXPECT_EQ(collect::referred_item(") (%x"), "");
    EXPECT_EQ(collect::referred_item(""), "");
}

} // namespace

} // namespace brx::host
