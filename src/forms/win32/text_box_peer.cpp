#include "forms/win32/text_box_peer.h"

#include "forms/win32/form_window.h"

#include <commctrl.h>

#include <algorithm>

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
    if (has(aspects, Aspect::colors | Aspect::enabled))
        RedrawWindow(handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME);
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
    if (!window().deliver([&] { return box_.user_text(from_wide(text)); })) refresh(Aspect::text);
}

LRESULT TextBoxPeer::handle_message(UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
    case WM_GETDLGCODE:
        return dialog_code(reinterpret_cast<const MSG*>(lparam));
    case WM_CHAR:
        return type(wparam, lparam);
    case WM_KEYDOWN:
        window().deliver([&] { return box_.user_key_down(static_cast<std::int32_t>(wparam)); });
        // An edit control on its own would press the default button.
        if (wparam == VK_RETURN && box_.takes_enter()) return 0;
        break;
    case WM_KEYUP:
        window().deliver([&] { return box_.user_key_up(static_cast<std::int32_t>(wparam)); });
        break;
    case WM_LBUTTONDOWN:
        if (take_mouse()) return 0;
        break;
    case WM_NCCALCSIZE:
        return measure_inside(wparam, lparam);
    case WM_NCPAINT: {
        const LRESULT result = ControlPeer::handle_message(message, wparam, lparam);
        paint_above();
        return result;
    }
    case WM_NCHITTEST: {
        const LRESULT hit = ControlPeer::handle_message(message, wparam, lparam);
        return hit == HTNOWHERE ? HTCLIENT : hit;
    }
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
        window().deliver([&] { return box_.user_key_press(static_cast<std::int32_t>(character)); });
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

// An edit control of one line puts it at the top, however high it is. What is missing above belongs to the
// edge, and looks like the inside.

void TextBoxPeer::move_to(const RECT& place) {
    ControlPeer::move_to(place);
    const LONG wanted = window().line_top(0, place.bottom - place.top);
    const LONG missing = std::max<LONG>(0, above_ + wanted - line_offset());
    if (missing == above_) return;
    above_ = missing;
    SetWindowPos(handle(), nullptr, 0, 0, 0, 0,
                 SWP_FRAMECHANGED | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE |
                     SWP_NOOWNERZORDER);
}

/// How far below the upper edge of the window its text begins.
int TextBoxPeer::line_offset() const {
    RECT text{};
    send(EM_GETRECT, 0, reinterpret_cast<LPARAM>(&text));
    MapWindowPoints(handle(), nullptr, reinterpret_cast<POINT*>(&text), 2);
    RECT whole{};
    GetWindowRect(handle(), &whole);
    return static_cast<int>(text.top - whole.top);
}

LRESULT TextBoxPeer::measure_inside(WPARAM wparam, LPARAM lparam) {
    const LRESULT result = ControlPeer::handle_message(WM_NCCALCSIZE, wparam, lparam);
    RECT& inside =
        wparam ? reinterpret_cast<NCCALCSIZE_PARAMS*>(lparam)->rgrc[0] : *reinterpret_cast<RECT*>(lparam);
    inside.top = std::min(inside.top + above_, inside.bottom);
    return result;
}

void TextBoxPeer::paint_above() const {
    if (above_ == 0) return;
    RECT whole{};
    RECT inside{};
    GetWindowRect(handle(), &whole);
    GetClientRect(handle(), &inside);
    MapWindowPoints(handle(), nullptr, reinterpret_cast<POINT*>(&inside), 2);
    OffsetRect(&inside, -whole.left, -whole.top);
    const RECT above{inside.left, inside.top - above_, inside.right, inside.top};
    const HDC dc = GetWindowDC(handle());
    const HBRUSH brush = set_colors(dc);
    FillRect(dc, &above, brush ? brush : GetSysColorBrush(COLOR_BTNFACE));
    ReleaseDC(handle(), dc);
}

} // namespace brx
