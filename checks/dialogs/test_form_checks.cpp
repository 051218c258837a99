#include "forms/one_form.h"
#include "tests/dlgOPCTest.h"

#include <gtest/gtest.h>

using namespace brx;
using namespace brx::checks;

// What of the test dialog a person cannot read off the screen, or only as a colour.

namespace {

struct TestForm : testing::Test {
    TestForm() {
        test->fields.item_id = "Line1.Speed";
        host.group->items->has("Line1.Speed");
        host.group->items->answers["Line1.Force"] = 0;
        host.browser->root.has("Line1", {"Speed", "Force"});
        form.set_test(test);
        form.set_database(host.database);
        form.set_TestOPCItemID("Line1.Speed");
        engine.while_asking = [this](const Message& message) {
            messages.push_back(message);
            return message::ok;
        };
    }

    FakeHost host;
    ScriptedEngine engine;
    Environment environment{engine, host, host, Locale{}};
    std::shared_ptr<FakeTest> test = host.has_test(7, "Length");
    dlgOPCTest form{environment};
    std::vector<Message> messages;

    TextBox& constant() { return control_of<TextBox>(form, "txtConstant"); }
    void press(const std::string& button) { EXPECT_TRUE(control_of<Button>(form, button).user_click()); }

    void while_open(const std::function<void()>& story) {
        engine.while_open = [=, this](Form& shown) {
            const ModalTurn waiting(&shown);
            if (&shown == &form) return story();
            EXPECT_TRUE(control_of<TextBox>(shown, "txtFullPath").user_text("Line1.Force"));
            EXPECT_TRUE(control_of<Button>(shown, "bnOK").user_click());
        };
        form.show_modal();
    }
};

} // namespace

TEST_F(TestForm, TellsWhatItsOwnerGaveIt) {
    form.set_OKPressed(true);
    form.set_TestId(7);
    form.set_TestName("Length");
    form.set_TestGroupID(3);
    form.set_TestGroupName("Sizes");
    form.set_ItemTrigger(true);
    form.set_TriggerExpression(2);
    form.set_TriggerValue(std::int32_t{5});
    form.set_ClientHandle(9);
    EXPECT_TRUE(form.OKPressed());
    EXPECT_EQ(form.TestId(), 7);
    EXPECT_EQ(form.TestName(), "Length");
    EXPECT_EQ(form.TestGroupID(), 3);
    EXPECT_EQ(form.TestGroupName(), "Sizes");
    EXPECT_EQ(form.TestOPCItemID(), "Line1.Speed");
    EXPECT_TRUE(form.ItemTrigger());
    EXPECT_EQ(form.TriggerExpression(), 2);
    EXPECT_EQ(form.TriggerValue(), Variant(std::int32_t{5}));
    EXPECT_EQ(form.ClientHandle(), 9);
}

TEST_F(TestForm, AConstantThatIsNoNumberIsWrittenRedAndStaysSo) {
    while_open([&] {
        constant().user_text("1");
        EXPECT_EQ(constant().fore_color(), color::window_text);
        constant().user_text("1x");
        EXPECT_EQ(constant().fore_color(), color::red);
        EXPECT_EQ(constant().back_color(), color::window);
        constant().user_text("1");
        EXPECT_EQ(constant().fore_color(), color::red); // only a red background would take it back
        constant().user_text("");
        EXPECT_EQ(constant().fore_color(), color::red);
    });
}

TEST_F(TestForm, OnARedBackgroundAValidConstantIsWrittenInTheWindowsColour) {
    while_open([&] {
        constant().set_back_color(color::red);
        constant().user_text("1x");
        EXPECT_EQ(constant().fore_color(), color::window_text);
        constant().user_text("");
        EXPECT_EQ(constant().fore_color(), color::window);
    });
}

TEST_F(TestForm, ARedBackgroundRefusesTheConstantBeforeAnythingIsWritten) {
    while_open([&] {
        constant().set_back_color(color::red);
        press("bnOK");
        const Message expected = {.text = "INVALID CONSTANT!\r\n\r\nConstant must be a valid numeric value.",
                                  .style = message::critical};
        EXPECT_EQ(messages, std::vector{expected});
        EXPECT_TRUE(form.loaded());
        EXPECT_EQ(form.focused(), &constant());
        EXPECT_TRUE(constant().all_selected());
    });
    EXPECT_FALSE(form.OKPressed());
    for (const std::string& member : host.calls.members()) EXPECT_FALSE(member.ends_with("=")) << member;
}

