#include "listing.h"

#include <utility>

// A configuration of which something cannot be read as its dialog loads: every tab shows what there is, and
// nothing is committed.

using namespace brx;
using namespace brx::checks;

SCENARIO(ConfigurationDialog, WhatCouldNotBeLoadedCannotBeEditedAndIsNotCommitted) {
    a_filled_configuration(its);
    its.host.configuration->fields.subgroup_time_unit = 9;
    Configuring dialog(its);
    its.expect_report(error::invalid_procedure_call, "dlgConfiguration.Form_Load", ErrorLibrary::hlxER01);
    EXPECT_FALSE(its.person.sees("txtName").enabled);
    dialog.turns_to_sampling();
    EXPECT_FALSE(its.person.sees("txtSGInterval").enabled);
    dialog.closes();
    EXPECT_EQ(dialog.writes(), Lines());
}

SCENARIO(ConfigurationDialog, ADialogThatCouldNotLoadItsFieldsShowsEveryTab) {
    a_filled_configuration(its);
    its.host.configuration->descriptors->has({.type = 0, .item = "Wheel", .group = "Castings"});
    its.host.calls.fail_on("hlxOPCConfiguration.UpdateRate");
    Configuring dialog(its);
    its.expect_report(CallLog::failure_number, "dlgConfiguration.Form_Load", ErrorLibrary::hlxER01);
    EXPECT_EQ(its.person.reads("txtName"), "Line 1");
    for (const char* field :
         {"txtName", "txtUpdateRate", "txtDeadband", "chkActive", "txtSubgroupSize", "dtSyncDate",
          "dtSyncTime", "txtSGInterval", "cboSGTimeUnit", "cmdSubgroupTrigger", "txtPieceTimeInterval",
          "cboPieceTimeUnit", "cmdPieceTrigger"})
        EXPECT_FALSE(its.person.sees(field).enabled) << field;
    EXPECT_TRUE(its.person.sees("txtServer").enabled);
    EXPECT_EQ(its.person.lines_of("lvwTest"), Lines{"Length | Line1.Speed | Matrix | PC7"});
    its.person.picks("lvwTest", "Length | Line1.Speed | Matrix | PC7");
    its.person.presses("bnRemove");
    EXPECT_TRUE(its.host.configuration->tests->entries.empty());
    dialog.turns_to_sampling();
    const std::pair<const char*, const char*> values[] = {
        {"dtSyncDate", "2026-11-21"},      {"dtSyncTime", "13:30:00"},
        {"txtSGInterval", "30"},           {"cboSGTimeUnit", "Minutes"},
        {"txtSGEval", "Line1.Speed =  5"}, {"txtPieceTimeInterval", "10"},
        {"cboPieceTimeUnit", "Seconds"},   {"txtPieceEval", "Line1.Force <  2.5"}};
    for (const auto& [field, value] : values) EXPECT_EQ(its.person.reads(field), value) << field;
    dialog.turns_to_descriptors();
    its.person.double_clicks("lvwDescriptors", "Part | Castings | Wheel");
    its.person.enters("txtItem", "Axle");
    its.person.presses("bnOK");
    EXPECT_EQ(its.person.lines_of("lvwDescriptors"), Lines{"Part | Castings | Axle"});
    its.person.waits_for_ticks(1);
    EXPECT_EQ(its.person.lines_of("lvwServerInfo").size(), 12U);
    dialog.closes(); // and asks nothing, since nothing will be committed
    EXPECT_EQ(dialog.writes(), (Lines{"hlxOPCDescriptor.ItemName=", "hlxOPCDescriptor.GroupName="}));
}

SCENARIO(ConfigurationDialog, WhatElseFailsAsADialogLoadsIsReportedTooUnlessItSaysTheSame) {
    a_filled_configuration(its);
    its.host.configuration->fields.subgroup_time_unit = 9;
    its.host.configuration->descriptors->has({.type = 0, .item = "Wheel", .group = "Castings"});
    its.host.configuration->descriptors->entries[0]->untold = "GroupName"; // says what the unit says
    its.host.configuration->server->entry = nullptr;                       // fails for the test, too
    Configuring dialog(its);
    its.expect_report(error::object_not_set, "dlgConfiguration.Form_Load", ErrorLibrary::hlxER01);
    its.expect_report(error::invalid_procedure_call, "dlgConfiguration.Form_Load", ErrorLibrary::hlxER01);
    EXPECT_EQ(its.person.lines_of("lvwTest"), Lines{"Length | Line1.Speed |  | "});
    dialog.turns_to_sampling();
    EXPECT_EQ(its.person.reads("dtSyncDate"), "2026-11-21");
    EXPECT_FALSE(its.person.sees("txtSGInterval").enabled);
    dialog.turns_to_descriptors();
    EXPECT_EQ(its.person.lines_of("lvwDescriptors"), Lines{"Part |  | "});
    dialog.closes();
    EXPECT_EQ(dialog.writes(), Lines());
}

SCENARIO(ConfigurationDialog, ADeadHostIsReportedOnce) {
    a_filled_configuration(its);
    its.host.configuration->server->entry = nullptr;
    Configuring dialog(its);
    its.expect_report(error::object_not_set, "dlgConfiguration.Form_Load", ErrorLibrary::hlxER01);
    EXPECT_EQ(its.person.lines_of("lvwTest"), Lines{"Length | Line1.Speed |  | "});
    dialog.closes();
    EXPECT_EQ(dialog.writes(), Lines());
}

SCENARIO(ConfigurationDialog, AnUnreadableDescriptorHidesNoTest) {
    a_filled_configuration(its);
    its.host.configuration->descriptors->has({.type = 0, .item = "Wheel", .group = "Castings"});
    its.host.calls.fail_on("hlxOPCDescriptor.Type");
    Configuring dialog(its);
    its.expect_report(CallLog::failure_number, "dlgConfiguration.Form_Load", ErrorLibrary::hlxER01);
    EXPECT_EQ(its.person.lines_of("lvwTest"), Lines{"Length | Line1.Speed | Matrix | PC7"});
    dialog.leaves();
}

SCENARIO(ConfigurationDialog, WhereADescriptorCannotBeReadNothingIsCommitted) {
    a_filled_configuration(its);
    its.host.configuration->descriptors->has({.type = 0, .item = "Wheel", .group = "Castings"});
    its.host.calls.fail_on("hlxOPCDescriptor.GroupName");
    Configuring dialog(its);
    its.expect_report(CallLog::failure_number, "dlgConfiguration.Form_Load", ErrorLibrary::hlxER01);
    EXPECT_FALSE(its.person.sees("txtName").enabled);
    EXPECT_TRUE(its.person.can_press("bnAdd"));
    dialog.closes();
    EXPECT_EQ(dialog.writes(), Lines());
}

SCENARIO(ConfigurationDialog, WhereATestCannotBeReadNothingIsCommitted) {
    a_filled_configuration(its);
    its.host.calls.fail_on("hlxOPCTest.State");
    Configuring dialog(its);
    its.expect_report(CallLog::failure_number, "dlgConfiguration.Form_Load", ErrorLibrary::hlxER01);
    EXPECT_FALSE(its.person.sees("cmdPieceTrigger").enabled);
    dialog.closes();
    EXPECT_EQ(dialog.writes(), Lines());
}
