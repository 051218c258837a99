#include "testing.h"

#include <utility>

// The test dialog opening for a test that exists.

using namespace brx;
using namespace brx::checks;

namespace {

/// OK can be pressed, tells that something is missing, and the dialog stays with the focus in its box.
void cannot_confirm(Play& its, Testing& testing, const char* box) {
    EXPECT_TRUE(its.person.can_press("bnOK"));
    its.person.presses("bnOK");
    its.person.answers({.text = "INVALID SELECTION!\r\n\r\nPlease select a Test and OPC Item.",
                        .style = message::information,
                        .title = component_name});
    its.person.is_at("dlgOPCTest");
    EXPECT_TRUE(its.person.has_focus(box));
    its.person.presses("bnCancel");
    EXPECT_FALSE(testing.result());
}

} // namespace

SCENARIO(TestDialog, AnExistingTestComesWithAllItsFields) {
    Testing testing(its, a_bound_test(its, 2));
    EXPECT_EQ(its.person.reads("txtTest"), "Length");
    EXPECT_EQ(its.person.reads("txtItem"), "Line1.Speed");
    EXPECT_EQ(its.person.sees("chkItemTrigger").selected, 1);
    EXPECT_EQ(its.person.sees("cboExpression").text, " > ");
    EXPECT_EQ(its.person.reads("txtValue"), "12");
    EXPECT_EQ(its.person.reads("txtConstant"), "1.5");
    EXPECT_EQ(its.person.sees("cboSaveAs").text, "Constant Value");
    for (const char* name : {"bnOK", "chkItemTrigger", "cboExpression", "txtValue", "lblValue"})
        EXPECT_TRUE(its.person.sees(name).enabled) << name;
    const TestFields before = testing.fields();
    its.person.presses("bnOK");
    EXPECT_TRUE(testing.result());
    TestFields expected = before;
    expected.state = 1;
    EXPECT_EQ(testing.fields(), expected);
    EXPECT_TRUE(its.host.configuration->tests->entries[0]->data->savings.empty());
}

SCENARIO(TestDialog, ATestWithoutATriggerKeepsItsTriggerFieldsDark) {
    const auto test = a_bound_test(its, 2);
    test->fields.item_trigger = false;
    Testing testing(its, test);
    EXPECT_EQ(its.person.sees("chkItemTrigger").selected, 0);
    EXPECT_FALSE(its.person.sees("cboExpression").enabled);
    EXPECT_EQ(its.person.reads("txtValue"), "");
    its.person.presses("bnOK");
    EXPECT_TRUE(testing.result());
    EXPECT_EQ(testing.fields().expression, 0);
}

SCENARIO(TestDialog, InStateTwoTheItemIsNotShown) {
    const auto test = a_bound_test(its, 2);
    test->fields.state = 2;
    test->fields.item_trigger = false;
    Testing testing(its, test);
    EXPECT_EQ(its.person.reads("txtItem"), "");
    EXPECT_EQ(its.person.reads("txtTest"), "Length");
    cannot_confirm(its, testing, "txtItem");
}

SCENARIO(TestDialog, CancellingThePickerClosesOKWhileTheItemIsMissing) {
    const auto test = a_bound_test(its, 2);
    test->fields.state = 2;
    test->fields.item_trigger = false;
    const Testing testing(its, test);
    EXPECT_TRUE(its.person.can_press("bnOK"));
    EXPECT_TRUE(its.person.sees("chkItemTrigger").enabled);
    its.host.picker->picks = nullptr;
    its.person.presses("bnTest");
    EXPECT_FALSE(its.person.can_press("bnOK"));
    EXPECT_FALSE(its.person.sees("chkItemTrigger").enabled);
    its.person.presses("bnCancel");
}

SCENARIO(TestDialog, AnItemWithoutACharacteristicIsAnInvalidSelection) {
    const auto test = a_bound_test(its, 2);
    test->fields.characteristic = test->data->name = "";
    Testing testing(its, test);
    EXPECT_EQ(its.person.reads("txtTest"), "");
    cannot_confirm(its, testing, "txtTest");
}