TEST_F(TestForm, ANewItemIsAskedForAndAddedAsTheServerHasIt) {
    form.set_TestId(7);
    while_open([&] { press("bnItem"); });
    const FakeOPCItems& items = *host.group->items;
    ASSERT_EQ(items.validations.size(), 2U); // the browser asks first
    EXPECT_EQ(items.validations[1], (Validation{{{"Line1.Force"}}, ShortArray{{0}}, StringArray{{""}}}));
    EXPECT_EQ(items.added, (std::vector<StringArray>{{{"Line1.Force"}}}));
    EXPECT_EQ(items.client_handles, (std::vector<LongArray>{{{7}}}));
    EXPECT_EQ(items.requested_types, (std::vector<std::optional<ShortArray>>{ShortArray{{0}}}));
    EXPECT_EQ(items.added_paths, (std::vector<std::optional<StringArray>>{StringArray{{""}}}));
    std::vector<std::string> calls = host.calls.members();
    std::erase_if(calls, [](const std::string& member) {
        return member != "OPCItems.Validate" && member != "OPCItems.AddItems";
    });
    EXPECT_EQ(calls,
              std::vector<std::string>({"OPCItems.Validate", "OPCItems.Validate", "OPCItems.AddItems"}));
}

TEST_F(TestForm, AValueThatAlwaysDoesNotNeedLooksClosed) {
    test->fields.item_trigger = true;
    test->fields.expression = 2;
    while_open([&] {
        auto& operators = control_of<ComboBox>(form, "cboExpression");
        const auto& value = control_of<TextBox>(form, "txtValue");
        EXPECT_EQ(value.back_color(), color::window);
        EXPECT_TRUE(operators.user_select(0));
        EXPECT_EQ(value.back_color(), color::button_face);
        EXPECT_TRUE(operators.user_select(1));
        EXPECT_EQ(value.back_color(), color::window);
    });
}

TEST_F(TestForm, CancelRemovesTheAddedItemAndEmptiesEveryProperty) {
    host.picker->picks = std::make_shared<FakeTestData>(host.calls, 8, 2, "Width");
    while_open([&] {
        press("bnItem");
        press("bnTest");
        EXPECT_EQ(form.TestId(), 8);
        EXPECT_EQ(form.TestGroupID(), 2);
        EXPECT_EQ(form.TestGroupName(), "Weights");
        EXPECT_EQ(form.TestName(), "Width");
        EXPECT_NE(form.ClientHandle(), 0);
        press("bnTest");
        press("bnCancel");
    });
    EXPECT_EQ(host.picker->shown_with, (std::vector<std::int32_t>{0, 8}));
    EXPECT_EQ(host.picker->shown_with_groups, (std::vector<std::int32_t>{0, 2}));
    EXPECT_EQ(host.group->items->ids(), std::vector<std::string>{"Line1.Speed"});
    EXPECT_FALSE(form.OKPressed());
    EXPECT_EQ(form.ClientHandle(), 0);
    EXPECT_EQ(form.TriggerValue(), Variant(std::int16_t{0}));
    EXPECT_EQ(form.TriggerExpression(), 0);
    EXPECT_EQ(form.TestId(), 0);
    EXPECT_EQ(form.TestName(), "");
    EXPECT_EQ(form.TestGroupID(), 0);
    EXPECT_EQ(form.TestGroupName(), "");
    EXPECT_EQ(form.TestOPCItemID(), "");
}

TEST_F(TestForm, EachShowingStartsAfresh) {
    host.picker->picks = std::make_shared<FakeTestData>(host.calls, 8, 2, "Width");
    while_open([&] {
        press("bnItem");
        press("bnTest");
        press("bnOK");
    });
    EXPECT_TRUE(form.OKPressed());
    EXPECT_EQ(test->data->savings.size(), 1U);
    form.set_test(test);
    while_open([&] {
        EXPECT_FALSE(form.OKPressed());
        EXPECT_TRUE(form.user_close());
    });
    EXPECT_FALSE(form.OKPressed());
    form.set_test(test);
    while_open([&] { press("bnOK"); });
    EXPECT_TRUE(form.OKPressed());
    EXPECT_EQ(test->data->savings.size(), 1U);
    form.set_test(test);
    while_open([&] { press("bnCancel"); });
    EXPECT_TRUE(host.group->items->removed.empty());
}

TEST_F(TestForm, WhatOneTestHeldIsNotWrittenIntoTheNext) {
    while_open([&] { EXPECT_TRUE(form.user_close()); });
    const auto next = host.has_test(0, "");
    form.set_test(next);
    form.set_TestOPCItemID("");
    host.picker->picks = std::make_shared<FakeTestData>(host.calls, 8, 2, "Width");
    while_open([&] {
        press("bnTest");
        press("bnItem");
        host.calls.fail_on("hlxOPCTest.SaveAs=");
        press("bnOK");
    });
    ASSERT_EQ(host.reports.size(), 1U);
    EXPECT_EQ(next->fields.item_id, "Line1.Force");
}

TEST_F(TestForm, HasItsHelpTopicAndItsFont) {
    while_open([&] { EXPECT_EQ(form.help_topic(), 194); });
    EXPECT_EQ(form.design().font_family, "Arial");
}
