#include "listing.h"

// What the configuration dialog commits when it closes.

using namespace brx;
using namespace brx::checks;

namespace {

const Message no_test = {.text = "Without a Test Characteristic this Configuration will be removed.  Are you "
                                 "sure you want to continue?",
                         .style = message::question + message::ok_cancel,
                         .title = "No Test Exists"};

} // namespace

SCENARIO(ConfigurationDialog, CloseCommitsEverythingInOneOrder) {
    a_filled_configuration(its);
    Configuring dialog(its);
    its.person.enters("txtName", "Line 2");
    its.person.replaces("txtSubgroupSize", "3");
    its.person.replaces("txtUpdateRate", "250");
    pastes_into(its.person, "txtDeadband", "2.5");
    its.person.ticks("chkActive");
    dialog.turns_to_sampling();
    its.person.sets("dtSyncDate", "2027-02-03");
    its.person.sets("dtSyncTime", "07:08:09");
    its.person.replaces("txtSGInterval", "12");
    its.person.picks("cboSGTimeUnit", "Weeks");
    its.person.replaces("txtPieceTimeInterval", "34");
    its.person.picks("cboPieceTimeUnit", "Hours");
    dialog.closes();

    const ConfigurationFields& fields = dialog.fields();
    EXPECT_EQ(fields.name, "Line 2");
    EXPECT_EQ(fields.subgroup_size, 3);
    EXPECT_EQ(fields.update_rate, 250);
    EXPECT_EQ(fields.dead_band, 2.5F);
    EXPECT_FALSE(fields.active);
    EXPECT_NEAR(fields.sync_date_time.days, 46421 + (7 * 3600 + 8 * 60 + 9) / 86400.0, 1e-9);
    EXPECT_EQ(fields.subgroup_interval, 12);
    EXPECT_EQ(fields.subgroup_time_unit, 4);
    EXPECT_EQ(fields.piece_interval, 34);
    EXPECT_EQ(fields.piece_time_unit, 2);
    EXPECT_EQ(fields.subgroup_trigger_item, "Line1.Speed");
    EXPECT_EQ(fields.subgroup_trigger_type, 1);
    EXPECT_EQ(fields.subgroup_trigger_value, Variant(std::int16_t{5}));
    EXPECT_EQ(fields.piece_trigger_item, "Line1.Force");
    EXPECT_EQ(fields.piece_trigger_type, 4);
    EXPECT_EQ(fields.piece_trigger_value, Variant(2.5));
    EXPECT_TRUE(its.host.group->items->is_active("Line1.Speed"));
    EXPECT_TRUE(its.host.group->items->is_active("Line1.Force"));
    EXPECT_EQ(dialog.writes(),
              (Lines{"hlxOPCConfiguration.Name=", "hlxOPCConfiguration.SubgroupSize=",
                     "hlxOPCConfiguration.UpdateRate=", "hlxOPCConfiguration.DeadBand=",
                     "hlxOPCConfiguration.Active=", "hlxOPCConfiguration.SyncDateTime=",
                     "hlxOPCConfiguration.PieceInterval=", "hlxOPCConfiguration.PieceTimeUnit=",
                     "OPCItem.IsActive=", "hlxOPCConfiguration.PieceTriggerItem=",
                     "hlxOPCConfiguration.SubgroupInterval=", "hlxOPCConfiguration.SubgroupTimeUnit=",
                     "OPCItem.IsActive=", "hlxOPCConfiguration.SubgroupTriggerItem=",
                     "hlxOPCConfiguration.SubgroupTriggerType=", "hlxOPCConfiguration.SubgroupTriggerValue=",
                     "hlxOPCConfiguration.PieceTriggerType=", "hlxOPCConfiguration.PieceTriggerValue="}));
}

SCENARIO(ConfigurationDialog, WhatNobodyTouchedIsCommittedAsItWas) {
    a_filled_configuration(its);
    Configuring dialog(its);
    const ConfigurationFields before = dialog.fields();
    dialog.closes();
    EXPECT_EQ(dialog.fields(), before);
}

SCENARIO(ConfigurationDialog, WithoutTestsItAsksAndCancelStays) {
    Configuring dialog(its);
    its.person.presses("bnClose");
    its.person.answers(no_test, message::cancel);
    its.person.is_at("dlgConfiguration");
    EXPECT_EQ(dialog.writes(), Lines());
    EXPECT_EQ(its.host.calls.count("hlxOPCTests.Count"), 1); // as the list was filled
    dialog.leaves();
}

SCENARIO(ConfigurationDialog, WithoutTestsOkCommitsWithoutTriggersAndWithoutChecks) {
    a_filled_configuration(its);
    its.host.configuration->tests->entries.clear();
    Configuring dialog(its);
    its.person.enters("txtName", "Line 2");
    pastes_into(its.person, "txtUpdateRate", "fast");
    pastes_into(its.person, "txtSubgroupSize", "8pieces");
    pastes_into(its.person, "txtDeadband", "much");
    dialog.turns_to_sampling();
    pastes_into(its.person, "txtSGInterval", "often");
    pastes_into(its.person, "txtPieceTimeInterval", "6 or 7");
    its.person.presses("bnClose");
    its.person.answers(no_test, message::ok);
    its.person.is_at("");
    const ConfigurationFields& fields = dialog.fields();
    EXPECT_EQ(fields.name, "Line 2");
    EXPECT_EQ(fields.update_rate, 0);
    EXPECT_EQ(fields.subgroup_size, 8);
    EXPECT_EQ(fields.dead_band, 0.0F);
    EXPECT_EQ(fields.subgroup_interval, 0);
    EXPECT_EQ(fields.piece_interval, 6);
    EXPECT_EQ(fields.piece_trigger_item, "");
    EXPECT_EQ(fields.subgroup_trigger_item, "");
    EXPECT_EQ(fields.subgroup_trigger_type, 1);
    EXPECT_FALSE(its.host.group->items->is_active("Line1.Speed"));
}

