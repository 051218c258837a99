#include "common/common_tools.h"
#include "forms/one_form.h"
#include "host/fake_host.h"

#include <gtest/gtest.h>

using namespace brx;
using namespace brx::checks;

TEST(DescriptorTypeNames, AreFixed) {
    EXPECT_EQ(DescriptorTypeName(0), "Part");
    EXPECT_EQ(DescriptorTypeName(1), "Process");
    EXPECT_EQ(DescriptorTypeName(2), "Job");
    EXPECT_EQ(DescriptorTypeName(3), "Lot");
    EXPECT_EQ(DescriptorTypeName(4), "Shift");
    EXPECT_EQ(DescriptorTypeName(5), "User Defined (Subgroup)");
    EXPECT_EQ(DescriptorTypeName(6), "User Defined (Piece)");
    EXPECT_EQ(DescriptorTypeName(7), "Serial Number");
    EXPECT_EQ(DescriptorTypeName(8), "Subgroup Comment");
}

TEST(DescriptorTypeNames, AreEmptyForAnyOtherCode) {
    EXPECT_EQ(DescriptorTypeName(9), "");
    EXPECT_EQ(DescriptorTypeName(-1), "");
    EXPECT_EQ(DescriptorTypeName(INT32_MAX), "");
    EXPECT_EQ(DescriptorTypeName(INT32_MIN), "");
}

TEST(ServerDisplayText, JoinsNodeAndName) {
    EXPECT_EQ(server_display_text("PC7", "Sim"), "PC7.Sim");
    EXPECT_EQ(server_display_text("", "Matrix"), "Matrix");
}

namespace {

struct Group : OPCGroup {
    OPCServerPtr Parent() override { return nullptr; }
    std::string Name() override { return "Group"; }
    OPCItemsPtr OPCItems() override { return nullptr; }
};

struct Database : hlxDatabase {};

struct Tools : testing::Test {
    FakeHost host;
    ScriptedEngine engine;
    Environment environment{engine, host, host, Locale{}};
    CommonTools tools{environment.errors};

    void expect_mismatch(const std::string& location) {
        ASSERT_EQ(host.reports.size(), 1U);
        EXPECT_EQ(host.reports[0].what.number, error::type_mismatch);
        EXPECT_EQ(host.reports[0].what.description, "Type mismatch");
        EXPECT_EQ(host.reports[0].what.location, location);
        host.reports.clear();
    }
};

} // namespace

TEST_F(Tools, ResolversReturnTheObjectThroughItsInterface) {
    const auto group = std::make_shared<Group>();
    const auto database = std::make_shared<Database>();
    EXPECT_EQ(tools.ResolveOPCServer(host.enumerator), host.enumerator);
    EXPECT_EQ(tools.ResolveOPCGroup(group), group);
    EXPECT_EQ(tools.ResolveDatabase(database), database);
    EXPECT_TRUE(host.reports.empty());
}

TEST_F(Tools, ResolversReportAWrongObjectAndReturnNothing) {
    const auto group = std::make_shared<Group>();
    EXPECT_EQ(tools.ResolveOPCServer(group), nullptr);
    expect_mismatch("CommonTools.ResolveOPCServer");
    EXPECT_EQ(tools.ResolveOPCGroup(host.enumerator), nullptr);
    expect_mismatch("CommonTools.ResolveOPCGroup");
    EXPECT_EQ(tools.ResolveDatabase(group), nullptr);
    expect_mismatch("CommonTools.ResolveDatabase");
}

TEST_F(Tools, ResolversReportNothingAndReturnNothing) {
    EXPECT_EQ(tools.ResolveOPCServer(nullptr), nullptr);
    expect_mismatch("CommonTools.ResolveOPCServer");
    EXPECT_EQ(tools.ResolveOPCGroup(nullptr), nullptr);
    expect_mismatch("CommonTools.ResolveOPCGroup");
    EXPECT_EQ(tools.ResolveDatabase(nullptr), nullptr);
    expect_mismatch("CommonTools.ResolveDatabase");
}
