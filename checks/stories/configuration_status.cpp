#include "configuring.h"

// The live status of a configuration's server.

using namespace brx;
using namespace brx::checks;

namespace {

const Lines server_rows = {"Server Node | PC7",
                           "Server Name | Matrix",
                           "Start Time | 12/9/2025 6:00:00 AM",
                           "Current Time | 12/10/2025 12:00:00 PM",
                           "Last Updated | 12/10/2025 6:00:00 AM",
                           "Band Width | 4",
                           "Build Number | 17",
                           "Client Name | ",
                           "Major Version | 3",
                           "Minor Version | 0",
                           "Server State | 1",
                           "Vendor Information | Plant Simulations"};

Lines with(Lines rows, const Lines& more) {
    rows.insert(rows.end(), more.begin(), more.end());
    return rows;
}

} // namespace

SCENARIO(ServerStatusTab, ATickListsTheServerAndItsGroups) {
    for (const char* group : {"Fast", "Slow", "Alarms"}) its.host.groups->has(group);
    Configuring dialog(its);
    EXPECT_EQ(its.person.lines_of("lvwServerInfo"), Lines());
    its.person.waits_for_ticks(1);
    dialog.turns_to("&4. Server Information");
    EXPECT_EQ(its.person.lines_of("lvwServerInfo"),
              with(server_rows, {"Group  | Fast", "Group 2 | Slow", "Group 3 | Alarms"}));
    dialog.leaves();
}

SCENARIO(ServerStatusTab, AServerWithoutGroupsHasItsTwelveRows) {
    Configuring dialog(its);
    its.person.waits_for_ticks(1);
    EXPECT_EQ(its.person.lines_of("lvwServerInfo"), server_rows);
    dialog.leaves();
}

SCENARIO(ServerStatusTab, WithoutAConnectionNothingIsListed) {
    an_unconnected_server(its, "Plant.Simulation.1");
    Configuring dialog(its);
    its.person.waits_for_ticks(2);
    EXPECT_EQ(its.person.lines_of("lvwServerInfo"), Lines());
    dialog.leaves();
}

SCENARIO(ServerStatusTab, EachTickShowsWhatChanged) {
    its.host.groups->has("Fast");
    Configuring dialog(its);
    its.person.waits_for_ticks(1);
    its.host.connection->current_time = Date{46002.5};
    its.host.groups->entries[0]->name = "Faster";
    its.host.groups->has("Slow");
    its.person.waits_for_ticks(1);
    Lines rows = server_rows;
    rows[3] = "Current Time | 12/11/2025 12:00:00 PM";
    EXPECT_EQ(its.person.lines_of("lvwServerInfo"), with(rows, {"Group  | Faster", "Group 2 | Slow"}));
    dialog.leaves();
}

SCENARIO(ServerStatusTab, AGroupThatDisappearsKeepsItsRow) {
    for (const char* group : {"Fast", "Slow"}) its.host.groups->has(group);
    Configuring dialog(its);
    its.person.waits_for_ticks(1);
    its.host.groups->entries.pop_back();
    its.person.waits_for_ticks(1);
    EXPECT_EQ(its.person.lines_of("lvwServerInfo"), with(server_rows, {"Group  | Fast", "Group 2 | Slow"}));
    dialog.leaves();
}

SCENARIO(ServerStatusTab, AServerThatStopsAnsweringIsReportedAndAskedAgain) {
    its.host.groups->has("Fast");
    Configuring dialog(its);
    its.host.connection->groups = nullptr;
    its.person.waits_for_ticks(1);
    its.expect_report(error::object_not_set, "dlgConfiguration.Timer1_Timer");
    EXPECT_EQ(its.person.lines_of("lvwServerInfo"), server_rows);
    its.host.connection->groups = its.host.groups;
    its.person.waits_for_ticks(1);
    EXPECT_EQ(its.person.lines_of("lvwServerInfo"), with(server_rows, {"Group  | Fast"}));
    dialog.leaves();
}

SCENARIO(ServerStatusTab, TheTimerGoesOnUnderOtherDialogs) {
    Configuring dialog(its);
    dialog.turns_to_descriptors();
    its.person.presses("bnAddDesc");
    its.person.is_at("dlgDescriptorType");
    its.person.waits_for_ticks(1);
    its.person.presses("bnCancel");
    EXPECT_EQ(its.person.lines_of("lvwServerInfo"), server_rows);
    dialog.leaves();
}

SCENARIO(ServerStatusTab, ALostConnectionLeavesTheListAsItWas) {
    its.host.groups->has("Fast");
    Configuring dialog(its);
    its.person.waits_for_ticks(1);
    const Lines rows = with(server_rows, {"Group  | Fast"});
    EXPECT_EQ(its.person.lines_of("lvwServerInfo"), rows);
    const hlxOPCServerPtr connected = its.host.configuration->server->entry;
    an_unconnected_server(its, "Matrix");
    its.host.groups->entries[0]->name = "Faster";
    its.person.waits_for_ticks(1);
    EXPECT_EQ(its.person.lines_of("lvwServerInfo"), rows);
    its.host.configuration->server->entry = connected;
    its.person.waits_for_ticks(1);
    EXPECT_EQ(its.person.lines_of("lvwServerInfo"), with(server_rows, {"Group  | Faster"}));
    dialog.leaves();
}

SCENARIO(ServerStatusTab, AValueThatCannotBeReadEndsTheTick) {
    its.host.groups->has("Fast");
    Configuring dialog(its);
    its.host.calls.fail_on("OPCServer.Bandwidth");
    its.person.waits_for_ticks(1);
    its.expect_report(CallLog::failure_number, "dlgConfiguration.Timer1_Timer");
    const Lines first_five(server_rows.begin(), server_rows.begin() + 5);
    EXPECT_EQ(its.person.lines_of("lvwServerInfo"), first_five);
    its.host.calls.fail_on("");
    its.person.waits_for_ticks(1);
    EXPECT_EQ(its.person.lines_of("lvwServerInfo"), with(server_rows, {"Group  | Fast"}));
    // What comes before it goes on, what comes after it stays.
    its.host.connection->current_time = Date{46002.5};
    its.host.connection->vendor_info = "Others";
    its.host.groups->entries[0]->name = "Faster";
    its.host.calls.fail_on("OPCServer.Bandwidth");
    its.person.waits_for_ticks(1);
    its.expect_report(CallLog::failure_number, "dlgConfiguration.Timer1_Timer");
    EXPECT_TRUE(its.host.reports.empty());
    Lines rows = server_rows;
    rows[3] = "Current Time | 12/11/2025 12:00:00 PM";
    EXPECT_EQ(its.person.lines_of("lvwServerInfo"), with(rows, {"Group  | Fast"}));
    dialog.leaves();
}
