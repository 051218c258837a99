#include "calls.h"
#include "configuring.h"
#include "testing.h"

#include <functional>
#include <map>
#include <string>

// What becomes of the lists of a configuration when a person does not want to wait for them.

using namespace brx;
using namespace brx::checks;

namespace {

void three_tests(Play& its) {
    std::int32_t id = 7;
    for (const char* name : {"Length", "Width", "Height"}) {
        const auto test = its.host.has_test(id++, name);
        test->fields.item_id = test->fields.item_text = "Line1.Speed";
    }
}

/// The next time in this call, a person has waited for a second and stops it.
void stops_in(Play& its, const std::string& call) {
    its.host.calls.during(call, [&its] {
        its.stage->pass(std::chrono::seconds(1));
        EXPECT_TRUE(its.person.screen().stop());
    });
}

} // namespace

SCENARIO(StoppedLists, TestsThatWereReadAreThereAndTheTabSaysThatTheyAreNotAll) {
    three_tests(its);
    its.host.calls.during("hlxOPCTest.State", [&its] { stops_in(its, "hlxOPCTest.OPCItemID"); });
    Configuring dialog(its);
    EXPECT_EQ(its.person.lines_of("lvwTest").size(), 1U) << "The second is half read.";
    EXPECT_EQ(its.person.reads("lblTestsNotice"),
              "Reading the tests was stopped after 1. To read them all: open this dialog again.");
    EXPECT_TRUE(its.person.sees("txtName").enabled) << "The configuration itself was read.";
    its.person.picks("lvwTest", its.person.line_of("lvwTest", 0));
    its.person.presses("bnRemove");
    EXPECT_EQ(its.host.configuration->tests->entries.size(), 2U) << "What is listed can be worked with.";
    dialog.closes();

    Configuring again(its);
    EXPECT_EQ(its.person.lines_of("lvwTest").size(), 2U);
    EXPECT_EQ(its.person.reads("lblTestsNotice"), "");
    again.leaves();
}

SCENARIO(StoppedLists, DescriptorsToo) {
    its.host.configuration->descriptors->has({.type = 0, .item = "12", .group = "Lots"});
    its.host.configuration->descriptors->has({.type = 1, .item = "Bolt", .group = "Parts"});
    its.host.calls.during("hlxOPCDescriptor.ItemName",
                          [&its] { stops_in(its, "hlxOPCDescriptor.GroupName"); });
    Configuring dialog(its);
    dialog.turns_to_descriptors();
    EXPECT_EQ(its.person.lines_of("lvwDescriptors").size(), 1U);
    EXPECT_EQ(its.person.reads("lblDescriptorsNotice"),
              "Reading the descriptors was stopped after 1. To read them all: open this dialog again.");
    EXPECT_EQ(its.person.reads("lblTestsNotice"),
              "Reading the tests was stopped. To read them all: open this dialog again.");
    dialog.leaves();
}

SCENARIO(StoppedLists, ALoadingThatIsStoppedBeforeTheFieldsAreReadCommitsNothing) {
    three_tests(its);
    stops_in(its, "hlxOPCConfiguration.UpdateRate");
    Configuring dialog(its);
    its.expect_report(error::call_canceled, "dlgConfiguration.Form_Load", ErrorLibrary::hlxER01);
    EXPECT_FALSE(its.person.sees("txtName").enabled);
    dialog.closes();
    EXPECT_EQ(dialog.writes(), std::vector<std::string>{});
}

SCENARIO(StoppedLists, AListThatIsReadAgainInVainRests) {
    three_tests(its);
    Configuring dialog(its);
    its.person.picks("lvwTest", its.person.line_of("lvwTest", 1));
    its.person.presses("cmdEdit");
    stops_in(its, "hlxOPCTests.Count");
    its.person.presses("bnOK");
    its.person.is_at("dlgConfiguration");
    EXPECT_EQ(its.person.lines_of("lvwTest").size(), 3U) << "As they were.";
    EXPECT_EQ(its.person.reads("lblTestsNotice"),
              "Reading the tests was stopped. To read them all: open this dialog again.");
    EXPECT_FALSE(its.person.sees("bnRemove").enabled) << "Nobody knows what it would remove.";
    dialog.leaves();
}

SCENARIO(StoppedLists, ARemovalThatWasStoppedBeforeItWasMadeLeavesNoDoubt) {
    three_tests(its);
    Configuring dialog(its);
    its.person.picks("lvwTest", its.person.line_of("lvwTest", 1));
    stops_in(its, "hlxOPCConfiguration.Tests");
    its.person.presses("bnRemove");
    its.expect_report(error::call_canceled, "dlgConfiguration.bnRemove_Click", ErrorLibrary::hlxER01);
    EXPECT_EQ(its.person.reads("lblTestsNotice"), "");
    its.person.presses("bnRemove");
    EXPECT_EQ(its.host.configuration->tests->entries.size(), 2U);
    EXPECT_EQ(its.person.lines_of("lvwTest").size(), 2U);
    dialog.leaves();
}