SCENARIO(TestDialog, AnItemThatOnlyTheDialogIsGivenMakesAnExistingTestToo) {
    const auto test = a_bound_test(its, 2);
    test->fields.item_id = "";
    Testing testing(its, test);
    EXPECT_EQ(its.person.reads("txtTest"), "Length");
    EXPECT_EQ(its.person.reads("txtItem"), "Line1.Speed");
    EXPECT_EQ(its.person.reads("txtConstant"), "1.5");
    its.person.presses("bnOK");
    EXPECT_TRUE(testing.result());
    EXPECT_EQ(testing.fields().item_id, "Line1.Speed");
}

SCENARIO(TestDialog, ATypeThatCannotBeReadIsToldBeforeTheTestShows) {
    const auto test = a_bound_test(its, 2);
    its.host.group->items->forget_all();
    const Testing testing(its, test, {no_data_type()});
    EXPECT_EQ(its.person.reads("cboExpression"), " > ");
    EXPECT_EQ(its.person.reads("txtValue"), "12");
    EXPECT_TRUE(its.person.can_press("bnOK"));
    its.person.presses("bnCancel");
}

SCENARIO(TestDialog, ATestThatCouldNotBeReadIsNotWritten) {
    const std::pair<const char*, const char*> places[] = {
        {"OPCItemID", "Form_Load"},       {"ClientHandle", "EditSet"}, {"CharacteristicName", "EditSet"},
        {"ItemTrigger", "EditSet"},       {"Constant", "EditSet"},     {"SaveAs", "EditSet"},
        {"TriggerExpression", "EditSet"}, {"TriggerValue", "EditSet"}};
    for (const auto& [member, procedure] : places) {
        SCOPED_TRACE(member);
        start_over(its);
        const auto test = a_bound_test(its, 2);
        const TestFields before = test->fields;
        its.host.calls.fail_on(std::string("hlxOPCTest.") + member);
        Testing testing(its, test);
        its.expect_report(CallLog::failure_number, std::string("dlgOPCTest.") + procedure);
        its.host.calls.fail_on("");
        EXPECT_FALSE(its.person.can_press("bnOK"));
        testing.picks_item("Line1.Force");
        testing.picks_characteristic(8, "Width");
        EXPECT_EQ(its.person.reads("txtItem"), "Line1.Force");
        EXPECT_EQ(its.person.reads("txtTest"), "Width");
        EXPECT_FALSE(its.person.can_press("bnOK")) << "Nobody knows what OK would write over.";
        EXPECT_FALSE(its.person.sees("chkItemTrigger").enabled);
        its.person.presses("bnCancel");
        EXPECT_FALSE(testing.result());
        EXPECT_EQ(test->fields, before);
        EXPECT_EQ(test->data->id, 7);
    }
}

SCENARIO(TestDialog, ASaveAsCodeThatTheListLacksIsReportedAndCanBeReplaced) {
    for (const std::int16_t code : {std::int16_t{4}, std::int16_t{-2}}) {
        start_over(its);
        const auto test = a_bound_test(its, 2);
        test->fields.save_as = code;
        Testing testing(its, test);
        its.expect_report(error::invalid_procedure_call, "dlgOPCTest.EditSet");
        EXPECT_EQ(its.person.reads("cboSaveAs"), "Actual Value");
        EXPECT_EQ(its.person.reads("cboExpression"), " > ");
        EXPECT_EQ(its.person.reads("txtValue"), "12");
        EXPECT_TRUE(its.person.sees("chkItemTrigger").enabled);
        its.person.picks("cboSaveAs", "Absolute Value");
        its.person.presses("bnOK");
        EXPECT_TRUE(testing.result());
        EXPECT_EQ(testing.fields().save_as, 1);
        EXPECT_EQ(testing.fields().expression, 2);
        EXPECT_EQ(testing.fields().value, Variant(std::int16_t{12}));
    }
}

SCENARIO(TestDialog, AnOperatorCodeThatTheListLacksIsReportedAndCanBeReplaced) {
    const auto test = a_bound_test(its, 2);
    test->fields.expression = 7;
    Testing testing(its, test);
    its.expect_report(error::invalid_procedure_call, "dlgOPCTest.EditSet");
    EXPECT_EQ(its.person.reads("cboExpression"), "Always");
    EXPECT_EQ(its.person.reads("txtValue"), "12");
    its.person.picks("cboExpression", " <> ");
    its.person.presses("bnOK");
    EXPECT_TRUE(testing.result());
    EXPECT_EQ(testing.fields().expression, 6);
    EXPECT_EQ(testing.fields().value, Variant(std::int16_t{12}));
}

