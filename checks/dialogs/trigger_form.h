#pragma once

#include "forms/one_form.h"
#include "tests/dlgEvaluation.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace brx::checks {

/// The trigger dialog on its own, without the configuration dialog that opens it.
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
    Environment environment{engine, host, host, Locale{}};
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
                return;
            }
        ADD_FAILURE() << "There is no item " << item;
    }
    bool press(const std::string& button) { return control_of<Button>(form, button).user_click(); }
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

} // namespace brx::checks
