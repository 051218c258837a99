#include "testing.h"

// Trigger, constant and value of a test.

using namespace brx;
using namespace brx::checks;

SCENARIO(TestDialog, TickingTheTriggerOpensItsFieldsTheValueToo) {
    Testing testing(its, its.host.has_test(0, ""));
    testing.picks_characteristic(7, "Length");
    testing.picks_item("Line1.Speed");
    its.person.ticks("chkItemTrigger");
    EXPECT_TRUE(its.person.sees("cboExpression").enabled);
    EXPECT_TRUE(its.person.sees("lblExpression").enabled);
    EXPECT_TRUE(its.person.sees("txtValue").enabled); // although "Always" takes none
    its.person.ticks("chkItemTrigger");
    for (const char* name : {"cboExpression", "lblExpression", "txtValue", "lblValue"})
        EXPECT_FALSE(its.person.sees(name).enabled) << name;
    its.person.presses("bnCancel");
}

SCENARIO(TestDialog, AlwaysClosesTheValueAndKeepsItsText) {
    const Testing testing(its, a_bound_test(its, 2));
    its.person.picks("cboExpression", "Always");
    EXPECT_FALSE(its.person.sees("txtValue").enabled);
    EXPECT_EQ(its.person.reads("txtValue"), "12");
    its.person.picks("cboExpression", " <> ");
    EXPECT_TRUE(its.person.sees("txtValue").enabled);
    its.person.presses("bnCancel");
}

SCENARIO(TestDialog, AlwaysInPlaceOfAnotherOperatorIsKept) {
    Testing testing(its, a_bound_test(its, 2));
    its.person.picks("cboExpression", "Always");
    its.person.presses("bnOK");
    EXPECT_TRUE(testing.result());
    EXPECT_TRUE(testing.fields().item_trigger);
    EXPECT_EQ(testing.fields().expression, 0);
}

SCENARIO(TestDialog, TheValueIsKeptAsTheItemsType) {
    struct Case {
        std::int16_t type;
        const char* text;
        Variant expected;
    };
    const Case cases[] = {{2, "-32768", std::int16_t{-32768}},
                          {2, "2.5", std::int16_t{2}},
                          {3, "2147483647", 2147483647},
                          {4, "1.5", 1.5F},
                          {5, "1e3", 1000.0},
                          {11, "true", true},
                          {11, "0", false},
                          {8, " as it is ", std::string(" as it is ")},
                          {7, "1/2/2026", std::string("1/2/2026")}};
    for (const Case& each : cases) {
        SCOPED_TRACE(each.text);
        its.host.group->items->data_types["Line1.Speed"] = each.type;
        its.host.configuration->tests->entries.clear();
        Testing testing(its, [&] {
            const auto test = a_bound_test(its, each.type);
            test->fields.client_handle = 0;
            return test;
        }());
        its.person.enters("txtValue", each.text);
        its.person.presses("bnOK");
        EXPECT_TRUE(testing.result());
        EXPECT_EQ(testing.fields().value, each.expected);
        start_over(its);
    }
}

SCENARIO(TestDialog, AValueOfAnotherTypeIsToldAndTheFormerOneKept) {
    Testing testing(its, a_bound_test(its, 2));
    its.person.enters("txtValue", "abc");
    its.person.presses("bnOK");
    its.person.answers({.text = "Invalid Value for this OPC Item. (13)",
                        .style = message::information,
                        .title = "Invalid Value"});
    EXPECT_TRUE(testing.result());
    EXPECT_EQ(testing.fields().value, Variant(std::int16_t{12}));
}

SCENARIO(TestDialog, AValueThatIsTooLargeIsToldWithItsNumber) {
    Testing testing(its, a_bound_test(its, 2));
    its.person.enters("txtValue", "32768");
    its.person.presses("bnOK");
    its.person.answers({.text = "Invalid Value for this OPC Item. (6)",
                        .style = message::information,
                        .title = "Invalid Value"});
    EXPECT_TRUE(testing.result());
}

SCENARIO(TestDialog, ABooleanItemKeepsAnyOperator) {
    Testing testing(its, a_bound_test(its, 11));
    its.person.enters("txtValue", "True");
    its.person.presses("bnOK");
    EXPECT_TRUE(testing.result());
    EXPECT_EQ(testing.fields().expression, 2);
    EXPECT_EQ(testing.fields().value, Variant(true));
}

SCENARIO(TestDialog, ATypeThatCannotBeReadIsToldAndTheValueKeptAsText) {
    const auto test = a_bound_test(its, 2);
    test->fields.item_id = test->fields.item_text = "Gone";
    test->fields.item_trigger = false;
    Testing testing(its, test);
    its.person.ticks("chkItemTrigger");
    its.person.picks("cboExpression", " = ");
    its.person.enters("txtValue", "12");
    its.person.presses("bnOK");
    its.person.answers(no_data_type());
    EXPECT_TRUE(testing.result());
    EXPECT_EQ(testing.fields().value, Variant(std::string("12")));
    EXPECT_EQ(its.host.connection->error_codes, std::vector{error::subscript_out_of_range});
}