SCENARIO(TestDialog, ATriggerValueWithoutDataIsReportedAndCanBeReplaced) {
    const auto test = a_bound_test(its, 2);
    test->fields.value = Null();
    Testing testing(its, test);
    its.expect_report(error::invalid_use_of_null, "dlgOPCTest.EditSet");
    EXPECT_EQ(its.person.reads("txtValue"), "");
    EXPECT_EQ(its.person.reads("cboExpression"), " > ");
    its.person.enters("txtValue", "5");
    its.person.presses("bnOK");
    EXPECT_TRUE(testing.result());
    EXPECT_EQ(testing.fields().value, Variant(std::int16_t{5}));
}

SCENARIO(TestDialog, OfSeveralFieldsThatCannotShowTheFirstIsReported) {
    const auto test = a_bound_test(its, 2);
    test->fields.save_as = 4;
    test->fields.value = Null();
    Testing testing(its, test);
    its.expect_report(error::invalid_procedure_call, "dlgOPCTest.EditSet");
    its.person.enters("txtValue", "5");
    its.person.presses("bnOK");
    EXPECT_TRUE(testing.result());
    EXPECT_EQ(testing.fields().save_as, 0);
    EXPECT_EQ(testing.fields().value, Variant(std::int16_t{5}));
}

SCENARIO(TestDialog, EveryFieldHasItsLetter) {
    const Testing testing(its, a_bound_test(its, 2));
    const std::pair<char, const char*> letters[] = {
        {'b', "txtItem"},     {'a', "txtTest"},       {'c', "cboSaveAs"}, {'c', "bnCancel"},
        {'d', "txtConstant"}, {'f', "cboExpression"}, {'g', "txtValue"},  {'e', "chkItemTrigger"}};
    for (const auto& [letter, control] : letters) {
        its.person.uses_accelerator(letter);
        EXPECT_TRUE(its.person.has_focus(control)) << letter;
    }
    EXPECT_EQ(its.person.sees("chkItemTrigger").selected, 0); // the letter ticks as well
    its.person.presses("bnCancel");
}

SCENARIO(TestDialog, TabGoesFromTheTestToTheButtons) {
    const Testing testing(its, a_bound_test(its, 2));
    its.person.goes_to("txtTest");
    for (const char* control : {"bnTest", "txtItem", "bnItem", "cboSaveAs", "txtConstant", "chkItemTrigger",
                                "cboExpression", "txtValue", "bnOK", "bnCancel", "txtTest"}) {
        its.person.hits(Key::tab);
        EXPECT_TRUE(its.person.has_focus(control)) << control;
    }
    its.person.presses("bnCancel");
}

SCENARIO(TestDialog, CharacteristicAndItemAreChosenNotTyped) {
    const Testing testing(its, a_bound_test(its, 2));
    const std::pair<const char*, const char*> boxes[] = {{"txtTest", "Length"}, {"txtItem", "Line1.Speed"}};
    for (const auto& [box, text] : boxes) {
        its.person.goes_to(box);
        its.person.types("x");
        EXPECT_EQ(its.person.reads(box), text);
    }
    its.person.presses("bnCancel");
}

SCENARIO(TestConfiguration, IsReportedAndNotShownForAnythingButATest) {
    Showing edit(*its.stage, "TestConfiguration");
    edit.show(nullptr);
    EXPECT_FALSE(edit.result());
    its.expect_report(error::type_mismatch, "TestConfiguration.ResolvehlxOPCTest");
    edit.show(its.host.group);
    EXPECT_FALSE(edit.result());
    its.expect_report(error::type_mismatch, "TestConfiguration.ResolvehlxOPCTest");
}

SCENARIO(TestConfiguration, ATestThatBelongsToNobodyIsReportedAndNotShown) {
    const auto test = its.host.has_test(7, "Length");
    test->parent.reset();
    Showing edit(*its.stage, "TestConfiguration");
    edit.show(test);
    EXPECT_FALSE(edit.result());
    its.expect_report(error::object_not_set, "TestConfiguration.Show");
}
