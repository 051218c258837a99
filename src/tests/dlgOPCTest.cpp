#include "tests/dlgOPCTest.h"

#include "common/group_items.h"
#include "common/values/convert.h"
#include "common/write_back.h"
#include "forms/focus.h"
#include "forms/setup_form.h"

#include <optional>

namespace brx {

dlgOPCTest::dlgOPCTest(Environment& environment)
    : Form(environment, {.name = "dlgOPCTest",
                         .caption = "OPC Test Configuration",
                         .size = {421, 263},
                         .font_family = "Arial"}),
      tools_(environment.errors) {}

hlxOPCConfigurationPtr dlgOPCTest::configuration() { return the(the(test_).Parent()).Parent(); }

ObjectPtr dlgOPCTest::server() { return connection_of(the(configuration())); }

OPCItemsPtr dlgOPCTest::items_of(const ObjectPtr& group) {
    return the(tools_.ResolveOPCGroup(group)).OPCItems();
}

void dlgOPCTest::Form_Load() {
    trap("Form_Load", [&] {
        ok_pressed_ = false;
        edit_mode_ = test_chosen_ = added_new_item_ = all_read_ = false;
        former_ = {};
        server_handles_ = LongArray{{0}};
        fill_operators(cboExpression);
        cboExpression.select(trigger_operator::always);
        for (const char* text :
             {"Actual Value", "Absolute Value", "Reversed Sign of Actual Value", "Constant Value"})
            cboSaveAs.add_line(text);
        cboSaveAs.select(0);
        chkItemTrigger.set_value(0);
        chkItemTrigger.set_enabled(false);
        bnOK.set_enabled(false);
        ShowEvalType(0);
        const std::string bound = the(test_).OPCItemID();
        edit_mode_ = !item_id_.empty() || !bound.empty();
        all_read_ = !edit_mode_; // a new test has nothing to read
        if (edit_mode_) {
            former_.item_id = bound;
            former_.state = state_;
            EditSet();
        }
        SetupForm(*this, 194);
    });
}

void dlgOPCTest::Form_Unload() {
    test_ = nullptr;
    database_ = nullptr;
}

/// A test that the host could not tell whole cannot be confirmed. A code or value that no control can show is
/// reported as well, but the person can choose another.
void dlgOPCTest::EditSet() {
    trap("EditSet", [&] {
        hlxOPCTest& test = the(test_);
        work().waits_for("Reading the test");
        std::optional<Error> unfit;
        const auto fit = [&](const auto& show) {
            const auto failure = failure_of(show);
            if (!unfit) unfit = failure;
        };
        former_.client_handle = client_handle_ = test.ClientHandle();
        test_name_ = test.CharacteristicName();
        txtTest.set_text(test_name_);
        txtItem.set_text(item_id_);
        const bool trigger = test.ItemTrigger();
        former_.item_trigger = trigger;
        chkItemTrigger.set_value(trigger ? 1 : 0);
        const double constant = test.Constant();
        former_.constant = constant;
        txtConstant.set_text(to_text(constant, environment().locale));
        const std::int16_t save_as = test.SaveAs();
        former_.save_as = save_as;
        fit([&] { cboSaveAs.select(save_as); });
        if (chkItemTrigger.value() == 1) {
            GetItemDataType();
            ShowEvalType(chkItemTrigger.value());
            const std::int16_t expression = test.TriggerExpression();
            former_.trigger_expression = expression;
            fit([&] { cboExpression.select(expression); });
            value_ = test.TriggerValue();
            former_.trigger_value = value_;
            fit([&] { txtValue.set_text(to_text(value_, environment().locale)); });
        }
        all_read_ = true;
        chkItemTrigger.set_enabled(true);
        bnOK.set_enabled(true);
        if (unfit) throw Error(*unfit);
    });
}

void dlgOPCTest::allow_confirming() {
    const bool complete = all_read_ && !item_id_.empty() && !test_name_.empty();
    bnOK.set_enabled(complete);
    chkItemTrigger.set_enabled(complete);
}

void dlgOPCTest::chkItemTrigger_Click() {
    trap("chkItemTrigger_Click", [&] { ShowEvalType(chkItemTrigger.value()); });
}

void dlgOPCTest::ShowEvalType(int state) {
    trap("ShowEvalType", [&] {
        const bool on = state != 0;
        cboExpression.set_enabled(on);
        lblExpression.set_enabled(on);
        txtValue.set_enabled(on);
        lblValue.set_enabled(on);
    });
}

void dlgOPCTest::cboExpression_Change() {
    trap("cboExpression_Change", [&] { follow_operator(); });
}

void dlgOPCTest::cboExpression_Click() {
    trap("cboExpression_Click", [&] { follow_operator(); });
}

void dlgOPCTest::follow_operator() {
    const bool compares = cboExpression.selected() >= 1;
    txtValue.set_enabled(compares);
    txtValue.set_back_color(compares ? color::window : color::button_face);
}

/// Looks at the background and sets the text's colour.
void dlgOPCTest::txtConstant_Change() {
    trap("txtConstant_Change", [&] {
        if (txtConstant.text().empty() || is_numeric(txtConstant.text(), environment().locale)) {
            if (txtConstant.back_color() == color::red) txtConstant.set_fore_color(color::window);
        } else {
            if (txtConstant.back_color() == color::window) txtConstant.set_fore_color(color::red);
        }
    });
}

void dlgOPCTest::bnOK_Click() {
    trap("bnOK_Click", [&] {
        if (item_id_.empty() || test_name_.empty()) {
            show_message({.text = "INVALID SELECTION!\r\n\r\nPlease select a Test and OPC Item.",
                          .style = message::information});
            return hlxFocus::select_text(test_name_.empty() ? txtTest : txtItem);
        }
        item_trigger_ = chkItemTrigger.value() == 1;
        if (item_trigger_) GetItemDataType();
        if (!TestChoices()) return;
        ok_pressed_ = true;
        unload();
    });
}

void dlgOPCTest::GetItemDataType() {
    work().waits_for("Reading the data type of " + item_id_);
    const auto failure = failure_of(
        [&] { data_type_ = canonical_data_type(the(items_of(the(configuration()).OPCGroup())), item_id_); });
    if (!failure) return;
    std::string text;
    attempt([&] { text = resolve<OPCServer>(server())->GetErrorString(failure->number()); });
    show_message({.text = text, .style = message::exclamation, .title = "Error Getting Data Type"});
    data_type_ = data_type::variant;
}

void dlgOPCTest::StoreTriggerExpression() {
    if (cboExpression.selected() >= 0) expression_ = static_cast<std::int16_t>(cboExpression.selected());
}

bool dlgOPCTest::TestValue() {
    std::string text;
    const auto unread = failure_of([&] { text = txtValue.text(); });
    if (unread) {
        // The sentence ends there.
        show_message({.text = "Invalid value for this Item.  Value must be ",
                      .style = message::information,
                      .title = "Invalid Value"});
        return false;
    }
    if (text.empty() && cboExpression.selected() == trigger_operator::always) return true;
    const auto failure = failure_of([&] {
        const Locale& locale = environment().locale;
        switch (data_type_) {
        case data_type::int16:
            value_ = to_int16(text, locale);
            break;
        case data_type::int32:
            value_ = to_int32(text, locale);
            break;
        case data_type::single:
            value_ = to_single(text, locale);
            break;
        case data_type::real:
            value_ = to_double(text, locale);
            break;
        case data_type::boolean:
            value_ = to_boolean(text, locale);
            break;
        default:
            value_ = text;
        }
    });
    // The former value is kept, and what was typed is no obstacle.
    if (failure)
        show_message({.text = "Invalid Value for this OPC Item. (" + std::to_string(failure->number()) + ")",
                      .style = message::information,
                      .title = "Invalid Value"});
    return true;
}

bool dlgOPCTest::TestChoices() {
    bool written = false;
    trap("TestChoices", [&] {
        if (!item_trigger_) {
            expression_ = trigger_operator::always;
        } else if (cboExpression.selected() < 0) {
            show_message({.text = "An Expression must be selected before continuing.",
                          .style = message::exclamation,
                          .title = "Expression Error"});
            return cboExpression.set_focus();
        } else if (!TestValue()) {
            show_message({.text = "A Value must be entered to continue!",
                          .style = message::information,
                          .title = "Value Error"});
            return hlxFocus::select_text(txtValue);
        } else {
            StoreTriggerExpression();
        }
        if (txtConstant.back_color() == color::red) {
            show_message({.text = "INVALID CONSTANT!\r\n\r\nConstant must be a valid numeric value.",
                          .style = message::critical});
            return hlxFocus::select_text(txtConstant);
        }
        // Before anything is written: a text that is no number must not leave half of the test changed.
        write_test(entered_constant());
        written = true;
    });
    return written;
}

/// The person is led to a constant that is no number.
double dlgOPCTest::entered_constant() {
    const std::string& text = txtConstant.text();
    try {
        return text.empty() ? 0.0 : to_double(text, environment().locale);
    } catch (...) {
        hlxFocus::select_text(txtConstant);
        throw;
    }
}

/// When the host fails half-way, a test that existed gets back what it held when the dialog read it; a new
/// one is its owner's to remove. The trigger's operator and value are read of a test with a trigger only: one
/// without has no use for what was written there. The record's characteristic is never read.
void dlgOPCTest::write_test(double constant) {
    hlxOPCTest& test = the(test_);
    work().waits_for("Storing the test");
    WriteBack writes;
    writes.replace(test, &hlxOPCTest::set_ItemTrigger, former_.item_trigger, item_trigger_);
    if (item_trigger_) writes.replace(test, &hlxOPCTest::set_TriggerValue, former_.trigger_value, value_);
    writes.replace(test, &hlxOPCTest::set_ClientHandle, former_.client_handle, client_handle_);
    writes.replace(test, &hlxOPCTest::set_TriggerExpression, former_.trigger_expression, expression_);
    writes.replace(test, &hlxOPCTest::set_OPCItemID, former_.item_id, item_id_);
    writes.replace(test, &hlxOPCTest::set_State, former_.state, test_state::edited);
    if (test_chosen_) write_characteristic(the(ResolveTestDat(test.TestData())));
    writes.replace(test, &hlxOPCTest::set_Constant, former_.constant, constant);
    writes.replace(test, &hlxOPCTest::set_SaveAs, former_.save_as,
                   static_cast<std::int16_t>(cboSaveAs.selected()));
    writes.keep();
}

void dlgOPCTest::write_characteristic(hlxTestData& data) {
    data.set_ID(test_id_);
    data.set_Flag(0);
    data.set_Mode(1);
    data.Save(database_);
}

void dlgOPCTest::bnCancel_Click() {
    trap("bnCancel_Click", [&] {
        ok_pressed_ = false;
        drop_added_item();
        client_handle_ = 0;
        value_ = std::int16_t{0};
        expression_ = trigger_operator::always;
        test_id_ = 0;
        test_name_.clear();
        test_group_id_ = 0;
        test_group_name_.clear();
        item_id_.clear();
        unload();
    });
}

} // namespace brx
