#include "forms/win32/rows_peer.h"

#include "forms/win32/common_controls.h"
#include "forms/win32/dpi.h"
#include "forms/win32/form_window.h"
#include "forms/win32/gdi.h"

#include <algorithm>

namespace brx {

namespace {

constexpr DWORD rows_style = LVS_REPORT | LVS_OWNERDATA | LVS_SINGLESEL | LVS_SHOWSELALWAYS;
constexpr LPARAM extended_style = LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER;

/// What lists leave free in a cell on each side of its text, at most, at 96 DPI.
constexpr int beside_text = 6;

} // namespace

RowsPeer::RowsPeer(FormWindow& window, Control& control, DWORD style)
    : ControlPeer(window, control,
                  {common_control(WC_LISTVIEWW), rows_style | style | WS_TABSTOP, WS_EX_CLIENTEDGE, true}) {
    send(LVM_SETEXTENDEDLISTVIEWSTYLE, 0, extended_style);
}

void RowsPeer::show(Aspect aspects) {
    ControlPeer::show(aspects); // first, for a list scrolls to its selection within the place it has
    if (has(aspects, Aspect::place)) fit_columns();
    if (has(aspects, Aspect::colors)) show_colors();
    if (has(aspects, Aspect::lines)) show_rows();
    if (has(aspects, Aspect::lines | Aspect::place)) show_tip();
    if (has(aspects, Aspect::selection) && shown_selection_ != selected_row()) show_selection();
}

void RowsPeer::show_colors() {
    // On its own it follows the system's colours for windows, also while it is disabled.
    const bool usual =
        control().back_color() == color::window && control().fore_color() == color::window_text;
    if (usual && !own_colors_) return;
    own_colors_ = true;
    const auto back = static_cast<LPARAM>(Palette::rgb(control().back_color()));
    send(LVM_SETBKCOLOR, 0, back);
    send(LVM_SETTEXTBKCOLOR, 0, back);
    send(LVM_SETTEXTCOLOR, 0, static_cast<LPARAM>(Palette::rgb(control().fore_color())));
}

void RowsPeer::show_all_rows() {
    shown_count_ = row_count();
    send(LVM_SETITEMCOUNT, static_cast<WPARAM>(shown_count_), LVSICF_NOSCROLL);
    show_selection(); // it went by numbers, and other rows have them now
    InvalidateRect(handle(), nullptr, FALSE);
}

void RowsPeer::redraw(int first, int last) { send(LVM_REDRAWITEMS, static_cast<WPARAM>(first), last); }

void RowsPeer::show_selection() {
    shown_selection_ = selected_row();
    const int focused = shown_selection_ >= 0 ? shown_selection_ : focus_row();
    // Row by row: to take something from all at once, some systems' lists go through a million.
    for (const int row : {selected_index(), focused_index()})
        if (row >= 0 && row != focused) set_state(row, 0);
    if (focused < 0) return;
    set_state(focused, shown_selection_ >= 0 ? LVIS_SELECTED | LVIS_FOCUSED : LVIS_FOCUSED);
    if (shown_selection_ >= 0) send(LVM_ENSUREVISIBLE, static_cast<WPARAM>(shown_selection_), FALSE);
}

void RowsPeer::set_state(int row, UINT state) const {
    LVITEMW item{};
    item.state = state;
    item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
    send(LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
}

/// The whole text of the cell below the mouse, where that is cut. A list on its own does so for the first
/// column only.
void RowsPeer::show_tip() {
    LVHITTESTINFO hit{};
    hit.pt = mouse_;
    send(LVM_SUBITEMHITTEST, 0, reinterpret_cast<LPARAM>(&hit));
    std::wstring text;
    if (in_range(hit.iItem, hit.iSubItem)) to_wide(cell(hit.iItem, hit.iSubItem), text);
    if (!text.empty() && !is_cut(hit.iItem, hit.iSubItem, text)) text.clear();
    if (text == tip_) return;
    tip_ = text;
    window().set_tip(handle(), tip_);
}

/// Whether a cell's text does not fit into its column, or the column not into the list.
bool RowsPeer::is_cut(int row, int column, const std::wstring& text) const {
    RECT place{};
    place.left = LVIR_BOUNDS;
    place.top = column;
    send(LVM_GETSUBITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&place));
    // The bounds of the first cell are the row's.
    place.right = place.left + static_cast<LONG>(send(LVM_GETCOLUMNWIDTH, static_cast<WPARAM>(column)));
    RECT view{};
    GetClientRect(handle(), &view);
    const int beside = scaled(beside_text, window().dpi());
    const LONG from = place.left + beside;
    const LONG to = from + TextMeasure(handle(), font_of(row, column)).width(text.data(), text.size());
    return from < view.left || to > std::min(place.right - beside, view.right);
}

int RowsPeer::focused_index() const {
    return static_cast<int>(send(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_FOCUSED));
}

/// Where it probably is first, for some systems' lists look at one row after the other.
int RowsPeer::selected_index() const {
    if (send(LVM_GETSELECTEDCOUNT) == 0) return -1;
    for (const int row : {focused_index(), shown_selection_})
        if (row >= 0 && send(LVM_GETITEMSTATE, static_cast<WPARAM>(row), LVIS_SELECTED) != 0) return row;
    return static_cast<int>(send(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED));
}

} // namespace brx
