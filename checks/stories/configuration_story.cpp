#include "adding.h"
#include "configuring.h"

#include <memory>
#include <string>

// From an empty host to a configuration that collects, and to the next day: everything that the dialogs do
// for one another.

using namespace brx;
using namespace brx::checks;

namespace {

/// The host's configuration is one for this server of its collection, with the plant's items and groups
/// behind it.
void make_configuration_for(FakeHost& host, const std::shared_ptr<FakeServer>& server) {
    server->parent = host.servers;
    host.connection = std::dynamic_pointer_cast<FakeOPCServer>(server->connection);
    host.connection->browser = host.browser;
    host.connection->groups = host.groups;
    host.group->server = host.connection;
    host.configuration->server->entry = server;
}

/// The host ends and starts again: it makes all its objects anew, from what it has stored of the old ones.
void restart(FakeHost& host) {
    const auto servers = std::make_shared<FakeServers>(host.calls);
    servers->application = host.application;
    for (const auto& old : host.servers->entries()) {
        const auto connected = std::dynamic_pointer_cast<FakeOPCServer>(old->connection);
        servers->has_connected(connected->server_name, connected->server_node);
    }

    const auto group = std::make_shared<FakeOPCGroup>(host.calls);
    group->items->answers = host.group->items->answers;
    for (const std::string& item : host.group->items->ids()) group->items->has(item);

    const FakeConfiguration& old = *host.configuration;
    const auto configuration = std::make_shared<FakeConfiguration>(host.calls);
    configuration->fields = old.fields;
    configuration->server = std::make_shared<FakeServerHolder>(host.calls);
    configuration->group = group;
    configuration->tests = std::make_shared<FakeTests>(host.calls);
    configuration->tests->parent = configuration;
    configuration->tests->characteristics = old.tests->characteristics;
    for (const auto& test : old.tests->entries)
        configuration->tests->has(test->data->id, test->data->name, test->data->group_id)->fields =
            test->fields;
    configuration->descriptors = std::make_shared<FakeDescriptors>(host.calls);
    for (const DescriptorFields& fields : old.descriptors->fields()) configuration->descriptors->has(fields);

    host.servers = servers;
    host.group = group;
    host.configuration = configuration;
    make_configuration_for(host, servers->entries().at(0));
}

void adds_a_server(Play& its) {
    Showing select(*its.stage, "ServerSelect");
    select.show(its.host.servers);
    its.person.presses("bnServer");
    its.person.is_at("dlgServerAdd");
    its.person.picks("lstOPCServers", "Line.Server.2");
    its.person.presses("bnOK");
    its.person.is_at("dlgServerSelect");
    its.person.presses("bnOK");
    EXPECT_TRUE(select.result());
    EXPECT_EQ(select.ServerIndex(), 1);
}

/// With its characteristic, its item and a trigger.
void adds_a_test(Play& its) {
    its.host.picker->picks = std::make_shared<FakeTestData>(its.host.calls, 7, 1, "Length");
    its.person.presses("bnAdd");
    its.person.presses("bnTest");
    its.host.picker->picks = nullptr;
    its.person.presses("bnItem");
    its.person.enters("txtFullPath", "Line1.Speed");
    its.person.presses("bnOK");
    its.person.ticks("chkItemTrigger");
    its.person.picks("cboExpression", " > ");
    its.person.enters("txtValue", "12");
    its.person.presses("bnOK");
}

/// With a subgroup trigger on the item of the test.
void sets_sampling(Play& its) {
    its.person.sets("dtSyncDate", "2026-12-24");
    its.person.sets("dtSyncTime", "06:00:00");
    its.person.replaces("txtSGInterval", "15");
    its.person.picks("cboSGTimeUnit", "Minutes");
    its.person.presses("cmdSubgroupTrigger");
    its.person.picks("cboItem", "Line1.Speed");
    its.person.picks("cboExpression", " >= ");
    its.person.enters("txtValue", "1");
    its.person.presses("bnOK");
    EXPECT_EQ(its.person.reads("txtSGEval"), "Line1.Speed >= 1");
}

void begins_a_descriptor(Play& its, const std::string& kind) {
    its.person.presses("bnAddDesc");
    its.person.picks("List1", kind);
    its.person.presses("bnOK");
    its.person.is_at("dlgDescriptorProperties");
}

/// A label that follows an item, a part of the database, and a serial number.
void adds_descriptors(Play& its) {
    begins_a_descriptor(its, "User Defined (Subgroup)");
    its.person.presses("bnItem");
    its.person.enters("txtFullPath", "Line1.Operator");
    its.person.presses("bnOK");
    its.person.enters("txtGroup", "Operators");
    its.person.presses("bnOK");

    FakePicker& parts = *its.host.pickers.at(class_name::hlxPartSelection);
    its.host.records.by_class = {{class_name::hlxPartGroup, {{.id = 2, .name = "Castings"}}}};
    parts.picks = std::make_shared<FakeRecord>(its.host.calls, its.host.records,
                                               RecordFields{.id = 11, .name = "Wheel", .group_id = 2});
    begins_a_descriptor(its, "Part");
    its.person.presses("bnSelect");
    its.person.presses("bnOK");
    parts.picks = nullptr;

    begins_a_descriptor(its, "Serial Number");
    its.person.enters("txtItem", "S-1001");
    its.person.presses("bnOK");
}

void sees_the_server_move(Play& its) {
    its.person.waits_for_ticks(1);
    EXPECT_EQ(its.person.line_of("lvwServerInfo", 1), "Server Name | Line.Server.2");
    const std::string before = its.person.line_of("lvwServerInfo", 3);
    its.host.connection->current_time = Date{46002.5};
    its.person.waits_for_ticks(1);
    EXPECT_NE(its.person.line_of("lvwServerInfo", 3), before);
    EXPECT_EQ(its.person.line_of("lvwServerInfo", 12), "Group  | Line 1");
}

void finds_everything(Play& its) {
    Showing select(*its.stage, "ServerSelect");
    select.show(its.host.servers);
    EXPECT_EQ(its.person.lines_of("cboServer"), Lines{"Line.Server.2"});
    its.person.presses("bnCancel");

    Configuring dialog(its);
    EXPECT_EQ(its.person.reads("txtName"), "Line 1");
    EXPECT_EQ(its.person.reads("txtServer"), "Line.Server.2");
    EXPECT_EQ(its.person.reads("txtUpdateRate"), "500");
    EXPECT_EQ(its.person.sees("chkActive").selected, 1);
    EXPECT_EQ(its.person.lines_of("lvwTest"), (Lines{"Length | Line1.Speed | Line.Server.2 | "}));
    dialog.turns_to_sampling();
    EXPECT_EQ(its.person.reads("dtSyncDate"), "2026-12-24");
    EXPECT_EQ(its.person.reads("dtSyncTime"), "06:00:00");
    EXPECT_EQ(its.person.reads("txtSGInterval"), "15");
    EXPECT_EQ(its.person.reads("cboSGTimeUnit"), "Minutes");
    EXPECT_EQ(its.person.reads("txtSGEval"), "Line1.Speed >=  1");
    dialog.turns_to_descriptors();
    EXPECT_EQ(its.person.lines_of("lvwDescriptors"),
              (Lines{"User Defined (Subgroup) | Operators | (%Line1.Operator)", "Part | Castings | Wheel",
                     "Serial Number |  | S-1001"}));
    its.person.waits_for_ticks(1);
    EXPECT_EQ(its.person.line_of("lvwServerInfo", 1), "Server Name | Line.Server.2");
    dialog.leaves();
}

} // namespace

