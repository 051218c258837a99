#include "adding.h"
#include "configuring.h"

// From an empty host to a configuration that collects: everything that the dialogs do for one another.

using namespace brx;
using namespace brx::checks;

SCENARIO(WholeStory, AServerIsAddedAndAConfigurationMadeForItAndFoundAgain) {
    // A server is found and added.
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

    // Its configuration is new and empty.
    its.host.browser->root.has("Line1", {"Speed", "Serial"});
    for (const char* item : {"Line1.Speed", "Line1.Serial"}) its.host.group->items->answers[item] = 0;
    its.host.groups->has("Line 1");
    {
        Configuring dialog(its);
        its.person.enters("txtName", "Line 1");
        its.person.replaces("txtUpdateRate", "500");
        its.person.ticks("chkActive");

        // A test with its characteristic, its item and a trigger.
        its.host.picker->picks = std::make_shared<FakeTestData>(its.host.calls, 7, 1, "Length");
        its.person.presses("bnAdd");
        its.person.presses("bnTest");
        its.person.presses("bnItem");
        its.person.enters("txtFullPath", "Line1.Speed");
        its.person.presses("bnOK");
        its.person.ticks("chkItemTrigger");
        its.person.picks("cboExpression", " > ");
        its.person.enters("txtValue", "12");
        its.person.presses("bnOK");
        EXPECT_EQ(its.person.lines_of("lvwTest"), (Lines{"Length | Line1.Speed | Matrix | PC7"}));

        // Sampling, with a subgroup trigger on that item.
        dialog.turns_to_sampling();
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

        // A part of the database, a serial number, and a label that follows an item.
        dialog.turns_to_descriptors();
        FakePicker& parts = *its.host.pickers.at(class_name::hlxPartSelection);
        its.host.records.by_class = {{class_name::hlxPartGroup, {{.id = 2, .name = "Castings"}}}};
        parts.picks = std::make_shared<FakeRecord>(its.host.calls, its.host.records,
                                                   RecordFields{.id = 11, .name = "Wheel", .group_id = 2});
        its.person.presses("bnAddDesc");
        its.person.picks("List1", "Part");
        its.person.presses("bnOK");
        its.person.presses("bnSelect");
        its.person.presses("bnOK");
        parts.picks = nullptr;

        its.person.presses("bnAddDesc");
        its.person.picks("List1", "Serial Number");
        its.person.presses("bnOK");
        its.person.presses("bnItem");
        its.person.enters("txtFullPath", "Line1.Serial");
        its.person.presses("bnOK");
        its.person.presses("bnOK");

        its.person.presses("bnAddDesc");
        its.person.picks("List1", "User Defined (Subgroup)");
        its.person.presses("bnOK");
        its.person.enters("txtGroup", "Operators");
        its.person.enters("txtItem", "Smith");
        its.person.presses("bnOK");

        // The server is alive.
        dialog.turns_to("&4. Server Information");
        its.person.waits_for_ticks(1);
        const std::string before = its.person.line_of("lvwServerInfo", 3);
        its.host.connection->current_time = Date{46002.5};
        its.person.waits_for_ticks(1);
        EXPECT_NE(its.person.line_of("lvwServerInfo", 3), before);
        EXPECT_EQ(its.person.line_of("lvwServerInfo", 12), "Group  | Line 1");
        dialog.closes();
    }

    // Everything is there when the configuration is opened again.
    its.host.picker->picks = nullptr;
    Configuring again(its);
    EXPECT_EQ(its.person.reads("txtName"), "Line 1");
    EXPECT_EQ(its.person.reads("txtUpdateRate"), "500");
    EXPECT_EQ(its.person.sees("chkActive").selected, 1);
    EXPECT_EQ(its.person.lines_of("lvwTest"), (Lines{"Length | Line1.Speed | Matrix | PC7"}));
    again.turns_to_sampling();
    EXPECT_EQ(its.person.reads("dtSyncDate"), "2026-12-24");
    EXPECT_EQ(its.person.reads("dtSyncTime"), "06:00:00");
    EXPECT_EQ(its.person.reads("txtSGInterval"), "15");
    EXPECT_EQ(its.person.reads("cboSGTimeUnit"), "Minutes");
    EXPECT_EQ(its.person.reads("txtSGEval"), "Line1.Speed >=  1");
    again.turns_to_descriptors();
    EXPECT_EQ(its.person.lines_of("lvwDescriptors"),
              (Lines{"Part | Castings | Wheel", "Serial Number |  | (%Line1.Serial)",
                     "User Defined (Subgroup) | Operators | Smith"}));
    again.leaves();
    EXPECT_EQ(its.host.group->items->ids(), (Lines{"Line1.Speed", "Line1.Serial"}));
    EXPECT_TRUE(its.host.group->items->is_active("Line1.Speed"));
}
