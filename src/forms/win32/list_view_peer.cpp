#include "forms/win32/list_view_peer.h"

#include "common/error.h"
#include "forms/win32/common_controls.h"
#include "forms/win32/form_window.h"

#include <algorithm>
#include <cmath>

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
    if (has(aspects, Aspect::place)) fit_columns();
    if (has(aspects, Aspect::colors)) show_colors();
    if (has(aspects, Aspect::lines)) show_rows();
    if (has(aspects, Aspect::lines | Aspect::place)) show_tip();
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
    if (changes.columns || widths_.size() < list_.columns().size()) add_columns();
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
    const auto& columns = list_.columns();
    for (std::size_t i = widths_.size(); i < columns.size(); ++i) {
        std::wstring caption = to_wide(columns[i].caption);
        LVCOLUMNW column{};
        column.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_SUBITEM;
        column.pszText = caption.data();
        column.iSubItem = static_cast<int>(i);
        if (send(LVM_INSERTCOLUMNW, i, reinterpret_cast<LPARAM>(&column)) < 0)
            throw Error(error::out_of_memory);
        widths_.push_back({static_cast<double>(columns[i].width), 0});
    }
    fit_columns();
}

/// The columns share the room that the list has been given beyond its design, in proportion. So they scale
/// with the monitor, and what a person makes of a width stays in proportion too.
void ListViewPeer::fit_columns() {
    int designed = 0;
    for (const ListView::Column& column : list_.columns()) designed += column.width;
    if (designed == 0) return;
    const double scale = window().dpi() / 96.0;
    const double by = scale + static_cast<double>(window().growth_of(list_).cx) / designed;
    for (std::size_t i = 0; i < widths_.size(); ++i) {
        ColumnWidth& width = widths_[i];
        const auto now = static_cast<int>(send(LVM_GETCOLUMNWIDTH, i));
        if (now != width.shown && width.shown != 0) width.design = now / shown_by_;
        width.shown = static_cast<int>(std::lround(width.design * by));
        if (now != width.shown) send(LVM_SETCOLUMNWIDTH, i, width.shown);
    }
    shown_by_ = by;
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
}

const ListRow* ListViewPeer::row_at(int index) const {
    return index >= 0 && index < list_.count() ? &list_.row(index + 1) : nullptr;
}

int ListViewPeer::selected_index() const {
    return static_cast<int>(send(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED));
}

} // namespace brx
