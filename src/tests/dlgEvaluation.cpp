#include "tests/dlgEvaluation.h"

#include "classes/LeafSelect.h"
#include "common/group_items.h"
#include "common/values/convert.h"
#include "forms/focus.h"
#include "forms/setup_form.h"

#include <algorithm>

namespace brx {

dlgEvaluation::dlgEvaluation(Environment& environment)
    : Form(environment, {.name = "dlgEvaluation", .caption = "Set Trigger", .size = {421, 139}}),
      tools_(environment.errors) {}

void dlgEvaluation::set_TriggerExpression(std::int32_t expression) { expression_ = to_int16(expression); }

OPCItemsPtr dlgEvaluation::items_of(const ObjectPtr& group) {
    return the(tools_.ResolveOPCGroup(group)).OPCItems();
}

void dlgEvaluation::Form_Load() {
    trap("Form_Load", [&] {
        ok_clicked_ = false;
        added_new_item_ = false;
        SetupForm(*this, 196);
        fill_operators(cboExpression);
        BuildDlg();
    });
}

void dlgEvaluation::Form_Unload() { configuration_ = nullptr; }

void dlgEvaluation::BuildDlg() {
    trap("BuildDlg", [&] {
        cboItem.add_line(no_item);
        work().waits_for("Reading the items of the group");
        for_each_item(the(items_of(the(configuration_).OPCGroup())),
                      [&](OPCItem& item) { cboItem.add_line(item.ItemID()); });
        if (!item_id_.empty()) cboItem.select_text(item_id_);
        cboItem.select(std::max(cboItem.selected(), 0));
        cboExpression.select(expression_);
        txtValue.set_text(to_text(value_, environment().locale));
        if (item_id_.empty())
            cboExpression.select(trigger_operator::always);
        else
            CheckDataType();
        follow_operator();
    });
}

void dlgEvaluation::EnableValueField(bool enable) {
    trap("EnableValueField", [&] {
        txtValue.set_enabled(enable);
        txtValue.set_back_color(enable ? color::window : color::button_face);
        if (!enable) txtValue.set_text("");
        if (!txtValue.text().empty()) bnOK.set_enabled(true);
    });
}

void dlgEvaluation::follow_operator() { EnableValueField(cboExpression.selected() >= 1); }

void dlgEvaluation::cboExpression_Change() {
    trap("cboExpression_Change", [&] { follow_operator(); });
}

void dlgEvaluation::cboExpression_Click() {
    trap("cboExpression_Click", [&] { follow_operator(); });
}

void dlgEvaluation::txtValue_KeyPress() {
    trap("txtValue_KeyPress", [&] { note_key(); });
}

void dlgEvaluation::txtValue_KeyUp() {
    trap("txtValue_KeyUp", [&] { note_key(); });
}

void dlgEvaluation::note_key() {
    if (cboExpression.selected() >= 0 && !txtValue.text().empty()) bnOK.set_enabled(true);
}

void dlgEvaluation::txtItem_Click() {
    trap("txtItem_Click", [&] {
        const bool any_item = cboItem.selected() != 0;
        cboExpression.set_enabled(any_item);
        cboExpression.set_back_color(any_item ? color::window : color::button_face);
        EnableValueField(any_item && cboExpression.selected() != trigger_operator::always);
        if (!any_item) bnOK.set_enabled(true);
    });
}

void dlgEvaluation::bnItem_Click() {
    trap("bnItem_Click", [&] {
        hlxOPCConfiguration& configuration = the(configuration_);
        const ObjectPtr server = connection_of(configuration);
        const ObjectPtr group = configuration.OPCGroup();
        LeafSelect browser(environment());
        browser.set_ItemID(cboItem.text());
        if (!browser.Show(server, group)) return;
        take_item(the(items_of(group)), browser.ItemID());
        CheckDataType(server);
    });
}

/// Selects the item, which is added to the group if it is not there yet.
void dlgEvaluation::take_item(OPCItems& items, const std::string& item_id) {
    work().waits_for("Adding " + item_id + " to the group");
    if (!holds_item(items, item_id)) {
        added_new_item_ = false;
        const AddedItems added = items.AddItems({{item_id}}, LongArray{{0}}, std::nullopt, std::nullopt);
        if (added.Errors.at(1) != 0) return;
        added_new_item_ = true;
    }
    cboItem.select_text(item_id);
    if (cboItem.text() == item_id) return;
    cboItem.add_line(item_id);
    cboItem.select(cboItem.count() - 1);
}

/// Why a type cannot be read is the text of the server that the caller has reached, or of the one that the
/// configuration leads to now.
void dlgEvaluation::CheckDataType(const ObjectPtr& reached_server) {
    const std::string item = cboItem.text();
    if (item.empty() || is_no_item(item)) return;
    work().waits_for("Reading the data type of " + item);
    const auto failure = failure_of(
        [&] { data_type_ = canonical_data_type(the(items_of(the(configuration_).OPCGroup())), item); });
    if (!failure) return;
    std::string text;
    attempt([&] {
        const ObjectPtr server = reached_server ? reached_server : connection_of(the(configuration_));
        text = resolve<OPCServer>(server)->GetErrorString(failure->number());
    });
    show_message({.text = text, .style = message::exclamation, .title = "Error Getting Data Type"});
    data_type_ = data_type::unread;
}

bool dlgEvaluation::GetCalculation() {
    bool usable = false;
    trap("GetCalculation", [&] {
        item_id_ = cboItem.text();
        if (is_no_item(item_id_)) {
            expression_ = trigger_operator::always;
            value_ = std::string();
            usable = true;
            return;
        }
        // Where the lists could not be filled, or with a code that they do not have, nothing is selected.
        if (cboItem.selected() < 0) return cboItem.set_focus();
        if (cboExpression.selected() < 0) return cboExpression.set_focus();
        if (cboExpression.selected() != trigger_operator::always && txtValue.text().empty())
            return hlxFocus::select_text(txtValue);
        expression_ = static_cast<std::int16_t>(cboExpression.selected());
        CheckDataType();
        usable = SetExpressions(data_type_);
    });
    return usable;
}

bool dlgEvaluation::SetExpressions(std::int32_t type) {
    if (txtValue.text().empty() && cboExpression.selected() == trigger_operator::always) return true;
    const auto failure = failure_of([&] {
        const Locale& locale = environment().locale;
        switch (type) {
        case data_type::int16:
            value_ = to_int16(txtValue.text(), locale);
            break;
        case data_type::int32:
            value_ = to_int32(txtValue.text(), locale);
            break;
        case data_type::single:
            value_ = to_single(txtValue.text(), locale);
            break;
        case data_type::boolean:
            // Only equality makes sense. Going back to "Always" empties the value, as it always does.
            if (cboExpression.selected() > trigger_operator::equal)
                cboExpression.select(trigger_operator::always);
            value_ = to_boolean(txtValue.text(), locale);
            break;
        default:
            value_ = to_double(txtValue.text(), locale);
        }
    });
    if (!failure) return true;
    // The sentence ends there.
    show_message({.text = "Invalid value for this Item.  Value must be ",
                  .style = message::information,
                  .title = "Invalid Value"});
    // A Boolean item's operator that went back to "Always" has closed the value and is what to look at.
    if (txtValue.can_focus())
        hlxFocus::select_text(txtValue);
    else
        cboExpression.set_focus();
    return false;
}

void dlgEvaluation::bnOK_Click() {
    trap("bnOK_Click", [&] {
        if (!GetCalculation()) return;
        ok_clicked_ = true;
        unload();
    });
}

void dlgEvaluation::bnCancel_Click() {
    trap("bnCancel_Click", [&] {
        ok_clicked_ = false;
        unload();
    });
}

} // namespace brx