SCENARIO(TestDialog, ATypeThatIsGoneByTheTimeOfOKIsToldAndTheValueKeptAsText) {
    Testing testing(its, a_bound_test(its, 2));
    its.host.group->items->forget_all();
    its.person.presses("bnOK");
    its.person.answers(no_data_type());
    EXPECT_TRUE(testing.result());
    EXPECT_EQ(testing.fields().value, Variant(std::string("12")));
}

SCENARIO(TestDialog, WithoutAServerATypeThatCannotBeReadIsToldOnceAndWithoutAText) {
    Testing testing(its, a_bound_test(its, 2));
    its.host.group->items->forget_all();
    testing.loses_the_server();
    its.person.presses("bnOK");
    its.person.answers(no_data_type(""));
    EXPECT_TRUE(testing.result());
    EXPECT_EQ(testing.fields().value, Variant(std::string("12")));
}

SCENARIO(TestDialog, WithTheTriggerOffTheOperatorIsAlwaysWhateverTheListShows) {
    Testing testing(its, a_bound_test(its, 2));
    its.person.ticks("chkItemTrigger");
    EXPECT_EQ(its.person.reads("cboExpression"), " > ");
    its.person.presses("bnOK");
    EXPECT_TRUE(testing.result());
    EXPECT_FALSE(testing.fields().item_trigger);
    EXPECT_EQ(testing.fields().expression, 0);
}

SCENARIO(TestDialog, AlwaysLooksAtAValueThatIsThereAllTheSame) {
    Testing testing(its, a_bound_test(its, 2));
    its.person.enters("txtValue", "abc");
    its.person.picks("cboExpression", "Always");
    its.person.presses("bnOK");
    its.person.answers({.text = "Invalid Value for this OPC Item. (13)",
                        .style = message::information,
                        .title = "Invalid Value"});
    EXPECT_TRUE(testing.result());
    EXPECT_EQ(testing.fields().expression, 0);
    EXPECT_EQ(testing.fields().value, Variant(std::int16_t{12}));
}

SCENARIO(TestDialog, AnUnknownOperatorHasToBeReplaced) {
    const auto test = a_bound_test(its, 2);
    test->fields.expression = -1;
    Testing testing(its, test);
    EXPECT_EQ(its.person.sees("cboExpression").selected, -1);
    its.person.presses("bnOK");
    its.person.answers({.text = "An Expression must be selected before continuing.",
                        .style = message::exclamation,
                        .title = "Expression Error"});
    EXPECT_TRUE(its.person.has_focus("cboExpression"));
    its.person.picks("cboExpression", "Always");
    its.person.presses("bnOK");
    EXPECT_TRUE(testing.result());
}

SCENARIO(TestDialog, AnEmptyConstantIsStoredAsZero) {
    Testing testing(its, a_bound_test(its, 2));
    its.person.enters("txtConstant", "");
    its.person.presses("bnOK");
    EXPECT_TRUE(testing.result());
    EXPECT_EQ(testing.fields().constant, 0.0);
}

SCENARIO(TestDialog, AConstantThatIsNoNumberIsReportedAndChangesNothing) {
    const auto test = a_bound_test(its, 2);
    const TestFields before = test->fields;
    Testing testing(its, test);
    testing.picks_characteristic(8, "Width");
    const Lines writes_before = testing.writes(); // to look up the characteristic's group
    its.person.enters("txtConstant", "1x");
    its.person.presses("bnOK");
    its.expect_report(error::type_mismatch, "dlgOPCTest.TestChoices");
    its.person.is_at("dlgOPCTest");
    EXPECT_EQ(testing.writes(), writes_before) << "It is refused before anything is written.";
    EXPECT_EQ(its.person.reads("txtConstant"), "1x");
    EXPECT_TRUE(its.person.has_focus("txtConstant"));
    its.person.types("2"); // over the whole text
    EXPECT_EQ(its.person.reads("txtConstant"), "2");
    its.person.presses("bnCancel");
    EXPECT_FALSE(testing.result());
    EXPECT_EQ(testing.fields(), before);
    EXPECT_EQ(test->data->id, 7);
}

SCENARIO(TestDialog, ConstantAndSaveAsAreStored) {
    Testing testing(its, a_bound_test(its, 2));
    its.person.enters("txtConstant", "-2.25");
    its.person.picks("cboSaveAs", "Absolute Value");
    its.person.presses("bnOK");
    EXPECT_TRUE(testing.result());
    EXPECT_EQ(testing.fields().constant, -2.25);
    EXPECT_EQ(testing.fields().save_as, 1);
}

SCENARIO(TestDialog, CancelChangesNothing) {
    const auto test = a_bound_test(its, 2);
    const TestFields before = test->fields;
    Testing testing(its, test);
    its.person.enters("txtValue", "99");
    its.person.enters("txtConstant", "7");
    its.person.presses("bnCancel");
    EXPECT_FALSE(testing.result());
    EXPECT_EQ(testing.fields(), before);
    EXPECT_EQ(testing.writes(), std::vector<std::string>());
}
