#include "triggering.h"

// What the trigger dialog's OK makes of what was entered: conversions, its message, and its refusals.

using namespace brx;
using namespace brx::checks;

namespace {

const Message invalid_value = {.text = "Invalid value for this Item.  Value must be ",
                               .style = message::information,
                               .title = "Invalid Value"};

} // namespace

SCENARIO(TriggerDialog, TheValueIsConvertedToTheItemsType) {
    struct Case {
        const char* item;
        const char* text;
        Variant expected;
    };
    const Case cases[] = {{"Short", "-7", std::int16_t{-7}},
                          {"Count", "2147483647", 2147483647},
                          {"Single", "1.5", 1.5F},
                          {"Flag", "true", true},
                          {"Text", "1e2", 100.0}};
    for (const auto& [item, text, expected] : cases) {
        SCOPED_TRACE(item);
        its.host.configuration->tests->entries.clear();
        its.host.group->items->forget_all();
        a_trigger(its, item, 1, Empty());
        Triggering trigger(its);
        its.person.enters("txtValue", text);
        trigger.confirms();
        EXPECT_EQ(trigger.item(), item);
        EXPECT_EQ(trigger.operator_code(), 1);
        EXPECT_EQ(trigger.value(), expected);
    }
}

SCENARIO(TriggerDialog, AValueOfAnotherTypeIsToldAndToBeTypedAgain) {
    a_trigger(its, "Count", 1, std::string("old"));
    const ConfigurationFields before = its.host.configuration->fields;
    Triggering trigger(its);
    for (const char* item : {"Short", "Count", "Single", "Flag", "Text"}) {
        SCOPED_TRACE(item);
        its.person.picks("cboItem", item);
        its.person.enters("txtValue", "abc");
        its.person.presses("bnOK");
        its.person.answers(invalid_value);
        its.person.is_at("dlgEvaluation");
        EXPECT_EQ(its.person.reads("txtValue"), "abc");
        EXPECT_TRUE(its.person.has_focus("txtValue"));
        its.person.types("x"); // over the whole text
        EXPECT_EQ(its.person.reads("txtValue"), "x");
    }
    its.person.presses("bnCancel");
    trigger.configuration().closes();
    EXPECT_EQ(its.host.configuration->fields, before);
}

SCENARIO(TriggerDialog, AnOperatorWithoutAValueIsRefusedAndTheValueToBeTyped) {
    a_trigger(its, "Count", 0, std::string("old"));
    const ConfigurationFields before = its.host.configuration->fields;
    Triggering trigger(its);
    its.person.picks("cboExpression", " >= ");
    its.person.presses("bnOK");
    its.person.is_at("dlgEvaluation");
    EXPECT_TRUE(its.person.has_focus("txtValue"));
    its.person.presses("bnCancel");
    trigger.configuration().closes();
    EXPECT_EQ(its.host.configuration->fields, before);
}

SCENARIO(TriggerDialog, AnOperatorWithoutAValueCanBeCompleted) {
    a_trigger(its, "Count", 0, std::string("old"));
    Triggering trigger(its);
    its.person.picks("cboExpression", " >= ");
    its.person.presses("bnOK");
    its.person.types("8");
    trigger.confirms();
    EXPECT_EQ(trigger.operator_code(), 3);
    EXPECT_EQ(trigger.value(), Variant(std::int32_t{8}));
}

SCENARIO(TriggerDialog, AnUnknownOperatorHasToBeReplaced) {
    for (const std::int16_t code : {std::int16_t{7}, std::int16_t{-1}}) {
        SCOPED_TRACE(code);
        its.host.configuration->tests->entries.clear();
        its.host.group->items->forget_all();
        a_trigger(its, "Count", code, std::int32_t{7});
        Triggering trigger(its);
        if (code == 7) its.expect_report(error::invalid_procedure_call, "dlgEvaluation.BuildDlg");
        EXPECT_EQ(its.person.sees("cboExpression").selected, -1);
        its.person.presses("bnOK");
        its.person.is_at("dlgEvaluation");
        EXPECT_TRUE(its.person.has_focus("cboExpression"));
        its.person.picks("cboExpression", " <> ");
        its.person.enters("txtValue", "9");
        trigger.confirms();
        EXPECT_EQ(trigger.operator_code(), 6);
        EXPECT_EQ(trigger.value(), Variant(std::int32_t{9}));
    }
}

