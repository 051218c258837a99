#include "forms/headless/screen_state.h"

#include "forms/button.h"
#include "forms/check_box.h"
#include "forms/date_picker.h"
#include "forms/frame.h"
#include "forms/label.h"
#include "forms/list_control.h"
#include "forms/list_rows.h"
#include "forms/tab_strip.h"
#include "forms/text_box.h"
#include "forms/tree_rows.h"

namespace brx {

namespace {

std::string text_of(const Control& control) {
    switch (control.kind()) {
    case Kind::label:
        return static_cast<const Label&>(control).caption();
    case Kind::text_box:
        return static_cast<const TextBox&>(control).text();
    case Kind::button:
        return static_cast<const Button&>(control).caption();
    case Kind::check_box:
        return static_cast<const CheckBox&>(control).caption();
    case Kind::frame:
        return static_cast<const Frame&>(control).caption();
    case Kind::list_box:
    case Kind::combo_box:
        return static_cast<const ListControl&>(control).text();
    case Kind::tree_view: {
        const TreeNode* selected = static_cast<const TreeView&>(control).selected();
        return selected ? selected->text() : std::string();
    }
    case Kind::list_view: {
        const auto& list = static_cast<const ListView&>(control);
        return list.selected() == 0 ? std::string() : list.row(list.selected()).text();
    }
    case Kind::tab_strip: {
        const auto& strip = static_cast<const TabStrip&>(control);
        return strip.caption(strip.selected());
    }
    case Kind::date_picker:
        return static_cast<const DatePicker&>(control).text();
    case Kind::panel:
    case Kind::timer:
        break;
    }
    return {};
}

} // namespace

HeadlessPeer::HeadlessPeer(Control& control) : Peer(control), control_(control) {
    refresh(Aspect::everything);
}

void HeadlessPeer::refresh(Aspect aspects) {
    if (has(aspects, Aspect::text | Aspect::lines | Aspect::selection | Aspect::value))
        shown_.text = text_of(control_);
    if (has(aspects, Aspect::enabled)) shown_.enabled = control_.takes_input();
    if (has(aspects, Aspect::visible)) shown_.visible = control_.shows();
    if (has(aspects, Aspect::place)) shown_.place = control_.place();
    if (has(aspects, Aspect::colors)) {
        shown_.back_color = control_.back_color();
        shown_.fore_color = control_.fore_color();
    }
    if (const auto* list = dynamic_cast<const ListControl*>(&control_)) {
        if (has(aspects, Aspect::lines)) {
            shown_.lines.clear();
            for (int i = 0; i < list->count(); ++i) shown_.lines.push_back(list->text(i));
        }
        if (has(aspects, Aspect::selection)) shown_.selected = list->selected();
    }
    if (auto* tree = dynamic_cast<TreeView*>(&control_)) {
        if (has(aspects, Aspect::lines)) {
            tree->take_changes();
            shown_.lines = rows_of(*tree);
        }
        if (has(aspects, Aspect::lines | Aspect::selection))
            shown_.selected = row_of(*tree, tree->selected());
    }
    if (auto* list = dynamic_cast<ListView*>(&control_)) {
        if (has(aspects, Aspect::lines)) {
            list->take_changes();
            shown_.lines = rows_of(*list);
        }
        if (has(aspects, Aspect::selection)) shown_.selected = list->selected() - 1;
    }
    if (const auto* strip = dynamic_cast<const TabStrip*>(&control_)) {
        shown_.lines = strip->captions();
        if (has(aspects, Aspect::selection)) shown_.selected = strip->selected() - 1;
    }
    if (const auto* panel = dynamic_cast<const Panel*>(&control_))
        if (has(aspects, Aspect::order)) shown_.in_front = panel->in_front();
    if (const auto* box = dynamic_cast<const CheckBox*>(&control_))
        if (has(aspects, Aspect::value)) shown_.value = box->value();
}

HeadlessWindow::HeadlessWindow(Form& form) : Peer(form), form_(form) {
    for (Control* control : form.controls()) peers_.push_back(std::make_unique<HeadlessPeer>(*control));
    refresh(Aspect::everything);
}

const HeadlessPeer* HeadlessWindow::find(const std::string& name) const {
    for (const auto& peer : peers_)
        if (peer->control().name() == name) return peer.get();
    return nullptr;
}

void HeadlessWindow::refresh(Aspect aspects) {
    if (has(aspects, Aspect::text)) caption_ = form_.caption();
    if (has(aspects, Aspect::focus)) focused_ = form_.focused();
}

} // namespace brx
