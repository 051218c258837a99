#include "testing.h"

// A new test, and choosing its characteristic.

using namespace brx;
using namespace brx::checks;

SCENARIO(TestDialog, OpensEmptyForANewTest) {
    const Testing testing(its, its.host.has_test(0, ""));
    EXPECT_EQ(its.person.title(), "OPC Test Configuration");
    EXPECT_EQ(its.person.reads("lblTest"), "&A. Test:");
    EXPECT_EQ(its.person.reads("lblItem"), "&B. OPC Item:");
    EXPECT_EQ(its.person.reads("lblSaveAs"), "&C. Save As:");
    EXPECT_EQ(its.person.reads("lblConstant"), "&D. Constant:");
    EXPECT_EQ(its.person.reads("chkItemTrigger"), "&E. Trigger On Change Event");
    EXPECT_EQ(its.person.reads("lblExpression"), "&F. Expression:");
    EXPECT_EQ(its.person.reads("lblValue"), "&G. Value:");
    EXPECT_EQ(its.person.reads("bnCancel"), "&Cancel");
    EXPECT_EQ(its.person.lines_of("cboExpression"),
              Lines({"Always", " = ", " > ", " >= ", " < ", " <= ", " <> "}));
    EXPECT_EQ(its.person.sees("cboExpression").selected, 0);
    EXPECT_EQ(its.person.lines_of("cboSaveAs"),
              Lines({"Actual Value", "Absolute Value", "Reversed Sign of Actual Value", "Constant Value"}));
    EXPECT_EQ(its.person.sees("cboSaveAs").selected, 0);
    for (const char* name :
         {"bnOK", "chkItemTrigger", "cboExpression", "lblExpression", "txtValue", "lblValue"})
        EXPECT_FALSE(its.person.sees(name).enabled) << name;
    EXPECT_EQ(its.person.sees("chkItemTrigger").selected, 0);
    its.person.presses("bnCancel");
}

SCENARIO(TestDialog, ARecordOfAnotherKindIsReportedAndChoosesNothing) {
    const Testing testing(its, its.host.has_test(0, ""));
    its.host.picker->picks = its.host.configuration;
    its.person.presses("bnTest");
    its.host.picker->picks = nullptr;
    its.expect_report(error::type_mismatch, "dlgOPCTest.ResolveTestDat");
    EXPECT_EQ(its.person.reads("txtTest"), "");
    its.person.presses("bnCancel");
}

SCENARIO(TestDialog, ANewTestGetsItsCharacteristicAndItsItem) {
    Testing testing(its, its.host.has_test(0, ""));
    testing.picks_characteristic(7, "Length", 2);
    EXPECT_EQ(its.person.reads("txtTest"), "Length");
    EXPECT_FALSE(its.person.can_press("bnOK"));
    testing.picks_item("Line1.Speed");
    EXPECT_EQ(its.person.reads("txtItem"), "Line1.Speed");
    EXPECT_TRUE(its.person.can_press("bnOK"));
    EXPECT_TRUE(its.person.sees("chkItemTrigger").enabled);
    EXPECT_EQ(its.host.group->items->ids(), std::vector<std::string>{"Line1.Speed"});
    EXPECT_EQ(its.host.group->items->client_handles, std::vector{LongArray{{7}}});
    its.person.presses("bnOK");
    EXPECT_TRUE(testing.result());
    EXPECT_EQ(testing.fields().item_id, "Line1.Speed");
    EXPECT_EQ(testing.fields().client_handle, 101);
    EXPECT_EQ(testing.fields().state, 1);
    const auto& data = *its.host.configuration->tests->entries[0]->data;
    EXPECT_EQ(data.savings, (std::vector<FakeTestData::Saving>{{7, 0, 1, true}}));
}

SCENARIO(TestDialog, ThePickerShowsThePresentCharacteristicAndMayBeCancelled) {
    Testing testing(its, its.host.has_test(0, ""));
    testing.picks_characteristic(7, "Length");
    its.host.picker->picks = nullptr;
    its.person.presses("bnTest");
    EXPECT_EQ(its.host.picker->shown_with, std::vector<std::int32_t>({0, 7}));
    EXPECT_TRUE(its.host.picker->shows_the_hosts_database);
    EXPECT_EQ(its.person.reads("txtTest"), "Length");
    its.person.presses("bnCancel");
    EXPECT_FALSE(testing.result());
}

SCENARIO(TestDialog, ACharacteristicThatTheConfigurationHasIsRefused) {
    its.host.has_test(7, "Length");
    Testing testing(its, its.host.has_test(0, ""));
    testing.picks_characteristic(7, "Length");
    its.person.answers({.text = "DUPLICATE TEST!  Unable to add duplicate tests to a group.",
                        .style = message::exclamation,
                        .title = "Add Error"});
    EXPECT_EQ(its.person.reads("txtTest"), "");
    its.person.presses("bnCancel");
    EXPECT_FALSE(testing.result());
}

SCENARIO(TestDialog, TheEditedTestsOwnCharacteristicIsRefusedToo) {
    const Testing testing(its, a_bound_test(its, 5));
    its.host.picker->picks = std::make_shared<FakeTestData>(its.host.calls, 7, 1, "Length");
    its.person.presses("bnTest");
    its.person.answers({.text = "DUPLICATE TEST!  Unable to add duplicate tests to a group.",
                        .style = message::exclamation,
                        .title = "Add Error"});
    EXPECT_EQ(its.person.reads("txtTest"), "Length");
    EXPECT_TRUE(its.person.can_press("bnOK"));
    its.person.presses("bnCancel");
}

SCENARIO(TestDialog, AnItemAloneIsNotEnough) {
    Testing testing(its, its.host.has_test(0, ""));
    testing.picks_item("Line1.Speed");
    EXPECT_FALSE(its.person.can_press("bnOK"));
    EXPECT_FALSE(its.person.sees("chkItemTrigger").enabled);
    its.person.presses("bnCancel");
}