SCENARIO(TriggerDialog, AlwaysNeedsNoValueAndKeepsTheFormerOne) {
    a_trigger(its, "Count", 0, std::int32_t{3});
    Triggering trigger(its);
    EXPECT_EQ(its.person.reads("txtValue"), "");
    EXPECT_FALSE(its.person.sees("txtValue").enabled);
    trigger.confirms();
    EXPECT_EQ(trigger.item(), "Count");
    EXPECT_EQ(trigger.operator_code(), 0);
    EXPECT_EQ(trigger.value(), Variant(std::int32_t{3}));
}

SCENARIO(TriggerDialog, ABooleanItemsOperatorGoesBackToAlways) {
    a_trigger(its, "Flag", 2, true);
    Triggering trigger(its);
    EXPECT_EQ(its.person.reads("txtValue"), "True");
    its.person.presses("bnOK");
    // Going back to "Always" empties the value, which is then no Boolean.
    its.person.answers(invalid_value);
    EXPECT_EQ(its.person.reads("cboExpression"), "Always");
    EXPECT_TRUE(its.person.has_focus("cboExpression"));
    EXPECT_EQ(its.person.reads("txtValue"), "");
    EXPECT_FALSE(its.person.sees("txtValue").enabled);
    trigger.confirms();
    EXPECT_EQ(trigger.operator_code(), 0);
    EXPECT_EQ(trigger.value(), Variant(true));
}

SCENARIO(TriggerDialog, ABooleanItemKeepsEquality) {
    a_trigger(its, "Flag", 1, false);
    Triggering trigger(its);
    its.person.enters("txtValue", "1");
    trigger.confirms();
    EXPECT_EQ(trigger.operator_code(), 1);
    EXPECT_EQ(trigger.value(), Variant(true));
}

SCENARIO(TriggerDialog, WithoutAServerATypeThatCannotBeReadIsToldOnceAndWithoutAText) {
    a_filled_configuration(its);
    an_unconnected_server(its, "Plant.Simulation.1");
    Triggering trigger(its);
    its.host.group->items->forget_all();
    its.person.presses("bnOK");
    its.person.answers({.text = "", .style = message::exclamation, .title = "Error Getting Data Type"});
    its.person.is_at("dlgConfiguration");
    EXPECT_EQ(its.person.reads("txtSGEval"), "Line1.Speed = 5");
    trigger.configuration().leaves();
}

SCENARIO(TriggerDialog, ATypeThatCannotBeReadIsToldAndTheValueBecomesADouble) {
    a_trigger(its, "Count", 1, std::int32_t{7});
    Triggering trigger(its);
    its.host.calls.fail_on("OPCItem.CanonicalDataType");
    its.person.presses("bnOK");
    its.person.answers({.text = "The item is not known to the server.",
                        .style = message::exclamation,
                        .title = "Error Getting Data Type"});
    its.host.calls.fail_on("");
    its.person.is_at("dlgConfiguration");
    EXPECT_EQ(its.host.connection->error_codes, std::vector{CallLog::failure_number});
    trigger.configuration().closes();
    EXPECT_EQ(trigger.value(), Variant(7.0));
}

SCENARIO(TriggerDialog, ATypeThatCannotBeReadIsToldBeforeTheDialogShows) {
    a_trigger(its, "Count", 1, std::int32_t{7});
    its.host.calls.fail_on("OPCItem.CanonicalDataType");
    Triggering trigger(its);
    its.person.answers({.text = "The item is not known to the server.",
                        .style = message::exclamation,
                        .title = "Error Getting Data Type"});
    its.host.calls.fail_on("");
    its.person.is_at("dlgEvaluation");
    EXPECT_EQ(its.person.reads("txtValue"), "7");
    trigger.cancels();
}

SCENARIO(TriggerDialog, WhyABrowsedItemsTypeCannotBeReadIsToldThoughTheConnectionWentMeanwhile) {
    a_filled_configuration(its);
    its.host.group->items->answers["Version"] = 0;
    Triggering trigger(its);
    its.person.presses("bnItem");
    its.person.enters("txtFullPath", "Version");
    an_unconnected_server(its, "Plant.Simulation.1");
    its.host.calls.fail_on("OPCItem.CanonicalDataType");
    its.person.presses("bnOK");
    its.person.answers({.text = "The item is not known to the server.",
                        .style = message::exclamation,
                        .title = "Error Getting Data Type"});
    its.host.calls.fail_on("");
    its.person.is_at("dlgEvaluation");
    EXPECT_EQ(its.person.reads("cboItem"), "Version");
    trigger.cancels();
}
