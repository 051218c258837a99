#include "forms/win32/combo_box_peer.h"

#include "forms/win32/form_window.h"
#include "forms/win32/gdi.h"
#include "forms/win32/list_line.h"

#include <commctrl.h>

#include <algorithm>

namespace brx {

namespace {
constexpr int longest_drop = 20; ///< lines
constexpr int text_indent = 1;   ///< as in a box
} // namespace

ComboBoxPeer::ComboBoxPeer(FormWindow& window, ComboBox& list)
    : ControlPeer(
          window, list,
          {WC_COMBOBOXW, CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS | WS_VSCROLL | WS_TABSTOP}),
      list_(list) {
    send(CB_SETMINVISIBLE, longest_drop); // systems without visual styles go by the window's height
}

void ComboBoxPeer::notified(WORD code) {
    // Closing without a choice goes back to the line before, which is told by nothing else.
    if (code == CBN_SELCHANGE || code == CBN_CLOSEUP) report_selection();
}

void ComboBoxPeer::show(Aspect aspects) {
    ControlPeer::show(aspects);
    if (has(aspects, Aspect::lines)) show_lines();
    // Lines that were shown again have lost their selection.
    if (has(aspects, Aspect::lines | Aspect::selection) &&
        static_cast<int>(send(CB_GETCURSEL)) != list_.selected())
        send(CB_SETCURSEL, static_cast<WPARAM>(list_.selected()));
    // The list that drops down is as high as its lines.
    if (has(aspects, Aspect::lines) && !has(aspects, Aspect::place)) move_to(window().place_of(list_));
}

void ComboBoxPeer::show_lines() {
    const int kept = list_.take_kept_lines();
    auto shown = static_cast<int>(send(CB_GETCOUNT));
    if (kept == shown && shown == list_.count()) return;
    const bool visible = (GetWindowLongW(handle(), GWL_STYLE) & WS_VISIBLE) != 0;
    send(WM_SETREDRAW, FALSE);
    if (kept == 0) {
        send(CB_RESETCONTENT);
        shown = 0;
    }
    while (shown > kept) send(CB_DELETESTRING, static_cast<WPARAM>(--shown));
    std::wstring text;
    for (; shown < list_.count(); ++shown) {
        to_wide(list_.line(shown), text);
        send(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str()));
    }
    fit_drop_down();
    send(WM_SETREDRAW, TRUE);
    // Drawing again may have made it visible.
    if (!visible) ShowWindow(handle(), SW_HIDE);
    InvalidateRect(handle(), nullptr, TRUE);
}

/// As wide as its widest line.
void ComboBoxPeer::fit_drop_down() {
    const TextMeasure measure(handle(), window().font());
    int widest = 0;
    std::wstring text;
    for (int i = 0; i < list_.count(); ++i) {
        to_wide(list_.line(i), text);
        widest = std::max(widest, measure.width(text.data(), text.size()));
    }
    const int around = GetSystemMetrics(SM_CXVSCROLL) + 4 * GetSystemMetrics(SM_CXEDGE);
    send(CB_SETDROPPEDWIDTH, static_cast<WPARAM>(widest == 0 ? 0 : widest + around));
}

void ComboBoxPeer::font_changed() {
    ControlPeer::font_changed();
    if (handle()) fit_drop_down();
}

void ComboBoxPeer::report_selection() {
    const auto index = static_cast<int>(send(CB_GETCURSEL));
    if (window().is_showing() || index == list_.selected() || index < 0) return;
    // Its list, which is a window of its own, was open already.
    if (window().has_to_wait()) return window().hold([this, index] { select(index); });
    select(index);
}

void ComboBoxPeer::select(int index) {
    if (!window().deliver([&] { return list_.user_select(index); })) refresh(Aspect::selection);
}

void ComboBoxPeer::draw(const DRAWITEMSTRUCT& part) {
    const bool closed = (part.itemState & ODS_COMBOBOXEDIT) != 0;
    const auto index = static_cast<int>(part.itemID);
    const bool known = index >= 0 && index < list_.count();
    // Systems put the text of a closed box at different heights.
    RECT room = part.rcItem;
    if (closed) GetClientRect(handle(), &room);
    const ListLine line = {.place = part.rcItem,
                           .text = known ? list_.line(index) : std::string_view(),
                           .text_top = window().line_top(room.top, room.bottom),
                           .indent = text_indent,
                           .selected = (part.itemState & ODS_SELECTED) != 0,
                           .focused = (part.itemState & (ODS_FOCUS | ODS_NOFOCUSRECT)) == ODS_FOCUS};
    line.draw(*this, window().font(), part.hDC);
}

void ComboBoxPeer::move_to(const RECT& place) {
    const int height = place.bottom - place.top;
    const int line = static_cast<int>(window().line_height());
    send(CB_SETITEMHEIGHT, 0, line);
    const int lines = std::clamp(list_.count(), 1, longest_drop);
    RECT drop = place;
    drop.bottom += line * lines + 2 * GetSystemMetrics(SM_CYBORDER);
    ControlPeer::move_to(drop);
    // The closed box gets its height from its text's line, which systems measure in different ways.
    int text_height = static_cast<int>(send(CB_GETITEMHEIGHT, static_cast<WPARAM>(-1)));
    for (int tries = 0; tries < 2; ++tries) {
        RECT now{};
        GetWindowRect(handle(), &now);
        const int missing = height - static_cast<int>(now.bottom - now.top);
        if (missing == 0) break;
        text_height += missing;
        send(CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), text_height);
    }
}

} // namespace brx
