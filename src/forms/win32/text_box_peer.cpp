#include "forms/win32/text_box_peer.h"

#include "forms/win32/form_window.h"

#include <commctrl.h>

namespace brx {

namespace {

constexpr WPARAM control_a = 1;

DWORD text_box_style(const TextBox& box) {
    return ES_LEFT | ES_AUTOHSCROLL | WS_TABSTOP | (box.display_only() ? DWORD{ES_READONLY} : 0);
}

} // namespace

TextBoxPeer::TextBoxPeer(FormWindow& window, TextBox& box)
    : ControlPeer(window, box, {WC_EDITW, text_box_style(box), WS_EX_CLIENTEDGE}), box_(box) {
    send(EM_SETLIMITTEXT, 0); // as much as there is room for
}

void TextBoxPeer::show(Aspect aspects) {
    ControlPeer::show(aspects); // first, for text scrolls within the place it has
    if (has(aspects, Aspect::text)) show_box_text();
    if (has(aspects, Aspect::selection) && box_.all_selected()) {
        send(EM_SETSEL, 0, -1);
        selected_ = true;
    }
}

void TextBoxPeer::show_box_text() {
    DWORD from = 0;
    DWORD to = 0;
    send(EM_GETSEL, reinterpret_cast<WPARAM>(&from), reinterpret_cast<LPARAM>(&to));
    show_text(box_.text());
    // A handler that corrects what is being typed must not send the caret away.
    if (GetFocus() == handle()) send(EM_SETSEL, from, static_cast<LPARAM>(to));
    known_ = window_text(handle());
}

void TextBoxPeer::notified(WORD code) {
    if (code != EN_CHANGE || window().is_showing()) return;
    std::wstring text = window_text(handle());
    if (text == known_) return;
    known_ = text;
    if (!window().report([&] { return box_.user_text(from_wide(text)); })) refresh(Aspect::text);
}

LRESULT TextBoxPeer::handle_message(UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
    case WM_GETDLGCODE:
        return dialog_code(reinterpret_cast<const MSG*>(lparam));
    case WM_CHAR:
        return type(wparam, lparam);
    case WM_KEYDOWN:
        window().report([&] { return box_.user_key_down(static_cast<std::int32_t>(wparam)); });
        // An edit control on its own would press the default button.
        if (wparam == VK_RETURN && box_.takes_enter()) return 0;
        break;
    case WM_KEYUP:
        window().report([&] { return box_.user_key_up(static_cast<std::int32_t>(wparam)); });
        break;
    case WM_LBUTTONDOWN:
        if (take_mouse()) return 0;
        break;
    default:
        break;
    }
    return handle() ? ControlPeer::handle_message(message, wparam, lparam) : 0;
}

LRESULT TextBoxPeer::dialog_code(const MSG* message) {
    const LRESULT code = ControlPeer::handle_message(WM_GETDLGCODE, message ? message->wParam : 0,
                                                     reinterpret_cast<LPARAM>(message));
    const bool enter = message && message->wParam == VK_RETURN &&
                       (message->message == WM_KEYDOWN || message->message == WM_CHAR);
    return enter && box_.takes_enter() ? code | DLGC_WANTMESSAGE : code;
}

LRESULT TextBoxPeer::type(WPARAM character, LPARAM details) {
    const std::int32_t entered =
        window().report([&] { return box_.user_key_press(static_cast<std::int32_t>(character)); });
    // An edit control of one line would sound the bell at Enter.
    if (entered == 0 || entered == VK_RETURN || !handle()) return 0;
    if (entered == control_a) return send(EM_SETSEL, 0, -1);
    return ControlPeer::handle_message(WM_CHAR, static_cast<WPARAM>(entered) & 0xFFFF, details);
}

/// True when the click brought the focus and the form selected the text thereupon: placing the caret would
/// undo that.
bool TextBoxPeer::take_mouse() {
    if (GetFocus() == handle()) return false;
    selected_ = false;
    SetFocus(handle());
    return selected_;
}

} // namespace brx
