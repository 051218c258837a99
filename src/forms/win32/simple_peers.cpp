#include "forms/win32/simple_peers.h"

#include "forms/win32/form_window.h"
#include "forms/win32/gdi.h"
#include "forms/win32/named_accessible.h"

#include <commctrl.h>

namespace brx {

namespace {

// A group goes from a label or frame to the next one: the arrow keys stay within it.
DWORD label_style(const Label& label) {
    return SS_LEFT | WS_GROUP | (label.mnemonic() ? 0 : SS_NOPREFIX | SS_ENDELLIPSIS | SS_NOTIFY);
}

} // namespace

LabelPeer::LabelPeer(FormWindow& window, Label& label)
    : ControlPeer(window, label, {WC_STATICW, label_style(label)}), label_(label) {}

void LabelPeer::show(Aspect aspects) {
    ControlPeer::show(aspects);
    if (has(aspects, Aspect::text)) show_text(label_.caption());
    if (has(aspects, Aspect::text | Aspect::place)) show_tip();
}

void LabelPeer::move_to(const RECT& place) {
    // One with room for more lines begins at the top.
    if (place.bottom - place.top >= 2 * window().line_height()) return ControlPeer::move_to(place);
    const LONG top = window().line_top(place.top, place.bottom);
    ControlPeer::move_to({place.left, top, place.right, top + window().line_height()});
}

LRESULT LabelPeer::handle_message(UINT message, WPARAM wparam, LPARAM lparam) {
    // Not every dialog manager looks for SS_NOPREFIX before it takes an ampersand for an accelerator, or
    // passes over what says that it is static too.
    if (message == WM_GETDLGCODE && !label_.mnemonic() && window().deals_with_character())
        return DLGC_WANTCHARS;
    return ControlPeer::handle_message(message, wparam, lparam);
}

void LabelPeer::show_tip() {
    if (label_.mnemonic()) return;
    const std::wstring text = to_wide(label_.caption());
    RECT client{};
    GetClientRect(handle(), &client);
    const bool fits = TextMeasure(handle(), window().font()).width(text.data(), text.size()) <= client.right;
    window().set_tip(handle(), fits ? std::wstring() : text);
}

ButtonPeer::ButtonPeer(FormWindow& window, Button& button)
    : ControlPeer(window, button, {WC_BUTTONW, BS_PUSHBUTTON | WS_TABSTOP}), button_(button) {
    show_text(button.caption());
    window.set_tip(handle(), to_wide(button.accessible_name()));
}

void ButtonPeer::notified(WORD code) {
    if (code == BN_CLICKED) window().deliver([&] { return button_.user_click(); });
}

LRESULT ButtonPeer::handle_message(UINT message, WPARAM wparam, LPARAM lparam) {
    // Of a button the system tells its caption, which of some is dots.
    if (message == WM_GETOBJECT && static_cast<LONG>(lparam) == OBJID_CLIENT &&
        !button_.accessible_name().empty())
        if (const LRESULT object = named_accessible(handle(), wparam, to_wide(button_.accessible_name())))
            return object;
    return ControlPeer::handle_message(message, wparam, lparam);
}

CheckBoxPeer::CheckBoxPeer(FormWindow& window, CheckBox& box)
    : ControlPeer(window, box, {WC_BUTTONW, BS_3STATE | WS_TABSTOP}), box_(box) {
    show_text(box.caption());
}

void CheckBoxPeer::show(Aspect aspects) {
    ControlPeer::show(aspects);
    if (has(aspects, Aspect::value)) send(BM_SETCHECK, static_cast<WPARAM>(box_.value()));
}

void CheckBoxPeer::notified(WORD code) {
    if (code == BN_CLICKED) window().deliver([&] { return box_.user_toggle(); });
}

FramePeer::FramePeer(FormWindow& window, Frame& frame)
    : ControlPeer(window, frame, {WC_BUTTONW, BS_GROUPBOX | WS_GROUP, WS_EX_TRANSPARENT}) {
    show_text(frame.caption());
}

void FramePeer::move_to(const RECT& place) {
    // What it drew lies on the form, which does not know that it went.
    window().redraw_area_of(handle());
    ControlPeer::move_to(place);
}

PanelPeer::PanelPeer(FormWindow& window, Panel& panel)
    : ControlPeer(
          window, panel,
          {WC_STATICW, SS_LEFT | SS_NOPREFIX | SS_NOTIFY | WS_GROUP | (panel.edge() ? DWORD{WS_BORDER} : 0)}),
      panel_(panel) {}

void PanelPeer::show(Aspect aspects) {
    ControlPeer::show(aspects);
    // The focus never stops at it, so that the tab order stays as it is.
    if (has(aspects, Aspect::order))
        SetWindowPos(handle(), panel_.in_front() ? HWND_TOP : HWND_BOTTOM, 0, 0, 0, 0,
                     SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_NOOWNERZORDER);
}

} // namespace brx
