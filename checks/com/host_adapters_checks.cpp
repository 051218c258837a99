#include "com/host_doubles.h"
#include "com/opc_doubles.h"
#include "com/owned_variant.h"
#include "com/round_trip.h"

#include <gmock/gmock.h>

// Every member of the host's objects, there and back.

namespace brx::checks {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class HostAdapterTest : public AdapterTest {
protected:
    std::shared_ptr<DoubleOf<hlxOPCServer>> server_named(const std::string& name) {
        auto server = make<hlxOPCServer>();
        server->answers["ServerName"] = name;
        return server;
    }
    std::shared_ptr<DoubleOf<OPCServer>> connection_named(const std::string& name) {
        auto connection = make<OPCServer>();
        connection->answers["ServerName"] = name;
        return connection;
    }
};

TEST_F(HostAdapterTest, PassTheApplicationOn) {
    const auto application = make<hlxApplication>();
    application->answers["Database"] = ObjectPtr(make<hlxDatabase>());
    const std::vector members{get("Database", &hlxApplication::Database)};
    check_members(application, members);
    EXPECT_THAT(members_beside("_hlxApplication", members), IsEmpty());
}

TEST_F(HostAdapterTest, PassTheServersOn) {
    const auto servers = make<hlxOPCServers>();
    servers->answers = {{"Parent", ObjectPtr(make<hlxApplication>())},
                        {"Add", ObjectPtr(server_named(unusual_text))},
                        {"LastError", unusual_text},
                        {"Item", ObjectPtr(server_named("Sim.2"))},
                        {"Count", std::int32_t{2147483647}}};
    const std::vector members{
        get("Parent", &hlxOPCServers::Parent),
        method("Add", &hlxOPCServers::Add, unusual_text, std::string("PC7"), true),
        get("LastError", &hlxOPCServers::LastError),
        get("Item", &hlxOPCServers::Item, Variant(two)),
        get("Count", &hlxOPCServers::Count),
    };
    check_members(servers, members);
    EXPECT_THAT(members_beside("_hlxOPCServers", members), IsEmpty());
    servers->answers["Add"] = ObjectPtr();
    check_members(servers, {members[1]});
}

TEST_F(HostAdapterTest, PassAServerOn) {
    const auto server = server_named(unusual_text);
    const auto servers = make<hlxOPCServers>();
    servers->answers["LastError"] = std::string("whose parent");
    server->answers["Node"] = std::string();
    server->answers["Parent"] = ObjectPtr(servers);
    server->answers["OPCServer"] = ObjectPtr(connection_named("Matrix"));
    const std::vector members{
        get("ServerName", &hlxOPCServer::ServerName),
        get("Node", &hlxOPCServer::Node),
        get("Parent", &hlxOPCServer::Parent),
        get("OPCServer", &hlxOPCServer::OPCServer),
    };
    check_members(server, members);
    EXPECT_THAT(members_beside("_hlxOPCServer", members), IsEmpty());
    server->answers["OPCServer"] = ObjectPtr();
    check_members(server, {members[3]});
}

TEST_F(HostAdapterTest, PassAServerHolderOn) {
    const auto holder = make<hlxOPCServerHolder>();
    holder->answers["ServerEntry"] = ObjectPtr(server_named("Matrix"));
    const std::vector members{get("ServerEntry", &hlxOPCServerHolder::ServerEntry)};
    check_members(holder, members);
    EXPECT_THAT(members_beside("_hlxOPCServerHolder", members), IsEmpty());
}

TEST_F(HostAdapterTest, PassAConfigurationOn) {
    using Model = hlxOPCConfiguration;
    const auto group = make<OPCGroup>();
    group->answers["Name"] = std::string("Line 3");
    const auto descriptors = make<hlxOPCDescriptors>();
    descriptors->answers["Count"] = two;
    const auto tests = make<hlxOPCTests>();
    tests->answers["Count"] = two;
    const auto configuration = make<Model>();
    configuration->answers = {{"Server", ObjectPtr(make<hlxOPCServerHolder>())},
                              {"OPCGroup", ObjectPtr(group)},
                              {"Descriptors", ObjectPtr(descriptors)},
                              {"Tests", ObjectPtr(tests)}};
    const std::vector members{
        get("Server", &Model::Server),
        get("OPCGroup", &Model::OPCGroup),
        get("Descriptors", &Model::Descriptors),
        get("Tests", &Model::Tests),
        put("SubgroupSize", &Model::set_SubgroupSize, std::int32_t{-2147483647}),
        get("SubgroupSize", &Model::SubgroupSize),
        put("SubgroupTriggerItem", &Model::set_SubgroupTriggerItem, unusual_text),
        get("SubgroupTriggerItem", &Model::SubgroupTriggerItem),
        put("SubgroupInterval", &Model::set_SubgroupInterval, std::int32_t{90}),
        get("SubgroupInterval", &Model::SubgroupInterval),
        put("SubgroupTimeUnit", &Model::set_SubgroupTimeUnit, std::int16_t{-1}),
        get("SubgroupTimeUnit", &Model::SubgroupTimeUnit),
        put("PieceTriggerItem", &Model::set_PieceTriggerItem, std::string("[mytopic]myitem")),
        get("PieceTriggerItem", &Model::PieceTriggerItem),
        put("PieceInterval", &Model::set_PieceInterval, std::int32_t{91}),
        get("PieceInterval", &Model::PieceInterval),
        put("PieceTimeUnit", &Model::set_PieceTimeUnit, std::int16_t{7}),
        get("PieceTimeUnit", &Model::PieceTimeUnit),
        put("SyncDateTime", &Model::set_SyncDateTime, Date{46000.123456789}),
        get("SyncDateTime", &Model::SyncDateTime),
        put("SubgroupTriggerType", &Model::set_SubgroupTriggerType, std::int16_t{3}),
        get("SubgroupTriggerType", &Model::SubgroupTriggerType),
        put("SubgroupTriggerValue", &Model::set_SubgroupTriggerValue, Variant(3.5f)),
        get("SubgroupTriggerValue", &Model::SubgroupTriggerValue),
        put("PieceTriggerType", &Model::set_PieceTriggerType, std::int16_t{6}),
        get("PieceTriggerType", &Model::PieceTriggerType),
        put("PieceTriggerValue", &Model::set_PieceTriggerValue, Variant(unusual_text)),
        get("PieceTriggerValue", &Model::PieceTriggerValue),
        put("Name", &Model::set_Name, unusual_text),
        get("Name", &Model::Name),
        put("Active", &Model::set_Active, true),
        get("Active", &Model::Active),
        put("DeadBand", &Model::set_DeadBand, 0.1f),
        get("DeadBand", &Model::DeadBand),
        put("UpdateRate", &Model::set_UpdateRate, std::int32_t{1000}),
        get("UpdateRate", &Model::UpdateRate),
    };
    check_members(configuration, members);
    EXPECT_THAT(members_beside("_hlxOPCConfiguration", members), IsEmpty());
}

TEST_F(HostAdapterTest, PassTestsOn) {
    const auto test = make<hlxOPCTest>();
    test->answers["CharacteristicName"] = std::string("Diameter");
    const auto configuration = make<hlxOPCConfiguration>();
    configuration->answers["Name"] = std::string("Line 3");
    const auto tests = make<hlxOPCTests>();
    tests->answers = {{"Add", ObjectPtr(test)},
                      {"Item", ObjectPtr(test)},
                      {"Count", two},
                      {"Parent", ObjectPtr(configuration)}};
    const std::vector members{
        method("Add", &hlxOPCTests::Add),    get("Item", &hlxOPCTests::Item, Variant(two)),
        get("Count", &hlxOPCTests::Count),   method("Remove", &hlxOPCTests::Remove, two),
        get("Parent", &hlxOPCTests::Parent),
    };
    check_members(tests, members);
    EXPECT_THAT(members_beside("_hlxOPCTests", members), IsEmpty());
}

TEST_F(HostAdapterTest, PassATestOn) {
    using Model = hlxOPCTest;
    const auto tests = make<hlxOPCTests>();
    tests->answers["Count"] = two;
    const auto data = make<hlxTestData>();
    data->answers["Name"] = std::string("Diameter");
    const auto test = make<Model>();
    test->answers = {{"Parent", ObjectPtr(tests)},
                     {"Index", two},
                     {"TestData", ObjectPtr(data)},
                     {"ItemText", std::string("shown")},
                     {"CharacteristicName", unusual_text}};
    const std::vector members{
        put("State", &Model::set_State, std::int32_t{1}),
        get("State", &Model::State),
        get("Parent", &Model::Parent),
        get("Index", &Model::Index),
        get("TestData", &Model::TestData),
        put("OPCItemID", &Model::set_OPCItemID, unusual_text),
        get("OPCItemID", &Model::OPCItemID),
        get("ItemText", &Model::ItemText),
        put("ClientHandle", &Model::set_ClientHandle, std::int32_t{-7}),
        get("ClientHandle", &Model::ClientHandle),
        put("ItemTrigger", &Model::set_ItemTrigger, true),
        get("ItemTrigger", &Model::ItemTrigger),
        put("TriggerExpression", &Model::set_TriggerExpression, std::int16_t{5}),
        get("TriggerExpression", &Model::TriggerExpression),
        put("TriggerValue", &Model::set_TriggerValue, Variant(std::int16_t{12})),
        get("TriggerValue", &Model::TriggerValue),
        put("Constant", &Model::set_Constant, -1.0 / 3.0),
        get("Constant", &Model::Constant),
        put("SaveAs", &Model::set_SaveAs, std::int16_t{3}),
        get("SaveAs", &Model::SaveAs),
        get("CharacteristicName", &Model::CharacteristicName),
    };
    check_members(test, members);
    EXPECT_THAT(members_beside("_hlxOPCTest", members), IsEmpty());
}

class DescriptorAdapterTest : public AdapterTest {
protected:
    std::shared_ptr<DoubleOf<hlxOPCDescriptor>> descriptor_of(const std::string& item) {
        auto descriptor = make<hlxOPCDescriptor>();
        descriptor->answers["ItemName"] = item;
        return descriptor;
    }
};

TEST_F(DescriptorAdapterTest, PassADescriptorOn) {
    using Model = hlxOPCDescriptor;
    const auto descriptor = make<Model>();
    descriptor->answers = {{"Index", two}, {"Type", std::int32_t{8}}};
    const std::vector members{
        get("Index", &Model::Index),
        get("Type", &Model::Type),
        put("ItemName", &Model::set_ItemName, unusual_text),
        get("ItemName", &Model::ItemName),
        put("GroupName", &Model::set_GroupName, std::string()),
        get("GroupName", &Model::GroupName),
    };
    check_members(descriptor, members);
    EXPECT_THAT(members_beside("_hlxOPCDescriptor", members), IsEmpty());
}

TEST_F(DescriptorAdapterTest, PassDescriptorsOn) {
    const auto descriptors = make<hlxOPCDescriptors>();
    descriptors->answers = {{"Add", ObjectPtr(descriptor_of("new"))},
                            {"Item", ObjectPtr(descriptor_of("second"))},
                            {"Count", two}};
    const std::vector members{
        method("Add", &hlxOPCDescriptors::Add, std::int32_t{5}),
        get("Item", &hlxOPCDescriptors::Item, Variant(two)),
        get("Count", &hlxOPCDescriptors::Count),
        method("Remove", &hlxOPCDescriptors::Remove, two),
    };
    check_members(descriptors, members);
    EXPECT_THAT(members_beside("_hlxOPCDescriptors", members), ElementsAre("get _NewEnum"));
}

TEST_F(DescriptorAdapterTest, EnumerateOneByOne) {
    const auto descriptors = make<hlxOPCDescriptors>();
    descriptors->elements = {descriptor_of("first"), descriptor_of("second")};
    const auto through = from_com<hlxOPCDescriptors>(to_com<hlxOPCDescriptors>(descriptors));

    const auto each = through->NewEnum();
    EXPECT_EQ(each->Next()->ItemName(), "first");
    EXPECT_THAT(descriptors->take_calls(), ElementsAre("NewEnum", "Next"));
    EXPECT_EQ(each->Next()->ItemName(), "second");
    EXPECT_EQ(each->Next(), nullptr);
    EXPECT_EQ(each->Next(), nullptr);
}

TEST_F(DescriptorAdapterTest, TellAFailureInTheMiddleOfAnEnumeration) {
    const auto descriptors = make<hlxOPCDescriptors>();
    descriptors->elements = {descriptor_of("first"), descriptor_of("second")};
    const auto each = from_com<hlxOPCDescriptors>(to_com<hlxOPCDescriptors>(descriptors))->NewEnum();
    EXPECT_EQ(each->Next()->ItemName(), "first");
    descriptors->failure = Error(9, "gone", "Host");
    EXPECT_EQ(outcome([&] { return ObjectPtr(each->Next()); }), "error 9 | gone | Host");
}

TEST_F(DescriptorAdapterTest, EnumerateForAScript) {
    const auto descriptors = make<hlxOPCDescriptors>();
    descriptors->elements = {descriptor_of("first"), descriptor_of("second"), descriptor_of("third")};
    com_ptr<IUnknown> object;
    ASSERT_EQ(to_com<hlxOPCDescriptors>(descriptors)->get__NewEnum(object.out()), S_OK);
    const auto elements = object.as<IEnumVARIANT>();
    ASSERT_TRUE(elements);

    ASSERT_EQ(elements->Skip(1), S_OK);
    VARIANT found[3] = {};
    ULONG count = 0;
    EXPECT_EQ(elements->Next(3, found, &count), S_FALSE);
    ASSERT_EQ(count, 2u);
    EXPECT_EQ(describe(value_of(found[0])), "hlxOPCDescriptor text second");
    EXPECT_EQ(describe(value_of(found[1])), "hlxOPCDescriptor text third");
    for (VARIANT& each : found) VariantClear(&each);
    EXPECT_EQ(elements->Skip(1), S_FALSE);
}

} // namespace

} // namespace brx::checks
