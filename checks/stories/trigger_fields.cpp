#include "triggering.h"

// Which fields of the trigger dialog are open, and triggers on no item.

using namespace brx;
using namespace brx::checks;

SCENARIO(TriggerDialog, OpensWithTheTriggerTheGroupsItemsAndTheOperators) {
    a_trigger(its, "Count", 2, std::int32_t{7});
    Triggering trigger(its);
    its.person.is_at("dlgEvaluation");
    EXPECT_EQ(its.person.lines_of("cboItem"),
              Lines({"<None>", "Line1.Speed", "Line1.Force", "Short", "Count", "Single", "Flag", "Text"}));
    EXPECT_EQ(its.person.reads("cboItem"), "Count");
    EXPECT_EQ(its.person.lines_of("cboExpression"),
              Lines({"Always", " = ", " > ", " >= ", " < ", " <= ", " <> "}));
    EXPECT_EQ(its.person.reads("cboExpression"), " > ");
    EXPECT_EQ(its.person.reads("txtValue"), "7");
    for (const char* control : {"cboItem", "bnItem", "cboExpression", "txtValue", "bnOK", "bnCancel"})
        EXPECT_TRUE(its.person.sees(control).enabled) << control;
    trigger.cancels();
}

SCENARIO(TriggerDialog, WithoutAnItemEverythingButTheItemIsClosed) {
    a_trigger(its, "", 3, std::string("x"));
    Triggering trigger(its);
    EXPECT_EQ(its.person.reads("cboItem"), "<None>");
    EXPECT_EQ(its.person.reads("cboExpression"), "Always");
    EXPECT_EQ(its.person.reads("txtValue"), "");
    for (const char* control : {"cboExpression", "txtValue"})
        EXPECT_FALSE(its.person.sees(control).enabled) << control;
    trigger.confirms();
    EXPECT_EQ(trigger.item(), "");
    EXPECT_EQ(trigger.operator_code(), 0);
    EXPECT_EQ(trigger.value(), Variant(std::string()));
}

SCENARIO(TriggerDialog, AnItemThatTheGroupLacksLeavesNoneSelected) {
    a_trigger(its, "count", 2, std::int32_t{7});
    Triggering trigger(its);
    EXPECT_EQ(its.person.reads("cboItem"), "<None>");
    EXPECT_EQ(its.person.sees("cboItem").lines.size(), 8U);
    trigger.confirms();
    EXPECT_EQ(trigger.item(), "");
    EXPECT_EQ(trigger.operator_code(), 0);
    EXPECT_EQ(trigger.value(), Variant(std::string()));
}

SCENARIO(TriggerDialog, AnItemThatIsCalledNoneStandsForNoItem) {
    a_trigger(its, "Count", 2, std::int32_t{7});
    its.host.group->items->has("<NONE>");
    Triggering trigger(its);
    its.person.picks("cboItem", "<NONE>");
    its.person.presses("bnOK");
    its.person.is_at("dlgConfiguration");
    EXPECT_EQ(its.person.reads("txtSGEval"), "<NONE>");
    trigger.configuration().leaves();
}

SCENARIO(TriggerDialog, WithoutAGroupTheTriggerCanStillBeCleared) {
    a_trigger(its, "Count", 2, std::int32_t{7});
    its.host.configuration->group = nullptr;
    Triggering trigger(its);
    its.expect_report(error::type_mismatch, "CommonTools.ResolveOPCGroup");
    its.expect_report(error::object_not_set, "dlgEvaluation.BuildDlg");
    EXPECT_EQ(its.person.sees("cboItem").selected, -1);
    its.person.presses("bnOK");
    its.person.is_at("dlgEvaluation");
    EXPECT_TRUE(its.person.has_focus("cboItem"));
    its.person.picks("cboItem", "<None>");
    its.person.presses("bnOK");
    its.person.is_at("dlgConfiguration");
    EXPECT_EQ(its.person.reads("txtSGEval"), "<None>");
    trigger.configuration().leaves();
}

SCENARIO(TriggerDialog, ChoosingAnItemOpensTheOperatorsAndAnOperatorTheValue) {
    a_trigger(its, "", 0, std::string());
    Triggering trigger(its);
    its.person.picks("cboItem", "Count");
    EXPECT_TRUE(its.person.sees("cboExpression").enabled);
    EXPECT_FALSE(its.person.sees("txtValue").enabled);
    its.person.picks("cboExpression", " < ");
    EXPECT_TRUE(its.person.sees("txtValue").enabled);
    its.person.enters("txtValue", "5");
    its.person.picks("cboItem", "Short");
    EXPECT_EQ(its.person.reads("txtValue"), "5");
    its.person.picks("cboItem", "<None>");
    EXPECT_FALSE(its.person.sees("cboExpression").enabled);
    EXPECT_FALSE(its.person.sees("txtValue").enabled);
    EXPECT_EQ(its.person.reads("txtValue"), "");
    its.person.picks("cboItem", "Count");
    EXPECT_TRUE(its.person.sees("txtValue").enabled);
    its.person.enters("txtValue", "5");
    its.person.picks("cboExpression", "Always");
    EXPECT_FALSE(its.person.sees("txtValue").enabled);
    EXPECT_EQ(its.person.reads("txtValue"), "");
    trigger.cancels();
}

SCENARIO(TriggerDialog, TabGoesFromTheItemToTheButtons) {
    a_trigger(its, "Count", 2, std::int32_t{7});
    Triggering trigger(its);
    EXPECT_TRUE(its.person.has_focus("cboItem"));
    for (const char* control : {"bnItem", "cboExpression", "txtValue", "bnOK", "bnCancel", "cboItem"}) {
        its.person.hits(Key::tab);
        EXPECT_TRUE(its.person.has_focus(control)) << control;
    }
    trigger.cancels();
}
