#include "calls.h"
#include "configuring.h"

// The status of a server that takes its time, or of one that a person has better things to do than wait for.

using namespace brx;
using namespace brx::checks;

namespace {

/// What the ticks read of the server itself.
Lines reads_of(Play& its, std::size_t from) {
    Lines reads;
    const Lines all = its.host.calls.members();
    for (std::size_t i = from; i < all.size(); ++i)
        if (all[i].starts_with("OPCServer.") || all[i] == "OPCGroup.Name") reads.push_back(all[i]);
    return reads;
}

/// The next tick that reads anything: after a long one the timer rests.
Lines reads_of_next_tick(Play& its) {
    const std::size_t before = its.host.calls.made().size();
    for (int tries = 0; tries < 5 && reads_of(its, before).empty(); ++tries) its.person.waits_for_ticks(1);
    return reads_of(its, before);
}

} // namespace

SCENARIO(SlowStatus, ATickThatTakesLongLeavesTheRestToTheNextOne) {
    its.host.groups->has("Fast");
    its.host.groups->has("Slow");
    Configuring dialog(its);
    its.host.calls.during("OPCServer.StartTime", [&] { its.stage->pass(std::chrono::milliseconds(500)); });
    EXPECT_EQ(reads_of_next_tick(its),
              (Lines{"OPCServer.ServerNode", "OPCServer.ServerName", "OPCServer.StartTime"}));
    EXPECT_EQ(its.person.lines_of("lvwServerInfo").size(), 3U);

    its.stage->start([&] { its.stage->pass(std::chrono::milliseconds(600)); });
    its.host.calls.during("OPCGroup.Name", [&] { its.stage->pass(std::chrono::milliseconds(500)); });
    EXPECT_EQ(reads_of_next_tick(its),
              (Lines{"OPCServer.CurrentTime", "OPCServer.LastUpdateTime", "OPCServer.Bandwidth",
                     "OPCServer.BuildNumber", "OPCServer.ClientName", "OPCServer.MajorVersion",
                     "OPCServer.MinorVersion", "OPCServer.ServerState", "OPCServer.VendorInfo",
                     "OPCServer.OPCGroups", "OPCGroup.Name"}));

    its.stage->start([&] { its.stage->pass(std::chrono::milliseconds(600)); });
    EXPECT_EQ(reads_of_next_tick(its), (Lines{"OPCServer.OPCGroups", "OPCGroup.Name"})) << "The second one.";
    EXPECT_EQ(its.person.lines_of("lvwServerInfo").size(), 14U);

    EXPECT_EQ(reads_of_next_tick(its).size(), 15U) << "All of it again.";
    dialog.leaves();
}

SCENARIO(SlowStatus, ATickLeavesTheThreadToAPersonWhoWaits) {
    Configuring dialog(its);
    its.host.calls.during("OPCServer.ServerName", [&] { its.person.screen().choose("TabStrip1", 3); });
    its.person.waits_for_ticks(1);
    EXPECT_EQ(dialog.containers(), std::vector<int>{3}) << "What she did is done.";
    EXPECT_EQ(its.person.lines_of("lvwServerInfo").size(), 2U);
    its.person.waits_for_ticks(1);
    EXPECT_EQ(its.person.lines_of("lvwServerInfo").size(), 12U);
    dialog.leaves();
}

SCENARIO(SlowStatus, AnErrorBeginsTheReadingAgain) {
    Configuring dialog(its);
    its.host.calls.during("OPCServer.StartTime", [&] { its.person.screen().choose("TabStrip1", 3); });
    its.person.waits_for_ticks(1);
    its.host.calls.fail_on("OPCServer.CurrentTime");
    const Lines reads = reads_of_next_tick(its);
    its.expect_report(CallLog::failure_number, "dlgConfiguration.Timer1_Timer");
    EXPECT_EQ(reads, Lines{"OPCServer.CurrentTime"});
    its.host.calls.fail_on("");
    EXPECT_EQ(reads_of_next_tick(its).size(), 13U) << "From the first one to the groups.";
    dialog.leaves();
}

SCENARIO(SlowStatus, TheTimesOfAServerGiveWayToo) {
    const auto server = std::make_shared<FakeOPCServer>(its.host.calls);
    Showing information(*its.stage, "ServerInformation");
    information.show(server);
    its.host.calls.during("OPCServer.StartTime", [&] { its.person.screen().key(Key::tab); });
    EXPECT_EQ(reads_of_next_tick(its), Lines{"OPCServer.StartTime"});
    EXPECT_EQ(reads_of_next_tick(its), (Lines{"OPCServer.CurrentTime", "OPCServer.LastUpdateTime"}));
    its.person.presses("bnOK");
    EXPECT_TRUE(information.result());
}
