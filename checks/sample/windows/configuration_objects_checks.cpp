#include "sample/windows/objects_stage.h"

#include "adapters/to_com.h"
#include "common/model/database.h"

#include <gmock/gmock.h>

namespace brx::checks {

namespace {

using testing::MatchesRegex;

constexpr std::int32_t first = 1;

/// Configurations, tests and records as a script uses them.
class SampleConfigurations : public ObjectsCheck {
protected:
    void open_again() {
        host = nullptr;
        host = create_by_name(L"brxSample.Host");
        put(host.get(), "DatabaseFile", folder.name_of(L"host.db"));
    }
    com_ptr<IDispatch> configuration() { return get_object(host.get(), "Configuration", {first, first}); }
    com_ptr<IDispatch> test(std::int32_t position) {
        return get_object(get_object(configuration().get(), "Tests").get(), "Item", {position});
    }
    Variant database() { return get(get_object(host.get(), "Application").get(), "Database"); }
    static std::int32_t error_of_calling(IDispatch* object, const std::string& method,
                                         const std::vector<Variant>& arguments) {
        try {
            call(object, method, arguments);
            return 0;
        } catch (const Error& error) {
            return error.number();
        }
    }
    std::int32_t configurations() {
        return std::get<std::int32_t>(get(host.get(), "ConfigurationCount", {first}));
    }
};

TEST_F(SampleConfigurations, WhatIsWrittenIsThereAfterARestart) {
    put(configuration().get(), "PieceTriggerValue", std::int16_t{7});
    put(configuration().get(), "DeadBand", 2.5F);
    const auto added = call(get_object(configuration().get(), "Tests").get(), "Add");
    const auto object = dispatch_of(std::get<ObjectPtr>(added));
    put(object.get(), "OPCItemID", std::string("Capper.Torque"));
    put(object.get(), "TriggerValue", true);
    put(object.get(), "Constant", 1.25);
    const auto data = get_object(object.get(), "TestData");
    put(data.get(), "ID", std::int32_t{111});
    put(data.get(), "Mode", std::int16_t{1});
    call(data.get(), "Save", {database()});
    open_again();
    EXPECT_EQ(get(configuration().get(), "PieceTriggerValue"), Variant(std::int16_t{7}));
    EXPECT_EQ(get(configuration().get(), "DeadBand"), Variant(2.5F));
    EXPECT_EQ(get(test(3).get(), "OPCItemID"), Variant(std::string("Capper.Torque")));
    EXPECT_EQ(get(test(3).get(), "TriggerValue"), Variant(true));
    EXPECT_EQ(get(test(3).get(), "Constant"), Variant(1.25));
    EXPECT_EQ(get(test(3).get(), "CharacteristicName"), Variant(std::string("Cap torque")));
}

TEST_F(SampleConfigurations, TheGroupIsFilledFromTheStart) {
    const auto group = get_object(configuration().get(), "OPCGroup");
    const auto items = get_object(group.get(), "OPCItems");
    EXPECT_EQ(get(items.get(), "Count"), Variant(std::int32_t{4}));
    EXPECT_EQ(get(test(1).get(), "State"), Variant(std::int32_t{1}));
    for (const char* item : {"Filler.Head 1.Weight", "Filler.Head 1.Volume"})
        EXPECT_THAT(std::get<std::string>(get(host.get(), "ItemValue", {first, first, std::string(item)})),
                    MatchesRegex("\\d\\d\\d\\.?\\d?\\d?\\d?\\d?"))
            << item;
    EXPECT_EQ(get(host.get(), "ItemValue", {first, first, std::string("no such item")}),
              Variant(std::string()));
}

TEST_F(SampleConfigurations, ANewOneIsRemovedAgainWhenItsDialogLeavesItWithoutTests) {
    EXPECT_EQ(configurations(), 1);
    call(host.get(), "AddConfiguration", {first});
    EXPECT_EQ(configurations(), 2);
    EXPECT_EQ(call(host.get(), "SettleConfiguration", {first, std::int32_t{2}}), Variant(false));
    EXPECT_EQ(configurations(), 1);
    EXPECT_EQ(call(host.get(), "SettleConfiguration", {first, first}), Variant(true));
    call(host.get(), "RemoveConfiguration", {first, first});
    EXPECT_EQ(configurations(), 0);
}

TEST_F(SampleConfigurations, TellHowMuchADialogHasKept) {
    const auto kept = [&] { return get(host.get(), "KeptSettings", {first, first}); };
    call(host.get(), "HoldConfiguration", {first, first});
    EXPECT_EQ(kept(), Variant(std::int32_t{0}));
    put(configuration().get(), "Name", std::string("Filler"));
    EXPECT_EQ(kept(), Variant(std::int32_t{1}));
    put(configuration().get(), "PieceTriggerValue", Empty{});
    EXPECT_EQ(kept(), Variant(std::int32_t{2}));
    call(host.get(), "HoldConfiguration", {first, first});
    EXPECT_EQ(kept(), Variant(std::int32_t{0}));
}

TEST_F(SampleConfigurations, TellATestsTriggerInWords) {
    const auto trigger = [&] { return get(host.get(), "TriggerText", {first, first, first}); };
    put(test(1).get(), "ItemTrigger", false);
    EXPECT_EQ(trigger(), Variant(std::string()));
    put(test(1).get(), "ItemTrigger", true);
    put(test(1).get(), "TriggerExpression", std::int16_t{1});
    put(test(1).get(), "TriggerValue", Empty{});
    EXPECT_EQ(trigger(), Variant(std::string("If empty")));
    put(test(1).get(), "TriggerValue", 0.5);
    EXPECT_EQ(trigger(), Variant(std::string("= 0.5")));
}

TEST_F(SampleConfigurations, RunWhenAScriptSaysSo) {
    constexpr std::uint16_t doubles = VT_ARRAY | VT_R8;
    put(configuration().get(), "SubgroupInterval", std::int32_t{0});
    put(configuration().get(), "SubgroupSize", std::int32_t{1});
    put(configuration().get(), "PieceTriggerItem", std::string());
    invoke(host.get(), "Running", DISPATCH_PROPERTYPUT, {first, first, true});
    EXPECT_EQ(get(host.get(), "Running", {first, first}), Variant(true));
    const auto subgroups = [&] {
        return std::get<std::int32_t>(get(host.get(), "SubgroupCount", {first, first, first}));
    };
    for (int i = 0; i < 300 && subgroups() == 0; ++i) {
        call(host.get(), "Collect");
        Sleep(100);
    }
    EXPECT_GT(subgroups(), 0);
    const auto text = std::get<std::string>(get(host.get(), "CollectionText", {first, first, first}));
    EXPECT_THAT(text, testing::StartsWith("Running: "));
    EXPECT_EQ(vartype(get(host.get(), "CollectedValues", {first, first, first})), doubles);
    invoke(host.get(), "Running", DISPATCH_PROPERTYPUT, {first, first, false});
    EXPECT_EQ(get(host.get(), "Running", {first, first}), Variant(false));
}

TEST_F(SampleConfigurations, RecordsAreLookedUpByTheClassesOfTheDatabaseLibrary) {
    struct Wanted {
        const wchar_t* name;
        const char* key;
        std::int32_t id;
    };
    for (const Wanted& wanted : {Wanted{L"brxDatabase6.hlxTestGroup", "Filling", 1},
                                 Wanted{L"brxDatabase6.hlxPart", "Bottle 0.5 l", 201},
                                 Wanted{L"brxDatabase6.hlxPartGroup", "Bottles", 11},
                                 Wanted{L"brxDatabase6.hlxProcess", "Forming", 311},
                                 Wanted{L"brxDatabase6.hlxProcessGroup", "Press shop", 22},
                                 Wanted{L"brxDatabase6.hlxJob", "Order 20417", 401},
                                 Wanted{L"brxDatabase6.hlxJobGroup", "Trial runs", 32},
                                 Wanted{L"brxDatabase6.hlxShift", "Sunday", 512},
                                 Wanted{L"brxDatabase6.hlxShiftGroup", "Weekend", 42},
                                 Wanted{L"brxDatabase6.hlxDescriptor", "Hourly", 612},
                                 Wanted{L"brxDatabase6.hlxDescriptorGroup", "Causes", 53}}) {
        const auto record = create_by_name(wanted.name);
        put(record.get(), "Name", std::string(wanted.key));
        put(record.get(), "SearchFlag", std::int16_t{1});
        EXPECT_EQ(call(record.get(), "Load", {database()}), Variant(true)) << wanted.key;
        EXPECT_EQ(get(record.get(), "ID"), Variant(wanted.id));
    }
}

TEST_F(SampleConfigurations, ADatabaseOfSomebodyElseIsRefused) {
    struct Foreign : hlxDatabase {};
    const auto part = create_by_name(L"brxDatabase6.hlxPart");
    const auto picker = create_by_name(L"brxDatabase6.hlxPartSelection");
    const ObjectPtr foreign = std::make_shared<Foreign>();
    EXPECT_EQ(error_of_calling(part.get(), "Load", {foreign}), error::type_mismatch);
    EXPECT_EQ(error_of_calling(part.get(), "Load", {ObjectPtr()}), error::object_not_set);
    EXPECT_EQ(error_of_calling(picker.get(), "Show", {foreign, first, first}), error::type_mismatch);
}

TEST_F(SampleConfigurations, NothingIsLeftWhenAllReferencesAreGone) {
    const auto can_unload = reinterpret_cast<HRESULT(STDAPICALLTYPE*)()>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"brxSample.dll"), "DllCanUnloadNow")));
    {
        const auto part = create_by_name(L"brxDatabase6.hlxPart");
        const auto held = test(1);
        static_cast<void>(get_object(held.get(), "TestData"));
        static_cast<void>(database());
        host = nullptr;
        EXPECT_EQ(can_unload(), S_FALSE);
    }
    EXPECT_EQ(can_unload(), S_OK);
}

} // namespace

} // namespace brx::checks
