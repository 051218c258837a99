#include "configuring.h"

// The numbers of the configuration dialog, which are checked before it closes.

using namespace brx;
using namespace brx::checks;

namespace {

Message invalid(const std::string& why) {
    return {.text = "INVALID ENTRY!  " + why, .style = message::exclamation, .title = "Invalid Entry"};
}

} // namespace

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
        EXPECT_EQ(dialog.containers(), std::vector<int>{3}) << "It turns when the message has been read.";
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

SCENARIO(ConfigurationDialog, AMissingUnitIsToldInItsPlaceAmongTheNumbers) {
    a_filled_configuration(its);
    its.host.configuration->fields.subgroup_time_unit = -1;
    Configuring dialog(its);
    pastes_into(its.person, "txtSubgroupSize", "ten");
    struct Case {
        const char* piece_interval;
        const char* subgroup_interval;
        const char* why;
    };
    const std::vector<Case> cases = {{"ten", "ten", "Piece Interval must be a numeric value."},
                                     {"10", "ten", "A Piece Time Unit must be selected."},
                                     {"", "ten", "Subgroup Interval must be a numeric value."},
                                     {"", "10", "A Subgroup Time Unit must be selected."},
                                     {"", "", "Subgroup Size must be a numeric value."}};
    for (const Case& each : cases) {
        dialog.turns_to_sampling();
        pastes_into(its.person, "txtPieceTimeInterval", each.piece_interval);
        pastes_into(its.person, "txtSGInterval", each.subgroup_interval);
        its.person.presses("bnClose");
        its.person.answers(invalid(each.why));
    }
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

SCENARIO(ConfigurationDialog, ADeadBandTooLargeIsReportedAndWrittenNowhere) {
    a_filled_configuration(its);
    Configuring dialog(its);
    pastes_into(its.person, "txtDeadband", "1E39");
    its.person.presses("bnClose");
    its.person.is_at("dlgConfiguration");
    its.expect_report(error::overflow, "dlgConfiguration.bnClose_Click", ErrorLibrary::hlxER01);
    EXPECT_EQ(dialog.writes(), (Lines{"hlxOPCConfiguration.Name=", "hlxOPCConfiguration.SubgroupSize=",
                                      "hlxOPCConfiguration.UpdateRate="}));
    EXPECT_EQ(dialog.fields().dead_band, 0.1F);
    dialog.leaves();
}