SCENARIO(ConfigurationDialog, ATriggerOnNoItemActivatesNone) {
    a_filled_configuration(its);
    its.host.configuration->fields.subgroup_trigger_item = "<none>";
    its.host.configuration->fields.piece_trigger_item = "<NONE>";
    Configuring dialog(its);
    dialog.closes();
    EXPECT_EQ(dialog.fields().subgroup_trigger_item, "");
    EXPECT_EQ(dialog.fields().piece_trigger_item, "");
    EXPECT_EQ(its.host.calls.count("OPCItem.IsActive="), 0);
    EXPECT_EQ(dialog.fields().subgroup_trigger_type, 1);
}

SCENARIO(ConfigurationDialog, ATriggerItemThatTheGroupLacksIsReported) {
    a_filled_configuration(its);
    its.host.configuration->fields.subgroup_trigger_item = "Gone";
    Configuring dialog(its);
    its.person.presses("bnClose");
    its.person.is_at("dlgConfiguration");
    its.expect_report(error::subscript_out_of_range, "dlgConfiguration.bnClose_Click", ErrorLibrary::hlxER01);
    EXPECT_EQ(dialog.fields().piece_trigger_item, "Line1.Force");
    dialog.leaves();
}

SCENARIO(ConfigurationDialog, WithoutAGroupTheTriggersCannotBeCommitted) {
    a_filled_configuration(its);
    its.host.configuration->group = nullptr;
    Configuring dialog(its);
    its.person.presses("bnClose");
    its.person.is_at("dlgConfiguration");
    its.expect_report(error::type_mismatch, "CommonTools.ResolveOPCGroup");
    its.expect_report(error::object_not_set, "dlgConfiguration.bnClose_Click", ErrorLibrary::hlxER01);
    EXPECT_EQ(dialog.writes(),
              (Lines{"hlxOPCConfiguration.Name=", "hlxOPCConfiguration.SubgroupSize=",
                     "hlxOPCConfiguration.UpdateRate=", "hlxOPCConfiguration.DeadBand=",
                     "hlxOPCConfiguration.Active=", "hlxOPCConfiguration.SyncDateTime=",
                     "hlxOPCConfiguration.PieceInterval=", "hlxOPCConfiguration.PieceTimeUnit="}));
    dialog.leaves();
}

SCENARIO(ConfigurationDialog, WithoutAGroupAndTriggersEverythingIsCommitted) {
    a_filled_configuration(its);
    its.host.configuration->group = nullptr;
    its.host.configuration->fields.subgroup_trigger_item = "";
    its.host.configuration->fields.piece_trigger_item = "<None>";
    Configuring dialog(its);
    its.person.enters("txtName", "Line 2");
    dialog.closes();
    its.expect_report(error::type_mismatch, "CommonTools.ResolveOPCGroup");
    EXPECT_EQ(dialog.fields().name, "Line 2");
    EXPECT_EQ(dialog.writes().size(), 16U);
    EXPECT_EQ(dialog.writes().back(), "hlxOPCConfiguration.PieceTriggerValue=");
}

SCENARIO(ConfigurationDialog, TheGroupIsAskedForBeforeAnythingIsWritten) {
    a_filled_configuration(its);
    Configuring dialog(its);
    its.host.calls.fail_on("hlxOPCConfiguration.OPCGroup");
    its.person.presses("bnClose");
    its.person.is_at("dlgConfiguration");
    its.expect_report(CallLog::failure_number, "dlgConfiguration.bnClose_Click", ErrorLibrary::hlxER01);
    EXPECT_EQ(dialog.writes(), Lines());
    dialog.leaves();
}

SCENARIO(ConfigurationDialog, WhereTestsCanNeitherBeListedNorCountedItStays) {
    Configuring dialog(its);
    prepares_width(its);
    its.host.calls.fail_on("hlxOPCTests.Count");
    its.person.presses("bnOK");
    its.expect_report(CallLog::failure_number, "dlgConfiguration.bnAdd_Click", ErrorLibrary::hlxER01);
    its.person.presses("bnClose");
    its.person.is_at("dlgConfiguration");
    its.expect_report(CallLog::failure_number, "dlgConfiguration.bnClose_Click", ErrorLibrary::hlxER01);
    EXPECT_EQ(its.host.calls.count("hlxOPCConfiguration.Name="), 0);
    its.host.calls.fail_on("");
    dialog.closes(); // and asks nothing: there is a test
    EXPECT_EQ(its.host.calls.count("hlxOPCConfiguration.Name="), 1);
}

SCENARIO(ConfigurationDialog, EnterCloses) {
    a_filled_configuration(its);
    Configuring dialog(its);
    its.person.enters("txtName", "Line 2");
    its.person.hits(Key::enter);
    its.person.is_at("");
    EXPECT_EQ(dialog.fields().name, "Line 2");
}

SCENARIO(ConfigurationDialog, ARemovalThatFailsKeepsTheTriggers) {
    a_filled_configuration(its);
    its.host.configuration->tests->entries.clear();
    Configuring dialog(its);
    its.person.replaces("txtUpdateRate", "3000000000");
    its.person.presses("bnClose");
    its.person.answers(no_test, message::ok);
    its.expect_report(error::overflow, "dlgConfiguration.bnClose_Click", ErrorLibrary::hlxER01);
    dialog.turns_to_sampling();
    its.person.presses("cmdSubgroupTrigger");
    EXPECT_EQ(its.person.reads("cboItem"), "Line1.Speed");
    its.person.presses("bnCancel");
    dialog.leaves();
}
