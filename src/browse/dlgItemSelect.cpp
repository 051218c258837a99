#include "browse/dlgItemSelect.h"

#include "common/values/text.h"
#include "forms/busy_cursor.h"
#include "forms/focus.h"
#include "forms/setup_form.h"

namespace brx {

dlgItemSelect::dlgItemSelect(Environment& environment)
    : Form(environment,
           {.name = "dlgItemSelect", .caption = "Select Item", .size = {560, 443}, .resizable = true}) {}

void dlgItemSelect::Form_Load() {
    trap("Form_Load", [&] {
        ok_clicked_ = false;
        selected_leaf_.clear();
        SetupForm(*this, 197);
        const BusyCursor busy(*this);
        bnOK.set_enabled(false);
        const std::string node = the(server_).ServerNode();
        const std::string name = server_->ServerName();
        txtServer.set_text(node + " " + name);
        server_title_ = name + (node.empty() ? "" : " on " + node);
        ConnectServer();
        TrView.set_label_edit(LabelEdit::manual);
        TrView.set_line_style(LineStyle::root_lines);
        TrView.set_style(TreeStyle::tree_lines_plus_minus_text);
        if (!leaf_.empty()) SearchForPath(true);
        if (!txtFullPath.text().empty()) txtFullPath.set_focus();
    });
}

void dlgItemSelect::Form_Unload() {
    browser_ = nullptr;
    group_ = nullptr;
    server_ = nullptr;
}

void dlgItemSelect::cmdRefresh_Click() {
    trap("cmdRefresh_Click", [&] { ConnectServer(); });
}

bool dlgItemSelect::SearchForPath(bool SelectFlag) {
    bool found = false;
    trap("SearchForPath", [&] {
        if (!browser_ || work().is_stopped()) return;
        const BusyCursor busy(*this);
        work().waits_for("Looking for " + leaf_ + " in " + server_title_);
        try {
            browser_->MoveToRoot();
            browser_->ShowLeafs(true);
            const std::int32_t count = browser_->Count();
            if (SelectFlag && count > 0) return set_path(leaf_);
            found = work().first_of(count, [&](std::int32_t i) {
                return equal_ignoring_case(browser_->Item(i), leaf_);
            }) != 0;
        } catch (const Stopped&) {
            note_of_items("Looking for " + leaf_ + " was stopped.");
        }
    });
    return found;
}

void dlgItemSelect::lstItem_Click() {
    trap("lstItem_Click", [&] {
        set_path("");
        if (lstItem.selected() < 0) {
            selected_leaf_.clear();
            bnOK.set_enabled(false);
            return;
        }
        bnOK.set_enabled(true);
        selected_leaf_ = lstItem.text();
        if (selected_leaf_.empty()) return;
        // The browser still stands at the branch that was listed.
        ignoring([&] { leaf_ = browser_->GetItemID(selected_leaf_); });
        set_path(leaf_);
    });
}

void dlgItemSelect::lstItem_DblClick() {
    trap("lstItem_DblClick", [&] { bnOK_Click(); });
}

/// OK follows the box also where it holds this text already.
void dlgItemSelect::set_path(const std::string& text) {
    if (txtFullPath.text() == text)
        txtFullPath_Change();
    else
        txtFullPath.set_text(text);
}

void dlgItemSelect::txtFullPath_Change() {
    trap("txtFullPath_Change", [&] {
        bnOK.set_enabled(!txtFullPath.text().empty());
        if (!txtFullPath.text().empty()) leaf_ = txtFullPath.text();
    });
}

/// Before the pressed key takes effect.
void dlgItemSelect::txtFullPath_KeyPress() {
    trap("txtFullPath_KeyPress", [&] { bnOK.set_enabled(!txtFullPath.text().empty()); });
}

void dlgItemSelect::bnOK_Click() {
    trap("bnOK_Click", [&] {
        ok_clicked_ = CheckItem();
        if (ok_clicked_)
            unload();
        else
            leaf_.clear();
    });
}

void dlgItemSelect::bnCancel_Click() {
    trap("bnCancel_Click", [&] {
        ok_clicked_ = false;
        leaf_.clear();
        unload();
    });
}

bool dlgItemSelect::CheckItem() {
    bool ok = false;
    trap("CheckItem", [&] {
        leaf_ = txtFullPath.text();
        if (!leaf_.empty()) {
            ok = ValidateItem(leaf_);
            return;
        }
        show_message({.text = "Select an Item or type in an item in the text box.",
                      .style = message::exclamation,
                      .title = "No Item"});
        hlxFocus::select_text(txtFullPath);
    });
    return ok;
}

bool dlgItemSelect::ValidateItem(const std::string& ItemID) {
    bool valid = false;
    trap("ValidateItem", [&] {
        if (!group_) return;
        work().waits_for("Asking for " + ItemID + " at " + server_title_);
        const LongArray errors =
            the(group_->OPCItems()).Validate({{ItemID}}, ShortArray{{0}}, StringArray{{""}});
        const std::int32_t error = errors.at(1);
        valid = error == 0;
        if (valid) return;
        show_message({.text = the(group_->Parent()).GetErrorString(error),
                      .style = message::exclamation,
                      .title = "Item Error"});
        hlxFocus::select_text(txtFullPath);
    });
    return valid;
}

} // namespace brx
