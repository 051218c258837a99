#include "forms/one_form.h"
#include "tests/dlgEvaluation.h"

#include <gtest/gtest.h>

using namespace brx;
using namespace brx::checks;

// The trigger dialog, which only the configuration dialog opens.

namespace {

const Message invalid_value = {.text = "Invalid value for this Item.  Value must be ",
                               .style = message::information,
                               .title = "Invalid Value"};

struct TriggerForm : testing::Test {
    TriggerForm() {
        host.group->items->data_types = {
            {"Count", 3}, {"Short", 2}, {"Single", 4}, {"Flag", 11}, {"Text", 8}};
        for (const char* item : {"Count", "Short", "Single", "Flag", "Text"}) host.group->items->has(item);
        host.group->items->answers["New"] = 0;
        host.browser->root.has("Line1");
        engine.while_asking = [this](const Message& message) {
            messages.push_back(message);
            return message::ok;
        };
    }

    FakeHost host;
    ScriptedEngine engine;
    Environment environment{engine, host, host, Locale::us_english()};
    dlgEvaluation form{environment};
    std::vector<Message> messages;

    ComboBox& items() { return control_of<ComboBox>(form, "cboItem"); }
    ComboBox& operators() { return control_of<ComboBox>(form, "cboExpression"); }
    TextBox& value() { return control_of<TextBox>(form, "txtValue"); }
    Button& ok() { return control_of<Button>(form, "bnOK"); }

    /// Shows the form with a trigger and a person before it who does this.
    void with_trigger(const std::string& item, std::int32_t expression, const Variant& trigger_value,
                      const std::function<void()>& story) {
        form.set_configuration(host.configuration);
        form.set_TriggerOPCItemID(item);
        form.set_TriggerExpression(expression);
        form.set_TriggerValue(trigger_value);
        engine.while_open = [=, this](Form& shown) {
            const ModalTurn waiting(&shown);
            if (&shown == &form)
                story();
            else
                browse(shown);
        };
        form.show_modal();
    }
    void pick(const std::string& item) {
        for (int i = 0; i < items().count(); ++i)
            if (items().text(i) == item) {
                EXPECT_TRUE(items().user_select(i));
            }
    }
    /// What a person picks in the browser that the form opens; "" to cancel.
    std::string browsed;
    void browse(Form& browser) {
        if (browsed.empty()) {
            EXPECT_TRUE(control_of<Button>(browser, "bnCancel").user_click());
            return;
        }
        EXPECT_TRUE(control_of<TextBox>(browser, "txtFullPath").user_text(browsed));
        EXPECT_TRUE(control_of<Button>(browser, "bnOK").user_click());
    }
};

} // namespace

TEST_F(TriggerForm, OpensWithTheGroupsItemsAndTheOperators) {
    with_trigger("Count", 2, std::int32_t{7}, [&] {
        EXPECT_EQ(form.caption(), "Set Trigger");
        EXPECT_EQ(form.help_topic(), 196);
        EXPECT_EQ(items().count(), 6);
        EXPECT_EQ(items().text(0), "<None>");
        EXPECT_EQ(items().text(1), "Count");
        EXPECT_EQ(items().text(), "Count");
        EXPECT_EQ(operators().count(), 7);
        EXPECT_EQ(operators().text(5), " <= ");
        EXPECT_EQ(operators().text(), " > ");
        EXPECT_EQ(value().text(), "7");
        EXPECT_TRUE(value().enabled());
        EXPECT_EQ(value().back_color(), color::window);
        EXPECT_TRUE(ok().enabled());
    });
    EXPECT_FALSE(form.OkClicked());
    EXPECT_TRUE(host.reports.empty());
}

TEST_F(TriggerForm, WithoutAnItemEverythingButTheItemIsClosed) {
    with_trigger("", 3, std::string("x"), [&] {
        EXPECT_EQ(items().text(), "<None>");
        EXPECT_EQ(operators().selected(), 0);
        EXPECT_FALSE(operators().enabled());
        EXPECT_EQ(operators().back_color(), color::button_face);
        EXPECT_FALSE(value().enabled());
        EXPECT_EQ(value().back_color(), color::button_face);
        EXPECT_EQ(value().text(), "");
        EXPECT_TRUE(ok().user_click());
    });
    EXPECT_TRUE(form.OkClicked());
    EXPECT_EQ(form.TriggerOPCItemID(), "<None>");
    EXPECT_EQ(form.TriggerExpression(), 0);
    EXPECT_EQ(form.TriggerValue(), Variant(std::string()));
}

