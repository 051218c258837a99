#include "com/positions.h"
#include "com/type_text.h"

#include "common/error.h"
#include "win32/this_module.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

namespace brx::checks {

namespace {

std::vector<Identifier> committed_identifiers() {
    const HMODULE module = this_module();
    const HRSRC place = FindResourceW(module, L"identifiers", RT_RCDATA);
    const auto* const text = static_cast<const char*>(LockResource(LoadResource(module, place)));
    std::istringstream lines(std::string(text, SizeofResource(module, place)));
    std::vector<Identifier> identifiers;
    for (std::string line; std::getline(lines, line);) {
        if (line.empty() || line.front() == '#') continue;
        std::istringstream words(line);
        Identifier identifier;
        words >> identifier.kind >> identifier.library >> identifier.name >> identifier.value;
        identifiers.push_back(identifier);
    }
    return identifiers;
}

std::vector<std::string> lines(std::vector<Identifier> identifiers) {
    std::ranges::sort(identifiers);
    std::vector<std::string> result;
    for (const auto& each : identifiers)
        result.push_back(each.kind + " " + each.library + "." + each.name + " " + each.value);
    return result;
}

class InterfaceTest : public testing::TestWithParam<Positions> {};

std::string interface_name(const testing::TestParamInfo<Positions>& info) {
    const std::string name = info.param.name;
    return name.substr(name.find_first_not_of('_'));
}

TEST(IdentifiersTest, AreThoseThatWereEverPublished) {
    const auto expected = committed_identifiers();
    auto described = described_identifiers();
    std::erase_if(described, [](const Identifier& each) { return each.library == "OPCAutomation"; });
    EXPECT_EQ(lines(expected), lines(described));
}

TEST(IdentifiersTest, StandForOneThingEach) {
    std::vector<std::string> values;
    for (const auto& each : committed_identifiers()) {
        values.push_back(each.value);
        EXPECT_EQ(each.value.size(), 36u) << each.name;
    }
    std::ranges::sort(values);
    EXPECT_EQ(std::ranges::adjacent_find(values), values.end());
}

TEST(IdentifiersTest, OfOPCAutomationAreThePublishedOnes) {
    auto described = described_identifiers();
    std::erase_if(described, [](const Identifier& each) { return each.library != "OPCAutomation"; });
    EXPECT_THAT(
        lines(described),
        testing::ElementsAre("class OPCAutomation.OPCActivator 860A4801-46A4-478B-A776-7F3A019369E3",
                             "class OPCAutomation.OPCGroup 28E68F9B-8D75-11D1-8DC3-3C302A000000",
                             "class OPCAutomation.OPCGroups 28E68F9E-8D75-11D1-8DC3-3C302A000000",
                             "class OPCAutomation.OPCServer 28E68F9A-8D75-11D1-8DC3-3C302A000000",
                             "interface OPCAutomation.DIOPCGroupEvent 28E68F97-8D75-11D1-8DC3-3C302A000000",
                             "interface OPCAutomation.DIOPCGroupsEvent 28E68F9D-8D75-11D1-8DC3-3C302A000000",
                             "interface OPCAutomation.DIOPCServerEvent 28E68F93-8D75-11D1-8DC3-3C302A000000",
                             "interface OPCAutomation.IOPCActivator 860A4800-46A4-478B-A776-7F3A019369E3",
                             "interface OPCAutomation.IOPCAutoServer 28E68F92-8D75-11D1-8DC3-3C302A000000",
                             "interface OPCAutomation.IOPCGroup 28E68F96-8D75-11D1-8DC3-3C302A000000",
                             "interface OPCAutomation.IOPCGroups 28E68F95-8D75-11D1-8DC3-3C302A000000",
                             "interface OPCAutomation.OPCBrowser 28E68F94-8D75-11D1-8DC3-3C302A000000",
                             "interface OPCAutomation.OPCItem 28E68F99-8D75-11D1-8DC3-3C302A000000",
                             "interface OPCAutomation.OPCItems 28E68F98-8D75-11D1-8DC3-3C302A000000",
                             "library OPCAutomation.OPCAutomation 28E68F91-8D75-11D1-8DC3-3C302A000000"));
}

TEST(TypeLibrariesTest, ExplainEveryMember) { EXPECT_THAT(members_without_help(), testing::IsEmpty()); }

TEST(TypeLibrariesTest, KnowTheEventsOfOPCAutomation) {
    const std::string values = "long TransactionID, long NumItems, SAFEARRAY(long)* ClientHandles, "
                               "SAFEARRAY(VARIANT)* ItemValues, SAFEARRAY(long)* Qualities, "
                               "SAFEARRAY(DATE)* TimeStamps";
    EXPECT_EQ(events_of("DIOPCServerEvent"), "ServerShutDown(BSTR Reason) #1\n");
    EXPECT_EQ(
        events_of("DIOPCGroupsEvent"),
        "GlobalDataChange(long TransactionID, long GroupHandle, long NumItems, SAFEARRAY(long)* "
        "ClientHandles, "
        "SAFEARRAY(VARIANT)* ItemValues, SAFEARRAY(long)* Qualities, SAFEARRAY(DATE)* TimeStamps) #1\n");
    EXPECT_EQ(events_of("DIOPCGroupEvent"),
              "DataChange(" + values + ") #1\nAsyncReadComplete(" + values +
                  ", SAFEARRAY(long)* Errors) #2\nAsyncWriteComplete(long TransactionID, long NumItems, "
                  "SAFEARRAY(long)* ClientHandles, SAFEARRAY(long)* Errors) #3\n"
                  "AsyncCancelComplete(long CancelID) #4\n");
}

TEST(TypeLibrariesTest, HaveNoInterfaceWhosePlacesAreNotRecorded) {
    std::vector<std::string> recorded;
    for (const auto* some : {&positions_of_dialogs(), &positions_of_host(), &positions_of_opc_automation()})
        for (const Positions& each : *some) recorded.emplace_back(each.name);
    std::vector<std::string> described;
    for (const Identifier& each : described_identifiers())
        if (each.kind == "interface" && !each.name.starts_with("DI")) described.push_back(each.name);
    EXPECT_THAT(recorded, testing::UnorderedElementsAreArray(described));
}

TEST_P(InterfaceTest, HasItsMembersInTheirPlaces) {
    EXPECT_EQ(members_of(GetParam().name), std::string(GetParam().members).substr(1));
}

INSTANTIATE_TEST_SUITE_P(Dialogs, InterfaceTest, testing::ValuesIn(positions_of_dialogs()), interface_name);
INSTANTIATE_TEST_SUITE_P(Host, InterfaceTest, testing::ValuesIn(positions_of_host()), interface_name);
INSTANTIATE_TEST_SUITE_P(OPCAutomation, InterfaceTest, testing::ValuesIn(positions_of_opc_automation()),
                         interface_name);

} // namespace

} // namespace brx::checks
