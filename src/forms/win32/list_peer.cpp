#include "forms/win32/list_peer.h"

#include "forms/win32/form_window.h"
#include "forms/win32/text_widths.h"

#include <commctrl.h>
#include <windowsx.h>

#include <algorithm>

namespace brx {

namespace {
constexpr int longest_drop = 20; ///< lines
constexpr int text_indent = 1;   ///< in a line of a drop-down list, as in a box

/// Room for the lines of a long list is asked for when so many of them are there. Some systems' lists give
/// back what is far more than they need at the moment, and then grow by small steps, copying; but not once
/// they are large.
constexpr int first_reserve = 40'000;
} // namespace

const ListPeer::Messages ListBoxPeer::messages = {LB_RESETCONTENT, LB_ADDSTRING, LB_DELETESTRING, LB_GETCOUNT,
                                                  LB_INITSTORAGE,  LB_GETCURSEL, LB_SETCURSEL};
const ListPeer::Messages ComboBoxPeer::messages = {
    CB_RESETCONTENT, CB_ADDSTRING, CB_DELETESTRING, CB_GETCOUNT, CB_INITSTORAGE, CB_GETCURSEL, CB_SETCURSEL};

void ListPeer::show(Aspect aspects) {
    ControlPeer::show(aspects); // first, for a list scrolls to its selection within the place it has
    if (has(aspects, Aspect::lines)) show_lines();
    // Lines that were shown again have lost their selection.
    if (has(aspects, Aspect::lines | Aspect::selection) &&
        static_cast<int>(send(messages_.selected)) != list_.selected())
        send(messages_.select, static_cast<WPARAM>(list_.selected()));
}

void ListPeer::show_lines() {
    const int kept = list_.take_kept_lines();
    int shown = static_cast<int>(send(messages_.count));
    if (kept == shown && shown == list_.count()) return;

    const bool visible = (GetWindowLongW(handle(), GWL_STYLE) & WS_VISIBLE) != 0;
    send(WM_SETREDRAW, FALSE);
    if (kept == 0) {
        send(messages_.reset);
        shown = 0;
        widest_ = 0;
    }
    while (shown > kept) send_directly(messages_.remove, static_cast<WPARAM>(--shown));
    add_lines(shown);
    show_extent(widest_);
    send(WM_SETREDRAW, TRUE);
    // Drawing again may have made it visible.
    if (!visible) ShowWindow(handle(), SW_HIDE);
    InvalidateRect(handle(), nullptr, TRUE);
}

void ListPeer::add_lines(int from) {
    const TextWidths widths(handle(), window().font());
    const int rest = std::min(from + first_reserve, list_.count());
    std::wstring text;
    for (int i = from; i < list_.count(); ++i) {
        if (i == from) reserve(from, rest);
        if (i == rest) reserve(rest, list_.count());
        const std::string_view line = list_.line(i);
        to_wide(line, text);
        send_directly(messages_.add, 0, reinterpret_cast<LPARAM>(text.c_str()));
        widest_ = std::max(widest_, widths.of(line));
    }
}

void ListPeer::reserve(int from, int to) {
    std::size_t bytes = 0;
    for (int i = from; i < to; ++i) bytes += (list_.line(i).size() + 1) * sizeof(wchar_t);
    send(messages_.reserve, static_cast<WPARAM>(to - from), static_cast<LPARAM>(bytes));
}

void ListPeer::font_changed() {
    ControlPeer::font_changed();
    if (!handle()) return;
    const TextWidths widths(handle(), window().font());
    widest_ = 0;
    for (int i = 0; i < list_.count(); ++i) widest_ = std::max(widest_, widths.of(list_.line(i)));
    show_extent(widest_);
}

void ListPeer::report_selection() {
    const int index = static_cast<int>(send(messages_.selected));
    if (window().is_showing() || index == list_.selected() || index < 0) return;
    if (!window().report([&] { return list_.user_select(index); })) refresh(Aspect::selection);
}

ListBoxPeer::ListBoxPeer(FormWindow& window, ListBox& list)
    : ListPeer(window, list,
               {WC_LISTBOXW, LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | WS_VSCROLL | WS_HSCROLL | WS_TABSTOP,
                WS_EX_CLIENTEDGE},
               messages) {}

void ListBoxPeer::notified(WORD code) {
    if (code == LBN_SELCHANGE)
        report_selection();
    else if (code == LBN_DBLCLK)
        window().report([&] { return list().user_double_click(); });
}

void ListBoxPeer::show_extent(int width) {
    const int margin = 2 * GetSystemMetrics(SM_CXEDGE);
    send(LB_SETHORIZONTALEXTENT, static_cast<WPARAM>(width == 0 ? 0 : width + margin));
}

LRESULT ListBoxPeer::handle_message(UINT message, WPARAM wparam, LPARAM lparam) {
    const bool twice = message == WM_LBUTTONDBLCLK;
    if (!twice && message != WM_LBUTTONDOWN) return ListPeer::handle_message(message, wparam, lparam);
    const int line = line_at(GET_Y_LPARAM(lparam));
    // The room below the last line is no line, but would be told as a double click all the same.
    if (twice && line < 0) message = WM_LBUTTONDOWN;
    const bool again = !twice && line >= 0 && line == list().selected();
    const LRESULT result = ListPeer::handle_message(message, wparam, lparam);
    // On its own a list tells of other lines only, or also of this one when the button goes up.
    if (again && handle()) window().report([&] { return list().user_press(line); });
    return result;
}

/// -1 for none. LB_ITEMFROMPOINT counts to 65535 only.
int ListBoxPeer::line_at(int y) const {
    const int line = static_cast<int>(send(LB_GETTOPINDEX)) + y / static_cast<int>(send(LB_GETITEMHEIGHT));
    return y >= 0 && line < list().count() ? line : -1;
}

ComboBoxPeer::ComboBoxPeer(FormWindow& window, ComboBox& list)
    : ListPeer(
          window, list,
          {WC_COMBOBOXW, CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS | WS_VSCROLL | WS_TABSTOP},
          messages) {
    send(CB_SETMINVISIBLE, longest_drop); // systems without visual styles go by the window's height
}

void ComboBoxPeer::notified(WORD code) {
    // Closing without a choice goes back to the line before, which is told by nothing else.
    if (code == CBN_SELCHANGE || code == CBN_CLOSEUP) report_selection();
}

void ComboBoxPeer::show(Aspect aspects) {
    ListPeer::show(aspects);
    // The list that drops down is as high as its lines.
    if (has(aspects, Aspect::lines) && !has(aspects, Aspect::place)) move_to(window().place_of(list()));
}

void ComboBoxPeer::show_extent(int width) {
    const int around = GetSystemMetrics(SM_CXVSCROLL) + 4 * GetSystemMetrics(SM_CXEDGE);
    send(CB_SETDROPPEDWIDTH, static_cast<WPARAM>(width == 0 ? 0 : width + around));
}

/// Systems put the text of a closed box at different heights.
void ComboBoxPeer::draw(const DRAWITEMSTRUCT& part) {
    const bool closed = (part.itemState & ODS_COMBOBOXEDIT) != 0;
    const bool selected = (part.itemState & ODS_SELECTED) != 0 && IsWindowEnabled(handle());
    HBRUSH back = set_colors(part.hDC);
    if (!back) {
        SetTextColor(part.hDC, GetSysColor(COLOR_GRAYTEXT));
        SetBkColor(part.hDC, GetSysColor(COLOR_BTNFACE));
        back = GetSysColorBrush(COLOR_BTNFACE);
    }
    if (selected) {
        SetTextColor(part.hDC, GetSysColor(COLOR_HIGHLIGHTTEXT));
        SetBkColor(part.hDC, GetSysColor(COLOR_HIGHLIGHT));
        back = GetSysColorBrush(COLOR_HIGHLIGHT);
    }
    FillRect(part.hDC, &part.rcItem, back);
    const int index = static_cast<int>(part.itemID);
    if (index >= 0 && index < list().count()) {
        const std::wstring text = to_wide(list().line(index));
        RECT whole{};
        GetClientRect(handle(), &whole);
        const LONG top = closed ? window().line_top(whole.top, whole.bottom)
                                : window().line_top(part.rcItem.top, part.rcItem.bottom);
        const HGDIOBJ before = SelectObject(part.hDC, window().font());
        ExtTextOutW(part.hDC, part.rcItem.left + text_indent, top, ETO_CLIPPED, &part.rcItem, text.data(),
                    static_cast<UINT>(text.size()), nullptr);
        SelectObject(part.hDC, before);
    }
    if ((part.itemState & (ODS_FOCUS | ODS_NOFOCUSRECT)) == ODS_FOCUS) DrawFocusRect(part.hDC, &part.rcItem);
}

void ComboBoxPeer::move_to(const RECT& place) {
    const int height = place.bottom - place.top;
    const int line = static_cast<int>(window().line_height());
    send(CB_SETITEMHEIGHT, 0, line);
    const int lines = std::clamp(list().count(), 1, longest_drop);
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
