#include "forms/win32/list_box_peer.h"

#include "common/error.h"
#include "forms/win32/dpi.h"
#include "forms/win32/form_window.h"
#include "forms/win32/list_line.h"

#include <algorithm>

namespace brx {

namespace {
constexpr int line_indent = 3; ///< at 96 DPI
}

ListBoxPeer::ListBoxPeer(FormWindow& window, ListBox& list)
    : RowsPeer(window, list, LVS_NOCOLUMNHEADER), list_(list) {
    LVCOLUMNW column{};
    if (send(LVM_INSERTCOLUMNW, 0, reinterpret_cast<LPARAM>(&column)) < 0) throw Error(error::out_of_memory);
}

std::string_view ListBoxPeer::cell(int row, int) const { return list_.line(row); }

HFONT ListBoxPeer::font_of(int, int) const { return window().font(); }

int ListBoxPeer::row_beginning_with(const std::string& text, int start) const {
    return list_.line_beginning_with(text, start);
}

void ListBoxPeer::show_rows() {
    const bool anew = list_.take_kept_lines() == 0;
    if (anew) widest_ = 0;
    if (anew && shown_count() > 0) send(LVM_ENSUREVISIBLE, 0, FALSE);
    fit_columns();
    show_all_rows();
}

/// At least as wide as the list, so that a line can be pressed behind its text too.
void ListBoxPeer::fit_columns() {
    RECT room{};
    GetClientRect(handle(), &room);
    // The bar that will come would bring another across with it.
    const bool has_bar = (GetWindowLongW(handle(), GWL_STYLE) & WS_VSCROLL) != 0;
    if (!has_bar && list_.count() > static_cast<int>(send(LVM_GETCOUNTPERPAGE)))
        room.right -= GetSystemMetrics(SM_CXVSCROLL);
    const auto width = std::min(std::max(static_cast<int>(room.right), widest_), widest_column);
    if (static_cast<int>(send(LVM_GETCOLUMNWIDTH)) != width) send(LVM_SETCOLUMNWIDTH, 0, width);
}

void ListBoxPeer::font_changed() {
    widest_ = 0;
    RowsPeer::font_changed();
}

/// Beside the lines there is nothing to press.
void ListBoxPeer::press(int row, bool twice) {
    if (row < 0) return;
    const bool pressed =
        window().deliver([&] { return twice ? list_.user_select(row) : list_.user_press(row); });
    if (pressed && twice) window().deliver([&] { return list_.user_double_click(); });
}

/// A list box goes by one character at a time.
bool ListBoxPeer::take_character(wchar_t character) {
    if (character < L' ') return true; // a key held down together with another
    window().deliver([&] { return list_.user_search(from_wide(std::wstring_view(&character, 1))); });
    return true;
}

LRESULT ListBoxPeer::handle_message(UINT message, WPARAM wparam, LPARAM lparam) {
    if (message == fit_message) {
        fit_columns();
        return 0;
    }
    const LRESULT result = RowsPeer::handle_message(message, wparam, lparam);
    if (message == WM_SIZE && handle()) PostMessageW(handle(), fit_message, 0, 0);
    if (message == WM_ENABLE && handle()) InvalidateRect(handle(), nullptr, FALSE);
    return result;
}

LRESULT ListBoxPeer::paint(NMLVCUSTOMDRAW& drawing) const {
    const NMCUSTOMDRAW& part = drawing.nmcd;
    if (part.dwDrawStage == CDDS_PREPAINT) return CDRF_NOTIFYITEMDRAW;
    if (part.dwDrawStage != CDDS_ITEMPREPAINT) return CDRF_DODEFAULT;
    const auto row = static_cast<int>(part.dwItemSpec);
    if (in_range(row, 0)) draw_line(row, part.hdc);
    return CDRF_SKIPDEFAULT;
}

void ListBoxPeer::draw_line(int row, HDC dc) const {
    RECT place{};
    place.left = LVIR_BOUNDS;
    send(LVM_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&place));
    const auto state =
        static_cast<UINT>(send(LVM_GETITEMSTATE, static_cast<WPARAM>(row), LVIS_SELECTED | LVIS_FOCUSED));
    const bool focused = (state & LVIS_FOCUSED) != 0 && GetFocus() == handle();
    const ListLine line = {.place = place,
                           .text = list_.line(row),
                           .text_top = window().line_top(place.top, place.bottom),
                           .indent = scaled(line_indent, window().dpi()),
                           .selected = (state & LVIS_SELECTED) != 0,
                           .focused = focused && (send(WM_QUERYUISTATE) & UISF_HIDEFOCUS) == 0};
    const int width = line.draw(*this, window().font(), dc);
    if (width <= widest_) return;
    widest_ = width;
    RECT room{};
    GetClientRect(handle(), &room);
    if (widest_ > room.right) PostMessageW(handle(), fit_message, 0, 0);
}

} // namespace brx