TEST_F(TriggerForm, AnItemThatTheGroupLacksLeavesNoneSelected) {
    with_trigger("count", 2, std::int32_t{7}, [&] {
        EXPECT_EQ(items().text(), "<None>");
        EXPECT_EQ(items().count(), 6);
        EXPECT_TRUE(ok().user_click());
    });
    EXPECT_EQ(form.TriggerOPCItemID(), "<None>");
    EXPECT_EQ(form.TriggerExpression(), 0);
}

TEST_F(TriggerForm, ChoosingAnItemOpensTheOperatorsAndAnOperatorTheValue) {
    with_trigger("", 0, std::string(), [&] {
        pick("Count");
        EXPECT_TRUE(operators().enabled());
        EXPECT_FALSE(value().enabled());
        EXPECT_TRUE(operators().user_select(4));
        EXPECT_TRUE(value().enabled());
        EXPECT_TRUE(value().user_text("5"));
        EXPECT_TRUE(operators().user_select(0));
        EXPECT_FALSE(value().enabled());
        EXPECT_EQ(value().text(), "");
    });
}

TEST_F(TriggerForm, TheValueIsConvertedToTheItemsType) {
    struct Case {
        const char* item;
        const char* text;
        Variant expected;
    };
    for (const Case& each :
         {Case{"Count", "2147483647", 2147483647}, Case{"Short", "-7", std::int16_t{-7}},
          Case{"Single", "1.5", 1.5F}, Case{"Flag", "true", true}, Case{"Text", "1e2", 100.0}}) {
        SCOPED_TRACE(each.item);
        with_trigger(each.item, 1, std::string(), [&] {
            EXPECT_TRUE(value().user_text(each.text));
            EXPECT_TRUE(ok().user_click());
        });
        EXPECT_TRUE(form.OkClicked());
        EXPECT_EQ(form.TriggerValue(), each.expected);
        EXPECT_EQ(form.TriggerExpression(), 1);
        EXPECT_EQ(form.TriggerOPCItemID(), each.item);
    }
    EXPECT_TRUE(messages.empty());
}

TEST_F(TriggerForm, AValueOfAnotherTypeIsToldAndTheDialogStays) {
    for (const char* item : {"Count", "Short", "Single", "Flag", "Text"}) {
        SCOPED_TRACE(item);
        messages.clear();
        with_trigger(item, 1, std::string("old"), [&] {
            EXPECT_TRUE(value().user_text("abc"));
            EXPECT_TRUE(ok().user_click());
            EXPECT_TRUE(form.loaded());
            EXPECT_EQ(form.focused(), &value());
        });
        EXPECT_EQ(messages, std::vector{invalid_value});
        EXPECT_FALSE(form.OkClicked());
        EXPECT_EQ(form.TriggerValue(), Variant(std::string("old")));
    }
}

TEST_F(TriggerForm, AnOperatorWithoutAValueKeepsTheDialogOpen) {
    with_trigger("Count", 0, std::string("old"), [&] {
        EXPECT_TRUE(operators().user_select(3));
        EXPECT_TRUE(ok().user_click());
        EXPECT_TRUE(form.loaded());
    });
    EXPECT_TRUE(messages.empty());
    EXPECT_EQ(form.TriggerExpression(), 0);
    EXPECT_EQ(form.TriggerValue(), Variant(std::string("old")));
}

TEST_F(TriggerForm, AlwaysNeedsNoValueAndKeepsTheFormerOne) {
    with_trigger("Count", 0, std::int32_t{3}, [&] { EXPECT_TRUE(ok().user_click()); });
    EXPECT_TRUE(form.OkClicked());
    EXPECT_EQ(form.TriggerExpression(), 0);
    EXPECT_EQ(form.TriggerValue(), Variant(std::int32_t{3}));
}

