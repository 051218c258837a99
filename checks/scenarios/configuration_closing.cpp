#include "configuring.h"

// What the configuration dialog checks and commits when it closes.

using namespace brx;
using namespace brx::checks;

namespace {

Message invalid(const std::string& why) {
    return {.text = "INVALID ENTRY!  " + why, .style = message::exclamation, .title = "Invalid Entry"};
}

const Message no_test = {.text = "Without a Test Characteristic this Configuration will be removed.  Are you "
                                 "sure you want to continue?",
                         .style = message::question + message::ok_cancel,
                         .title = "No Test Exists"};

/// Puts a text into a box of numbers, as only pasting can.
void pastes_into(Person& person, const std::string& box, const std::string& text) {
    person.replaces(box, "");
    person.pastes(text);
}

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

SCENARIO(ConfigurationDialog, EmptyIntervalsBecomeZeroAndNeedNoUnit) {
    a_filled_configuration(its);
    its.host.configuration->fields.subgroup_time_unit = -1;
    its.host.configuration->fields.piece_time_unit = -1;
    Configuring dialog(its);
    dialog.turns_to_sampling();
    its.person.replaces("txtPieceTimeInterval", "");
    its.person.replaces("txtSGInterval", "");
    dialog.closes();
    EXPECT_EQ(dialog.fields().piece_interval, 0);
    EXPECT_EQ(dialog.fields().subgroup_interval, 0);
    EXPECT_EQ(dialog.fields().piece_time_unit, -1);
    EXPECT_EQ(dialog.fields().subgroup_time_unit, -1);
}

SCENARIO(ConfigurationDialog, AnEmptiedIntervalReadsZeroAfterTheCheck) {
    a_filled_configuration(its);
    Configuring dialog(its);
    pastes_into(its.person, "txtUpdateRate", "fast");
    dialog.turns_to_sampling();
    its.person.replaces("txtPieceTimeInterval", "");
    its.person.replaces("txtSGInterval", "");
    its.person.presses("bnClose");
    its.person.answers(invalid("Update Rate must be a numeric value."));
    dialog.turns_to_sampling();
    EXPECT_EQ(its.person.reads("txtPieceTimeInterval"), "0");
    EXPECT_EQ(its.person.reads("txtSGInterval"), "0");
    dialog.leaves();
}

SCENARIO(ConfigurationDialog, ThePieceUnitIsAskedForByTheSubgroupUnitsList) {
    a_filled_configuration(its);
    its.host.configuration->fields.subgroup_time_unit = -1;
    Configuring dialog(its);
    its.person.presses("bnClose");
    its.person.answers(invalid("A Piece Time Unit must be selected."));
    EXPECT_EQ(dialog.containers(), std::vector<int>{1});
    EXPECT_TRUE(its.person.has_focus("cboPieceTimeUnit"));
    EXPECT_EQ(its.person.reads("cboPieceTimeUnit"), "Seconds");
    its.person.picks("cboSGTimeUnit", "Days");
    dialog.closes();
    EXPECT_EQ(dialog.fields().subgroup_time_unit, 3);
}

SCENARIO(ConfigurationDialog, AMissingPieceUnitAloneIsNoReasonToStay) {
    a_filled_configuration(its);
    its.host.configuration->fields.piece_time_unit = -1;
    Configuring dialog(its);
    dialog.closes();
    EXPECT_EQ(dialog.fields().piece_time_unit, -1);
}

SCENARIO(ConfigurationDialog, TheSubgroupUnitIsAskedForWhenOnlyThePieceIntervalIsEmpty) {
    a_filled_configuration(its);
    its.host.configuration->fields.subgroup_time_unit = -1;
    Configuring dialog(its);
    dialog.turns_to_sampling();
    its.person.replaces("txtPieceTimeInterval", "");
    its.person.presses("bnClose");
    its.person.answers(invalid("A Subgroup Time Unit must be selected."));
    EXPECT_TRUE(its.person.has_focus("cboSGTimeUnit"));
    dialog.leaves();
}

SCENARIO(ConfigurationDialog, EachNumberIsCheckedAndTheFieldAtFaultComesForward) {
    a_filled_configuration(its);
    Configuring dialog(its);
    const ConfigurationFields before = dialog.fields();
    struct Case {
        const char* tab;
        const char* box;
        const char* why;
        int container;
    };
    const std::vector<Case> cases = {
        {"&1. General", "txtDeadband", "Dead Band must be a numeric value.", 0},
        {"&1. General", "txtUpdateRate", "Update Rate must be a numeric value.", 0},
        {"&1. General", "txtSubgroupSize", "Subgroup Size must be a numeric value.", 0},
        {"&2. Sampling", "txtSGInterval", "Subgroup Interval must be a numeric value.", 1},
        {"&2. Sampling", "txtPieceTimeInterval", "Piece Interval must be a numeric value.", 1}};
    for (const Case& each : cases) { // each fault comes before those that are there already
        dialog.turns_to(each.tab);
        pastes_into(its.person, each.box, "ten");
        dialog.turns_to("&4. Server Information");
        its.person.presses("bnClose");
        its.person.answers(invalid(each.why));
        EXPECT_EQ(dialog.containers(), std::vector<int>{each.container}) << each.box;
        EXPECT_TRUE(its.person.has_focus(each.box));
        its.person.types("7"); // over the highlighted text
        EXPECT_EQ(its.person.reads(each.box), "7");
        pastes_into(its.person, each.box, "ten");
    }
    EXPECT_EQ(dialog.fields(), before);
    dialog.leaves();
}

SCENARIO(ConfigurationDialog, EmptyUpdateRateAndDeadBandFailAndAnEmptySubgroupSizeIsZero) {
    a_filled_configuration(its);
    Configuring dialog(its);
    its.person.replaces("txtSubgroupSize", "");
    its.person.replaces("txtUpdateRate", "");
    its.person.replaces("txtDeadband", "");
    its.person.presses("bnClose");
    its.person.answers(invalid("Update Rate must be a numeric value."));
    its.person.types("9");
    its.person.presses("bnClose");
    its.person.answers(invalid("Dead Band must be a numeric value."));
    its.person.types("1");
    dialog.closes();
    EXPECT_EQ(dialog.fields().subgroup_size, 0);
    EXPECT_EQ(dialog.fields().update_rate, 9);
    EXPECT_EQ(dialog.fields().dead_band, 1.0F);
}

SCENARIO(ConfigurationDialog, NumbersAreRoundedHalfToEven) {
    a_filled_configuration(its);
    Configuring dialog(its);
    pastes_into(its.person, "txtSubgroupSize", "2.5");
    pastes_into(its.person, "txtUpdateRate", "3.5");
    dialog.turns_to_sampling();
    pastes_into(its.person, "txtPieceTimeInterval", " 0.5 ");
    pastes_into(its.person, "txtSGInterval", "1.5E1");
    dialog.closes();
    EXPECT_EQ(dialog.fields().subgroup_size, 2);
    EXPECT_EQ(dialog.fields().update_rate, 4);
    EXPECT_EQ(dialog.fields().piece_interval, 0);
    EXPECT_EQ(dialog.fields().subgroup_interval, 15);
}

SCENARIO(ConfigurationDialog, WhatIsReadStopsAtWhatIsNoNumberForVal) {
    a_filled_configuration(its);
    Configuring dialog(its);
    pastes_into(its.person, "txtUpdateRate", "1,234"); // a number with a separator for the check
    dialog.closes();
    EXPECT_EQ(dialog.fields().update_rate, 1);
}

SCENARIO(ConfigurationDialog, ANumberTooLargeIsReportedAndTheFormStays) {
    a_filled_configuration(its);
    Configuring dialog(its);
    its.person.enters("txtName", "Line 2");
    its.person.replaces("txtUpdateRate", "3000000000");
    its.person.presses("bnClose");
    its.person.is_at("dlgConfiguration");
    its.expect_report(error::overflow, "dlgConfiguration.bnClose_Click", ErrorLibrary::hlxER01);
    EXPECT_EQ(dialog.fields().name, "Line 2"); // written before
    EXPECT_EQ(dialog.fields().update_rate, 1000);
    its.person.replaces("txtUpdateRate", "500");
    dialog.closes();
    EXPECT_EQ(dialog.fields().update_rate, 500);
}

SCENARIO(ConfigurationDialog, WithoutTestsItAsksAndCancelStays) {
    Configuring dialog(its);
    its.person.presses("bnClose");
    its.person.answers(no_test, message::cancel);
    its.person.is_at("dlgConfiguration");
    EXPECT_EQ(dialog.writes(), Lines());
    dialog.leaves();
}

SCENARIO(ConfigurationDialog, WithoutTestsOkCommitsWithoutTriggersAndWithoutChecks) {
    a_filled_configuration(its);
    its.host.configuration->tests->entries.clear();
    Configuring dialog(its);
    its.person.enters("txtName", "Line 2");
    pastes_into(its.person, "txtUpdateRate", "fast");
    pastes_into(its.person, "txtSubgroupSize", "8pieces");
    its.person.presses("bnClose");
    its.person.answers(no_test, message::ok);
    its.person.is_at("");
    const ConfigurationFields& fields = dialog.fields();
    EXPECT_EQ(fields.name, "Line 2");
    EXPECT_EQ(fields.update_rate, 0);
    EXPECT_EQ(fields.subgroup_size, 8);
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
    dialog.leaves();
}

SCENARIO(ConfigurationDialog, WhatCouldNotBeLoadedIsNotCommitted) {
    a_filled_configuration(its);
    its.host.configuration->fields.subgroup_time_unit = 9;
    Configuring dialog(its);
    its.expect_report(error::invalid_procedure_call, "dlgConfiguration.Form_Load", ErrorLibrary::hlxER01);
    dialog.closes();
    EXPECT_EQ(dialog.writes(), Lines());
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
