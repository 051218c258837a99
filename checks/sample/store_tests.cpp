#include "sample/store_stage.h"

#include "host/records.h"

#include <gmock/gmock.h>

#include <functional>

namespace brx::host {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class StoreTests : public StoreCheck {
protected:
    hlxOPCTestPtr found_again(std::int32_t position = 1) {
        kept = opened();
        return kept->servers()->at(1).configurations().at(1)->Tests()->Item(position);
    }
    std::shared_ptr<Configuration> configuration_of(std::int32_t server) {
        return host->servers()->at(server).configurations().at(1);
    }
    static std::vector<std::string> items_of(Configuration& configuration) {
        std::vector<std::string> ids;
        const auto items = resolve<OPCGroup>(configuration.OPCGroup())->OPCItems();
        for (std::int32_t i = 1; i <= items->Count(); ++i) ids.push_back(items->Item(i)->ItemID());
        return ids;
    }

    std::shared_ptr<Host> kept;
    std::shared_ptr<Host> host = opened();
    hlxOPCTestsPtr tests = configuration_of(1)->Tests();
    hlxOPCTestPtr test = tests->Item(std::int32_t{1});
};

/// What the test dialog writes, and how it must read then.
void write_all(hlxOPCTest& test) {
    test.set_State(1);
    test.set_OPCItemID("Capper.Torque");
    test.set_ClientHandle(77);
    test.set_ItemTrigger(true);
    test.set_TriggerExpression(3);
    test.set_TriggerValue(1.5F);
    test.set_Constant(-0.25);
    test.set_SaveAs(2);
}

void expect_all(hlxOPCTest& test) {
    EXPECT_EQ(test.State(), 1);
    EXPECT_EQ(test.OPCItemID(), "Capper.Torque");
    EXPECT_EQ(test.ItemText(), "Capper.Torque");
    EXPECT_EQ(test.ClientHandle(), 77);
    EXPECT_TRUE(test.ItemTrigger());
    EXPECT_EQ(test.TriggerExpression(), 3);
    EXPECT_EQ(test.TriggerValue(), Variant(1.5F));
    EXPECT_EQ(test.Constant(), -0.25);
    EXPECT_EQ(test.SaveAs(), 2);
}

TEST_F(StoreTests, EverythingWrittenIsReadAtOnceAndAfterARestart) {
    const auto added = tests->Add();
    EXPECT_EQ(added->State(), 0);
    EXPECT_EQ(added->OPCItemID(), "");
    EXPECT_EQ(added->CharacteristicName(), "");
    EXPECT_EQ(added->Index(), 3);
    write_all(*added);
    expect_all(*added);
    expect_all(*found_again(3));
}

TEST_F(StoreTests, AWriteThatFailsChangesNothing) {
    fill_the_disk(*host, "UPDATE ON test");
    const std::function<void()> writes[] = {[&] { test->set_State(2); },
                                            [&] { test->set_OPCItemID("x"); },
                                            [&] { test->set_ClientHandle(1); },
                                            [&] { test->set_ItemTrigger(true); },
                                            [&] { test->set_TriggerExpression(1); },
                                            [&] { test->set_TriggerValue(true); },
                                            [&] { test->set_Constant(1); },
                                            [&] { test->set_SaveAs(1); }};
    for (const auto& write : writes) EXPECT_EQ(error_of(write), database_error);
    const auto data = resolve<hlxTestData>(test->TestData());
    data->set_ID(104);
    EXPECT_EQ(error_of([&] { data->Save(host->database()); }), database_error);
    for (const hlxOPCTestPtr& each : {test, found_again()}) {
        EXPECT_EQ(each->State(), 1);
        EXPECT_EQ(each->OPCItemID(), "Filler.Head 1.Weight");
        EXPECT_EQ(each->ClientHandle(), 0);
        EXPECT_FALSE(each->ItemTrigger());
        EXPECT_EQ(each->TriggerExpression(), 0);
        EXPECT_EQ(each->TriggerValue(), Variant(Empty{}));
        EXPECT_EQ(each->Constant(), 0);
        EXPECT_EQ(each->SaveAs(), 0);
        EXPECT_EQ(each->CharacteristicName(), "Fill weight");
    }
}

TEST_F(StoreTests, CodesThatDoNotExistAreRefused) {
    EXPECT_EQ(error_of([&] { test->set_SaveAs(4); }), error::invalid_procedure_call);
    EXPECT_EQ(error_of([&] { test->set_TriggerExpression(7); }), error::invalid_procedure_call);
    EXPECT_EQ(test->SaveAs(), 0);
}

TEST_F(StoreTests, TheirCharacteristicIsSavedThroughItsRecord) {
    const auto data = resolve<hlxTestData>(test->TestData());
    EXPECT_EQ(data->ID(), 101);
    EXPECT_EQ(data->GroupID(), 1);
    EXPECT_EQ(data->Name(), "Fill weight");
    data->set_ID(111);
    EXPECT_EQ(test->CharacteristicName(), "Fill weight");
    data->set_Flag(0);
    data->set_Mode(1);
    data->Save(host->database());
    EXPECT_EQ(test->CharacteristicName(), "Cap torque");
    EXPECT_EQ(found_again()->CharacteristicName(), "Cap torque");
    EXPECT_EQ(resolve<hlxTestData>(found_again()->TestData())->GroupID(), 2);
    data->set_ID(0);
    data->Save(host->database());
    EXPECT_EQ(found_again()->CharacteristicName(), "");
}

TEST_F(StoreTests, ACharacteristicThatDoesNotExistIsRefused) {
    const auto data = resolve<hlxTestData>(test->TestData());
    for (const std::int32_t no_characteristic : {9999, 201}) {
        data->set_ID(no_characteristic);
        EXPECT_EQ(error_of([&] { data->Save(host->database()); }), error::invalid_procedure_call);
    }
    EXPECT_EQ(test->CharacteristicName(), "Fill weight");
}

TEST_F(StoreTests, AreNumberedFromOneAndKnowTheirConfiguration) {
    EXPECT_EQ(tests->Count(), 2);
    EXPECT_EQ(tests->Item(std::int16_t{2})->CharacteristicName(), "Fill volume");
    EXPECT_EQ(tests->Item(2.0)->Index(), 2);
    EXPECT_EQ(error_of([&] { tests->Item(std::int32_t{3}); }), error::subscript_out_of_range);
    EXPECT_EQ(error_of([&] { tests->Item(std::string("1")); }), error::type_mismatch);
    EXPECT_EQ(test->Parent()->Parent()->Name(), "Filler head 1");
}

TEST_F(StoreTests, OneThatIsRemovedIsGoneForGood) {
    tests->Remove(1);
    EXPECT_EQ(tests->Count(), 1);
    EXPECT_EQ(test->Parent(), nullptr);
    EXPECT_EQ(test->Index(), 0);
    EXPECT_EQ(error_of([&] { test->set_Constant(1); }), database_error);
    EXPECT_EQ(found_again()->CharacteristicName(), "Fill volume");
    EXPECT_EQ(error_of([&] { tests->Remove(2); }), error::subscript_out_of_range);
}

TEST_F(StoreTests, OneThatCannotBeStoredOrRemovedChangesNothing) {
    fill_the_disk(*host, "INSERT ON test");
    EXPECT_EQ(error_of([&] { tests->Add(); }), database_error);
    host->database()->file().run("DROP TRIGGER full");
    fill_the_disk(*host, "DELETE ON test");
    EXPECT_EQ(error_of([&] { tests->Remove(1); }), database_error);
    EXPECT_EQ(tests->Count(), 2);
    EXPECT_EQ(test->Index(), 1);
    EXPECT_EQ(found_again()->CharacteristicName(), "Fill weight");
}

TEST_F(StoreTests, ThereIsNoGroupWithoutAConnection) {
    EXPECT_EQ(configuration_of(1)->OPCGroup(), nullptr);
    EXPECT_EQ(test->State(), 1);
}

TEST_F(StoreTests, TheGroupHoldsTheItemsOfTestsTriggersAndDescriptors) {
    configuration_of(1)->set_SubgroupTriggerItem("Running");
    configuration_of(1)->Descriptors()->Add(5)->set_GroupName("(%Operator)");
    host->servers()->connect_all();
    EXPECT_THAT(items_of(*configuration_of(1)),
                ElementsAre("Filler.Head 1.Ready", "Filler.Head 1.Volume", "Filler.Head 1.Weight",
                            "Labeller.Batch", "Operator", "Running"));
    EXPECT_EQ(test->State(), 1);
    EXPECT_NE(test->ClientHandle(), 0);
    EXPECT_NE(test->ClientHandle(), tests->Item(std::int32_t{2})->ClientHandle());
    const auto group = resolve<OPCGroup>(configuration_of(1)->OPCGroup());
    EXPECT_EQ(group->Name(), "Configuration 1");
    EXPECT_EQ(group->Parent(), resolve<OPCServer>(host->servers()->at(1).OPCServer()));
}

TEST_F(StoreTests, AnItemThatCannotBeAddedGivesItsTestStateTwo) {
    host->servers()->connect(2);
    const auto bottles = configuration_of(2)->Tests();
    EXPECT_EQ(bottles->Item(std::int32_t{1})->State(), 1);
    EXPECT_EQ(bottles->Item(std::int32_t{2})->State(), 2);
    EXPECT_EQ(bottles->Item(std::int32_t{2})->ClientHandle(), 0);
    EXPECT_THAT(items_of(*configuration_of(2)), ElementsAre("Bottle.Weight"));
    EXPECT_THAT(log.line(log.count() - 1), HasSubstr("Tank C.Temperature could not be added"));
    bottles->Item(std::int32_t{2})->set_OPCItemID("Tank A.Temperature");
    host->servers()->connect(2);
    EXPECT_EQ(bottles->Item(std::int32_t{2})->State(), 1);
}

TEST_F(StoreTests, ConnectingAgainMakesTheGroupAnew) {
    host->servers()->connect(1);
    const auto before = resolve<OPCGroup>(configuration_of(1)->OPCGroup());
    host->servers()->connect(1);
    EXPECT_THROW(before->Name(), Error);
    EXPECT_EQ(items_of(*configuration_of(1)).size(), 4U);
}

TEST_F(StoreTests, AfterADialogTheGroupHoldsWhatIsNeededFromNowOn) {
    host->servers()->connect(1);
    tests->Item(std::int32_t{2})->set_OPCItemID("Capper.Torque");
    host->servers()->at(1).configurations().settle(1);
    EXPECT_THAT(items_of(*configuration_of(1)), ElementsAre("Capper.Torque", "Filler.Head 1.Ready",
                                                            "Filler.Head 1.Weight", "Labeller.Batch"));
    EXPECT_EQ(resolve<OPCServer>(host->servers()->at(1).OPCServer())->OPCGroups()->Count(), 1);
}

TEST_F(StoreTests, ValuesOfItemsAreReadAsFarAsTheyAreGood) {
    const auto configuration = configuration_of(1);
    const auto trouble = [&](const std::string& item) {
        const ItemReading reading = configuration->reading_of(item);
        EXPECT_NE(reading.value.has_value(), !reading.trouble.empty());
        return reading.trouble;
    };
    EXPECT_EQ(trouble("Filler.Head 1.Weight"), "not connected");
    host->servers()->connect(1);
    EXPECT_EQ(trouble("Filler.Head 1.Weight"), "");
    EXPECT_EQ(vartype(*configuration->reading_of("Filler.Head 1.Weight").value), 4);
    EXPECT_THAT(trouble("Running"), StartsWith("not in the group"));
    resolve<OPCGroup>(configuration->OPCGroup())
        ->OPCItems()
        ->Item(std::string("Filler.Head 1.Weight"))
        ->set_IsActive(false);
    EXPECT_EQ(trouble("Filler.Head 1.Weight"), "bad, out of service");
}

} // namespace

} // namespace brx::host
