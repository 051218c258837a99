#include "configuring.h"

// Periods and triggers of a configuration.

using namespace brx;
using namespace brx::checks;

SCENARIO(SamplingTab, ShowsPeriodsAndSynchronisation) {
    a_filled_configuration(its);
    Configuring dialog(its);
    dialog.turns_to_sampling();
    const Lines units = {"Seconds", "Minutes", "Hours", "Days", "Weeks", "Months", "Quarter", "Year"};
    EXPECT_EQ(its.person.lines_of("cboSGTimeUnit"), units);
    EXPECT_EQ(its.person.lines_of("cboPieceTimeUnit"), units);
    EXPECT_EQ(its.person.reads("cboSGTimeUnit"), "Minutes");
    EXPECT_EQ(its.person.reads("cboPieceTimeUnit"), "Seconds");
    EXPECT_EQ(its.person.reads("txtSGInterval"), "30");
    EXPECT_EQ(its.person.reads("txtPieceTimeInterval"), "10");
    EXPECT_EQ(its.person.reads("dtSyncDate"), "2026-11-21");
    EXPECT_EQ(its.person.reads("dtSyncTime"), "13:30:00");
    dialog.leaves();
}

SCENARIO(SamplingTab, NoUnitIsSelectedWhereNoneIsStored) {
    its.host.configuration->fields.subgroup_time_unit = -1;
    its.host.configuration->fields.piece_time_unit = 7;
    Configuring dialog(its);
    dialog.turns_to_sampling();
    EXPECT_EQ(its.person.sees("cboSGTimeUnit").selected, -1);
    EXPECT_EQ(its.person.reads("cboPieceTimeUnit"), "Year");
    dialog.leaves();
}

SCENARIO(SamplingTab, AStoredTriggerShowsWithABlankBeforeItsValue) {
    a_filled_configuration(its);
    Configuring dialog(its);
    dialog.turns_to_sampling();
    EXPECT_EQ(its.person.reads("txtSGEval"), "Line1.Speed =  5");
    EXPECT_EQ(its.person.reads("txtPieceEval"), "Line1.Force <  2.5");
    dialog.leaves();
}

SCENARIO(SamplingTab, EveryOperatorHasItsTextAndAnyOtherCodeNone) {
    a_filled_configuration(its);
    const std::vector<std::pair<std::int16_t, std::string>> texts = {{0, " Always "}, {1, " = "}, {2, " > "},
                                                                     {3, " >= "},     {4, " < "}, {5, " <= "},
                                                                     {6, " <> "},     {7, ""},    {-1, ""}};
    for (const auto& [type, text] : texts) {
        its.host.configuration->fields.subgroup_trigger_type = type;
        its.host.configuration->fields.piece_trigger_type = type;
        Configuring dialog(its);
        dialog.turns_to_sampling();
        EXPECT_EQ(its.person.reads("txtSGEval"), "Line1.Speed" + text + " 5");
        EXPECT_EQ(its.person.reads("txtPieceEval"), "Line1.Force" + text + " 2.5");
        dialog.leaves();
    }
}

SCENARIO(SamplingTab, WithoutAnItemNoTriggerShowsAndNoneIsKept) {
    a_filled_configuration(its);
    its.host.configuration->fields.subgroup_trigger_item = "";
    its.host.configuration->fields.piece_trigger_item = "";
    Configuring dialog(its);
    dialog.turns_to_sampling();
    EXPECT_EQ(its.person.reads("txtSGEval"), "");
    EXPECT_EQ(its.person.reads("txtPieceEval"), "");
    dialog.closes();
    EXPECT_EQ(dialog.fields().subgroup_trigger_type, 0);
    EXPECT_EQ(dialog.fields().subgroup_trigger_value, Variant(Empty()));
    EXPECT_EQ(dialog.fields().piece_trigger_type, 0);
    EXPECT_EQ(dialog.fields().piece_trigger_value, Variant(Empty()));
    EXPECT_EQ(its.host.calls.count("hlxOPCConfiguration.SubgroupTriggerValue"), 0);
    EXPECT_EQ(its.host.calls.count("hlxOPCConfiguration.PieceTriggerValue"), 0);
}

SCENARIO(SamplingTab, TheTriggerDialogGetsTheTriggerAndItsAnswerShowsWithoutTheBlank) {
    a_filled_configuration(its);
    Configuring dialog(its);
    dialog.turns_to_sampling();
    its.person.presses("cmdSubgroupTrigger");
    its.person.is_at("dlgEvaluation");
    EXPECT_EQ(its.person.reads("cboItem"), "Line1.Speed");
    EXPECT_EQ(its.person.reads("cboExpression"), " = ");
    EXPECT_EQ(its.person.reads("txtValue"), "5");
    its.person.picks("cboItem", "Line1.Force");
    its.person.picks("cboExpression", " >= ");
    its.person.enters("txtValue", "8");
    its.person.presses("bnOK");
    its.person.is_at("dlgConfiguration");
    EXPECT_EQ(its.person.reads("txtSGEval"), "Line1.Force >= 8");
    EXPECT_EQ(its.person.reads("txtPieceEval"), "Line1.Force <  2.5");
    EXPECT_EQ(dialog.fields().subgroup_trigger_item, "Line1.Speed");
    dialog.closes();
    EXPECT_EQ(dialog.fields().subgroup_trigger_item, "Line1.Force");
    EXPECT_EQ(dialog.fields().subgroup_trigger_type, 3);
    EXPECT_EQ(dialog.fields().subgroup_trigger_value, Variant(8.0));
    EXPECT_EQ(dialog.fields().piece_trigger_type, 4);
}

