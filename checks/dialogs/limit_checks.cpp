#include "common/locales.h"
#include "dialogs/limit_texts.h"
#include "forms/one_form.h"
#include "tests/dlgEvaluation.h"
#include "tests/dlgOPCTest.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <optional>

using namespace brx;
using namespace brx::checks;

// What the test dialog and the trigger dialog make of texts at the limits of the item's type.

namespace {

constexpr std::int16_t text_type = 8;
constexpr std::int16_t all_types[] = {2, 3, 4, 5, 6, 7, 11, text_type, 14, 17};

/// "Count" is an item of the type, "Gone" one whose type cannot be read.
struct LimitTest : testing::TestWithParam<const Locale*> {
    const Locale& locale = *GetParam();
    FakeHost host;
    ScriptedEngine engine;
    Environment environment{engine, host, host, locale};
    std::vector<std::string> messages;

    LimitTest() {
        engine.while_asking = [this](const Message& message) {
            messages.push_back(message.text);
            return message::ok;
        };
    }

    void the_item_is_of(std::int16_t type) {
        FakeOPCItems& items = *host.group->items;
        items.forget_all();
        items.data_types["Count"] = type;
        items.has("Count");
    }

    /// What the dialog's OK makes of the text: the trigger's value, or none when the dialog refused it.
    std::optional<Variant> trigger_value(const std::string& text) {
        dlgEvaluation form(environment);
        form.set_configuration(host.configuration);
        form.set_TriggerOPCItemID("Count");
        form.set_TriggerExpression(1);
        form.set_TriggerValue(std::string("former"));
        engine.while_open = [&](Form&) {
            const ModalTurn waiting(&form);
            control_of<TextBox>(form, "txtValue").user_text(text);
            control_of<Button>(form, "bnOK").user_click();
        };
        messages.clear();
        form.show_modal();
        if (form.OkClicked()) return form.TriggerValue();
        EXPECT_EQ(form.TriggerValue(), Variant(std::string("former")));
        return std::nullopt;
    }

    /// What OK of the test dialog writes into the test, whose item it is.
    TestFields test_fields(const std::string& item, const std::string& value, const std::string& constant) {
        host.configuration->tests->entries.clear();
        const auto test = host.has_test(7, "Length");
        test->fields.item_id = test->fields.item_text = item;
        test->fields.item_trigger = true;
        test->fields.expression = 1;
        dlgOPCTest form(environment);
        form.set_test(test);
        form.set_TestOPCItemID(item);
        engine.while_open = [&](Form&) {
            const ModalTurn waiting(&form);
            control_of<TextBox>(form, "txtValue").user_text(value);
            control_of<TextBox>(form, "txtConstant").user_text(constant);
            control_of<Button>(form, "bnOK").user_click();
        };
        messages.clear();
        form.show_modal();
        return test->fields;
    }
};

/// The value as the type it has to be of.
Variant as_type(std::int16_t type, double value) {
    switch (type) {
    case 2:
        return static_cast<std::int16_t>(value);
    case 3:
        return static_cast<std::int32_t>(value);
    case 4:
        return static_cast<float>(value);
    case 11:
        return value != 0;
    default:
        return value;
    }
}

const Outcome& outcome_for(const LimitText& text, std::int16_t type) {
    switch (type) {
    case 2:
        return text.int16;
    case 3:
        return text.int32;
    case 4:
        return text.single;
    case 11:
        return text.boolean;
    default:
        return text.real;
    }
}

/// The test dialog converts to these and keeps any other text.
bool is_converted(std::int16_t type) {
    constexpr std::int16_t types[] = {2, 3, 4, 5, 11};
    return std::ranges::find(types, type) != std::end(types);
}

} // namespace

TEST_P(LimitTest, TheTriggerDialogConvertsOrRefusesEachTextForEachType) {
    for (const std::int16_t type : all_types) {
        the_item_is_of(type);
        for (const LimitText& each : limit_texts(locale)) {
            if (each.text.empty()) continue; // no value, which is not converted
            SCOPED_TRACE(each.text + " as type " + std::to_string(type));
            const Outcome& wanted = outcome_for(each, type);
            const std::optional<Variant> value = trigger_value(each.text);
            ASSERT_EQ(value.has_value(), wanted.error == 0);
            if (value) {
                EXPECT_EQ(*value, as_type(type, wanted.value));
            }
            EXPECT_EQ(messages, wanted.error == 0 ? std::vector<std::string>()
                                                  : std::vector<std::string>{
                                                        "Invalid value for this Item.  Value must be "});
        }
    }
}

TEST_P(LimitTest, TheTestDialogConvertsEachTextForEachTypeOrTellsTheErrorsNumber) {
    for (const std::int16_t type : all_types) {
        the_item_is_of(type);
        for (const LimitText& each : limit_texts(locale)) {
            SCOPED_TRACE(each.text + " as type " + std::to_string(type));
            const Outcome& wanted = outcome_for(each, type);
            const Variant value = test_fields("Count", each.text, "").value;
            std::vector<std::string> told;
            if (!is_converted(type)) {
                EXPECT_EQ(value, Variant(each.text));
            } else if (wanted.error == 0) {
                EXPECT_EQ(value, as_type(type, wanted.value));
            } else {
                EXPECT_EQ(value, TestFields().value); // the former one
                told = {"Invalid Value for this OPC Item. (" + std::to_string(wanted.error) + ")"};
            }
            EXPECT_EQ(messages, told);
        }
    }
}

TEST_P(LimitTest, TheTestDialogKeepsAnyTextForATypeThatCannotBeRead) {
    the_item_is_of(2);
    for (const LimitText& each : limit_texts(locale))
        EXPECT_EQ(test_fields("Gone", each.text, "").value, Variant(each.text));
}

TEST_P(LimitTest, TheConstantIsADoubleOrIsReportedAndChangesNothing) {
    the_item_is_of(text_type);
    for (const LimitText& each : limit_texts(locale)) {
        SCOPED_TRACE(each.text);
        host.reports.clear();
        const TestFields fields = test_fields("Count", "any", each.text);
        if (each.text.empty() || each.real.error == 0) {
            EXPECT_EQ(fields.constant, each.real.value);
            EXPECT_EQ(fields.state, 1);
            EXPECT_TRUE(host.reports.empty());
        } else {
            EXPECT_EQ(fields.state, TestFields().state);
            ASSERT_EQ(host.reports.size(), 1U);
            EXPECT_EQ(host.reports[0].what.number, each.real.error);
            EXPECT_EQ(host.reports[0].what.location, "dlgOPCTest.TestChoices");
        }
    }
}

const Locale us_english;
INSTANTIATE_TEST_SUITE_P(USEnglish, LimitTest, testing::Values(&us_english));
INSTANTIATE_TEST_SUITE_P(German, LimitTest, testing::Values(&locale_of_germany()));