TEST_F(TriggerForm, ABooleanItemsOperatorGoesBackToAlways) {
    with_trigger("Flag", 2, std::string(), [&] {
        EXPECT_TRUE(value().user_text("True"));
        EXPECT_TRUE(ok().user_click());
        // Going back to "Always" empties the value, which is then no Boolean.
        EXPECT_EQ(operators().selected(), 0);
        EXPECT_EQ(value().text(), "");
        EXPECT_TRUE(form.loaded());
        EXPECT_TRUE(ok().user_click());
    });
    EXPECT_EQ(messages, std::vector{invalid_value});
    EXPECT_TRUE(form.OkClicked());
    EXPECT_EQ(form.TriggerExpression(), 0);
}

TEST_F(TriggerForm, ATypeThatCannotBeReadIsToldAndTheValueBecomesADouble) {
    with_trigger("Count", 1, std::string(), [&] {
        host.group->items->Remove(LongArray{{host.group->items->handle_of("Count")}});
        EXPECT_TRUE(value().user_text("7"));
        EXPECT_TRUE(ok().user_click());
    });
    ASSERT_EQ(messages.size(), 1U);
    EXPECT_EQ(messages[0].title, "Error Getting Data Type");
    EXPECT_EQ(messages[0].style, message::exclamation);
    EXPECT_EQ(messages[0].text, "The item is not known to the server.");
    EXPECT_EQ(host.connection->error_codes, std::vector{error::subscript_out_of_range});
    EXPECT_EQ(form.TriggerValue(), Variant(7.0));
}

TEST_F(TriggerForm, ABrowsedItemIsAddedAndIsTheCallersToRemove) {
    browsed = "New";
    with_trigger("Count", 1, std::int32_t{7}, [&] {
        EXPECT_TRUE(control_of<Button>(form, "bnItem").user_click());
        EXPECT_EQ(items().text(), "New");
        EXPECT_EQ(items().count(), 7);
        EXPECT_TRUE(control_of<Button>(form, "bnCancel").user_click());
    });
    EXPECT_TRUE(form.AddedNewItem());
    EXPECT_NE(host.group->items->handle_of("New"), 0);
    EXPECT_TRUE(host.group->items->removed.empty());
}

TEST_F(TriggerForm, ABrowsedItemThatTheGroupHasIsSelected) {
    browsed = "Flag";
    host.group->items->answers["Flag"] = 0;
    with_trigger("Count", 1, std::int32_t{7}, [&] {
        EXPECT_TRUE(control_of<Button>(form, "bnItem").user_click());
        EXPECT_EQ(items().text(), "Flag");
    });
    EXPECT_FALSE(form.AddedNewItem());
    EXPECT_TRUE(host.group->items->added.empty());
}

TEST_F(TriggerForm, ABrowsedItemThatCannotBeAddedChangesNothingSilently) {
    browsed = "Odd";
    host.group->items->claimed_errors = LongArray{{0}};
    with_trigger("Count", 1, std::int32_t{7}, [&] {
        EXPECT_TRUE(control_of<Button>(form, "bnItem").user_click());
        EXPECT_EQ(items().text(), "Count");
        EXPECT_EQ(items().count(), 6);
    });
    EXPECT_FALSE(form.AddedNewItem());
    EXPECT_TRUE(messages.empty());
    EXPECT_TRUE(host.reports.empty());
}

TEST_F(TriggerForm, ACancelledBrowserChangesNothing) {
    with_trigger("Count", 1, std::int32_t{7}, [&] {
        EXPECT_TRUE(control_of<Button>(form, "bnItem").user_click());
        EXPECT_EQ(items().text(), "Count");
    });
    EXPECT_FALSE(form.AddedNewItem());
}

TEST_F(TriggerForm, AnOperatorCodeWithoutRoomIsAnOverflow) {
    EXPECT_THROW(form.set_TriggerExpression(32768), Error);
    form.set_TriggerExpression(6);
    EXPECT_EQ(form.TriggerExpression(), 6);
}

TEST_F(TriggerForm, CancelLeavesTheTriggerAsItWas) {
    with_trigger("Count", 1, std::int32_t{7}, [&] {
        EXPECT_TRUE(value().user_text("8"));
        EXPECT_TRUE(control_of<Button>(form, "bnCancel").user_click());
        EXPECT_FALSE(form.loaded());
    });
    EXPECT_FALSE(form.OkClicked());
    EXPECT_EQ(form.TriggerOPCItemID(), "Count");
    EXPECT_EQ(form.TriggerValue(), Variant(std::int32_t{7}));
}