SCENARIO(SamplingTab, ThePieceTriggerIsSetTheSameWay) {
    a_filled_configuration(its);
    Configuring dialog(its);
    dialog.turns_to_sampling();
    its.person.presses("cmdPieceTrigger");
    EXPECT_EQ(its.person.reads("cboItem"), "Line1.Force");
    EXPECT_EQ(its.person.reads("cboExpression"), " < ");
    EXPECT_EQ(its.person.reads("txtValue"), "2.5");
    its.person.picks("cboItem", "Line1.Speed");
    its.person.picks("cboExpression", " <> ");
    its.person.presses("bnOK");
    EXPECT_EQ(its.person.reads("txtPieceEval"), "Line1.Speed <> 2.5");
    EXPECT_EQ(its.person.reads("txtSGEval"), "Line1.Speed =  5");
    dialog.closes();
    EXPECT_EQ(dialog.fields().piece_trigger_item, "Line1.Speed");
    EXPECT_EQ(dialog.fields().piece_trigger_type, 6);
    EXPECT_EQ(dialog.fields().subgroup_trigger_type, 1);
}

SCENARIO(SamplingTab, ACancelledTriggerChangesNothing) {
    a_filled_configuration(its);
    Configuring dialog(its);
    const ConfigurationFields before = dialog.fields();
    dialog.turns_to_sampling();
    for (const char* button : {"cmdSubgroupTrigger", "cmdPieceTrigger"}) {
        its.person.presses(button);
        its.person.picks("cboExpression", " <> ");
        its.person.enters("txtValue", "99");
        its.person.presses("bnCancel");
        its.person.presses(button);
        its.person.closes_the_window();
    }
    EXPECT_EQ(its.person.reads("txtSGEval"), "Line1.Speed =  5");
    EXPECT_EQ(its.person.reads("txtPieceEval"), "Line1.Force <  2.5");
    dialog.closes();
    EXPECT_EQ(dialog.fields(), before);
}

SCENARIO(SamplingTab, AlwaysShowsOnLoadingAndNotAfterTheTriggerDialog) {
    a_filled_configuration(its);
    its.host.configuration->fields.subgroup_trigger_type = 0;
    its.host.configuration->fields.subgroup_trigger_value = Empty();
    Configuring dialog(its);
    dialog.turns_to_sampling();
    EXPECT_EQ(its.person.reads("txtSGEval"), "Line1.Speed Always  ");
    its.person.presses("cmdSubgroupTrigger");
    EXPECT_EQ(its.person.reads("cboExpression"), "Always");
    its.person.presses("bnOK");
    EXPECT_EQ(its.person.reads("txtSGEval"), "Line1.Speed");
    dialog.closes();
    EXPECT_EQ(dialog.fields().subgroup_trigger_type, 0);
}

SCENARIO(SamplingTab, NoItemShowsAsNoneAndIsCommittedAsNothing) {
    a_filled_configuration(its);
    Configuring dialog(its);
    dialog.turns_to_sampling();
    its.person.presses("cmdSubgroupTrigger");
    its.person.picks("cboItem", "<None>");
    its.person.presses("bnOK");
    EXPECT_EQ(its.person.reads("txtSGEval"), "<None>");
    dialog.closes();
    EXPECT_EQ(dialog.fields().subgroup_trigger_item, "");
    EXPECT_EQ(dialog.fields().subgroup_trigger_type, 0);
    EXPECT_FALSE(its.host.group->items->is_active("Line1.Speed"));
}

SCENARIO(SamplingTab, TheTriggerIsRememberedFromOneDialogToTheNext) {
    a_filled_configuration(its);
    Configuring dialog(its);
    dialog.turns_to_sampling();
    its.person.presses("cmdSubgroupTrigger");
    its.person.enters("txtValue", "6");
    its.person.presses("bnOK");
    its.person.presses("cmdSubgroupTrigger");
    EXPECT_EQ(its.person.reads("txtValue"), "6");
    its.person.presses("bnCancel");
    dialog.leaves();
}

SCENARIO(SamplingTab, AValueWithoutDataShowsAsNothing) {
    a_filled_configuration(its);
    its.host.configuration->fields.subgroup_trigger_value = Null();
    Configuring dialog(its);
    dialog.turns_to_sampling();
    EXPECT_EQ(its.person.reads("txtSGEval"), "Line1.Speed =  ");
    dialog.leaves();
}