SCENARIO(WholeStory, AServerIsAddedAndAConfigurationMadeForItAndFoundAgain) {
    adds_a_server(its);

    // Its configuration is new and empty.
    ASSERT_EQ(its.host.servers->entries().size(), 1U);
    make_configuration_for(its.host, its.host.servers->entries().at(0));
    its.host.browser->root.has("Line1", {"Speed", "Operator"});
    for (const char* item : {"Line1.Speed", "Line1.Operator"}) its.host.group->items->answers[item] = 0;
    its.host.groups->has("Line 1");
    {
        Configuring dialog(its);
        EXPECT_EQ(its.person.reads("txtServer"), "Line.Server.2");
        its.person.enters("txtName", "Line 1");
        its.person.replaces("txtUpdateRate", "500");
        its.person.ticks("chkActive");
        adds_a_test(its);
        EXPECT_EQ(its.person.lines_of("lvwTest"), (Lines{"Length | Line1.Speed | Line.Server.2 | "}));
        dialog.turns_to_sampling();
        sets_sampling(its);
        dialog.turns_to_descriptors();
        adds_descriptors(its);
        dialog.turns_to("&4. Server Information");
        sees_the_server_move(its);
        dialog.closes();
    }
    EXPECT_EQ(its.host.group->items->ids(), (Lines{"Line1.Speed", "Line1.Operator"}));
    EXPECT_TRUE(its.host.group->items->is_active("Line1.Speed"));

    const std::weak_ptr<FakeServers> former_servers = its.host.servers;
    const std::weak_ptr<FakeConfiguration> former_configuration = its.host.configuration;
    restart(its.host);
    EXPECT_TRUE(former_servers.expired());
    EXPECT_TRUE(former_configuration.expired());
    finds_everything(its);
}
