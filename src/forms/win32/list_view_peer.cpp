#include "forms/win32/list_view_peer.h"

#include "common/error.h"
#include "forms/win32/common_controls.h"
#include "forms/win32/dpi.h"
#include "forms/win32/form_window.h"

#include <algorithm>
#include <utility>

namespace brx {

namespace {

constexpr DWORD list_style =
    LVS_REPORT | LVS_OWNERDATA | LVS_SINGLESEL | LVS_SHOWSELALWAYS | LVS_NOSORTHEADER;
constexpr LPARAM extended_style = LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER;
constexpr UINT selected_and_focused = LVIS_SELECTED | LVIS_FOCUSED;

LVITEMW state_of(UINT state, UINT mask) {
    LVITEMW item{};
    item.state = state;
    item.stateMask = mask;
    return item;
}

} // namespace

ListViewPeer::ListViewPeer(FormWindow& window, ListView& list)
    : ControlPeer(window, list, {common_control(WC_LISTVIEWW), list_style | WS_TABSTOP, WS_EX_CLIENTEDGE}),
      list_(list) {
    send(LVM_SETEXTENDEDLISTVIEWSTYLE, 0, extended_style);
    make_bold_font();
}

void ListViewPeer::show(Aspect aspects) {
    ControlPeer::show(aspects); // first, for a list scrolls to its selection within the place it has
    if (has(aspects, Aspect::colors)) show_colors();
    if (has(aspects, Aspect::lines)) show_rows();
    if (has(aspects, Aspect::selection) && shown_selection_ != list_.selected()) show_selection();
}

void ListViewPeer::show_colors() {
    // On its own it follows the system's colours for windows, also while it is disabled.
    const bool usual = list_.back_color() == color::window && list_.fore_color() == color::window_text;
    if (usual && !own_colors_) return;
    own_colors_ = true;
    const auto back = static_cast<LPARAM>(Palette::rgb(list_.back_color()));
    send(LVM_SETBKCOLOR, 0, back);
    send(LVM_SETTEXTBKCOLOR, 0, back);
    send(LVM_SETTEXTCOLOR, 0, static_cast<LPARAM>(Palette::rgb(list_.fore_color())));
}

void ListViewPeer::show_rows() {
    const ListView::Changes changes = list_.take_changes();
    if (columns_dpi_ == 0 || changes.columns) add_columns();
    if (changes.rows || shown_count_ != list_.count()) {
        shown_count_ = list_.count();
        send(LVM_SETITEMCOUNT, static_cast<WPARAM>(shown_count_), LVSICF_NOSCROLL);
        show_selection(); // it went by numbers, and other rows have them now
        InvalidateRect(handle(), nullptr, FALSE);
    } else {
        redraw(changes.positions);
    }
}

/// Columns are only ever added to those that there are.
void ListViewPeer::add_columns() {
    columns_dpi_ = window().dpi();
    const auto header = reinterpret_cast<HWND>(send(LVM_GETHEADER));
    const auto& columns = list_.columns();
    const LRESULT there = std::max<LRESULT>(0, SendMessageW(header, HDM_GETITEMCOUNT, 0, 0));
    for (auto i = static_cast<std::size_t>(there); i < columns.size(); ++i) {
        std::wstring caption = to_wide(columns[i].caption);
        LVCOLUMNW column{};
        column.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_SUBITEM;
        column.pszText = caption.data();
        column.cx = scaled(columns[i].width, columns_dpi_);
        column.iSubItem = static_cast<int>(i);
        if (send(LVM_INSERTCOLUMNW, i, reinterpret_cast<LPARAM>(&column)) < 0)
            throw Error(error::out_of_memory);
    }
}

/// By as much as everything else, from what a person may have made of their widths.
void ListViewPeer::scale_columns() {
    const auto dpi = static_cast<int>(window().dpi());
    const auto before = static_cast<int>(std::exchange(columns_dpi_, window().dpi()));
    if (before == 0 || before == dpi) return;
    for (WPARAM i = 0; i < list_.columns().size(); ++i)
        send(LVM_SETCOLUMNWIDTH, i, MulDiv(static_cast<int>(send(LVM_GETCOLUMNWIDTH, i)), dpi, before));
}

void ListViewPeer::redraw(const std::vector<int>& positions) {
    for (auto first = positions.begin(); first != positions.end();) {
        auto last = first;
        while (last + 1 != positions.end() && *(last + 1) == *last + 1) ++last;
        send(LVM_REDRAWITEMS, static_cast<WPARAM>(*first - 1), *last - 1);
        first = last + 1;
    }
}

void ListViewPeer::show_selection() {
    shown_selection_ = list_.selected();
    LVITEMW nothing = state_of(0, selected_and_focused);
    const auto set = [&](int index, LVITEMW& state) {
        send(LVM_SETITEMSTATE, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&state));
    };
    const int wanted = list_.selected() - 1;
    const int before = selected_index();
    if (before != wanted || wanted < 0) set(-1, nothing);
    if (wanted >= 0) {
        LVITEMW both = state_of(selected_and_focused, selected_and_focused);
        set(wanted, both);
        send(LVM_ENSUREVISIBLE, static_cast<WPARAM>(wanted), FALSE);
    } else if (list_.focus_row() > 0) {
        LVITEMW focused = state_of(LVIS_FOCUSED, LVIS_FOCUSED);
        set(list_.focus_row() - 1, focused);
    }
}

void ListViewPeer::make_bold_font() {
    LOGFONTW look{};
    GetObjectW(window().font(), sizeof look, &look);
    look.lfWeight = FW_BOLD;
    bold_.reset(CreateFontIndirectW(&look));
}

void ListViewPeer::font_changed() {
    make_bold_font();
    ControlPeer::font_changed();
    if (!handle()) return;
    const FormWindow::Showing echo(window());
    scale_columns();
}

const ListRow* ListViewPeer::row_at(int index) const {
    return index >= 0 && index < list_.count() ? &list_.row(index + 1) : nullptr;
}

int ListViewPeer::selected_index() const {
    return static_cast<int>(send(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED));
}

} // namespace brx