SCENARIO(StoppedLists, ARemovalThatWasBrokenOffIsLookedAt) {
    three_tests(its);
    Configuring dialog(its);
    its.person.picks("lvwTest", its.person.line_of("lvwTest", 1));
    its.host.calls.during("hlxOPCTests.Remove", [&] {
        its.stage->pass(std::chrono::seconds(1));
        EXPECT_TRUE(its.person.screen().stop());
        throw Stopped(Stopped::Call::broken_off);
    });
    its.person.presses("bnRemove");
    its.expect_report(error::call_canceled, "dlgConfiguration.bnRemove_Click", ErrorLibrary::hlxER01);
    EXPECT_FALSE(its.person.sees("bnRemove").enabled) << "Nobody knows what it would remove.";
    dialog.leaves();
}

SCENARIO(StoppedLists, WhoeverClosesTheDialogWaitsForNoFurtherTest) {
    three_tests(its);
    Configuring dialog(its);
    its.person.picks("lvwTest", its.person.line_of("lvwTest", 1));
    its.person.presses("cmdEdit");
    int read_by_then = 0;
    its.host.calls.during("hlxOPCTests.Count", [&] {
        read_by_then = its.host.calls.count("hlxOPCTests.Item");
        its.person.screen().press("bnClose");
    });
    its.person.presses("bnOK");
    its.person.is_at("");
    EXPECT_EQ(its.host.calls.count("hlxOPCTests.Item"), read_by_then);
    EXPECT_EQ(its.host.calls.count("hlxOPCConfiguration.Name="), 1) << "Close keeps what it keeps.";
}

SCENARIO(StoppedLists, WhoeverCancelsWaitsForNoFurtherServer) {
    for (const char* name : {"Matrix", "Sim", "Line"}) its.host.servers->has(name);
    const std::map<std::string, std::function<bool()>> ways = {
        {"PC7", [&] { return its.person.screen().press("bnCancel"); }},
        {"PC8", [&] { return its.person.screen().accelerator('c'); }},
    };
    for (const auto& [node, cancel] : ways) {
        its.host.servers_on(node, {"Sim"});
        Showing select(*its.stage, "ServerSelect");
        select.show(its.host.servers);
        its.person.presses("bnServer");
        its.person.enters("txtNode", node);
        its.person.presses("cmdRefreshList");
        its.person.picks("lstOPCServers", "Sim");
        its.host.calls.during("hlxOPCServer.Node", cancel);
        const int read_before = its.host.calls.count("hlxOPCServer.Node");
        its.person.presses("bnOK");
        its.person.is_at("");
        EXPECT_EQ(its.host.calls.count("hlxOPCServer.Node"), read_before + 1);
        EXPECT_FALSE(select.result());
    }
}

SCENARIO(StoppedLists, WhoeverCancelsWaitsForNoFurtherTestOfTheCharacteristic) {
    three_tests(its);
    Testing testing(its, its.host.has_test(0, ""));
    its.host.calls.during("hlxOPCTests.Item", [&] { its.person.screen().press("bnCancel"); });
    testing.picks_characteristic(8, "Width");
    its.person.is_at("");
    EXPECT_EQ(its.host.calls.count("hlxOPCTests.Item"), 1);
    EXPECT_FALSE(testing.result());
}

SCENARIO(StoppedLists, WhatIsWaitedForIsTold) {
    three_tests(its);
    its.host.configuration->fields.name = "Line 1";
    std::optional<Waiting> seen;
    its.host.calls.during("hlxOPCTests.Item", [&] {
        its.stage->pass(std::chrono::seconds(1));
        seen = its.person.screen().waiting();
    });
    Configuring dialog(its);
    EXPECT_EQ(seen.value_or(Waiting{}).what, "Reading the tests of Line 1");
    EXPECT_TRUE(seen.value_or(Waiting{}).how_far.ends_with(" s - 0 of 3"));
    dialog.leaves();
}

SCENARIO(StoppedLists, WhatIsStoredHalfWayGoesBack) {
    const auto test = its.host.has_test(7, "Length");
    test->fields.item_id = test->fields.item_text = "Line1.Speed";
    Configuring dialog(its);
    its.person.picks("lvwTest", its.person.line_of("lvwTest", 0));
    its.person.presses("cmdEdit");
    its.person.enters("txtConstant", "5");
    stops_in(its, "hlxOPCTest.State=");
    its.person.presses("bnOK");
    its.expect_report(error::call_canceled, "dlgOPCTest.TestChoices");
    its.person.is_at("dlgOPCTest");
    EXPECT_EQ(its.person.reads("txtConstant"), "5") << "She can confirm again.";
    EXPECT_EQ(test->fields.constant, 0.0);
    its.person.presses("bnOK");
    its.person.is_at("dlgConfiguration");
    EXPECT_EQ(test->fields.constant, 5.0);
    dialog.leaves();
}
