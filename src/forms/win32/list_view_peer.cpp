#include "forms/win32/list_view_peer.h"

#include "common/error.h"
#include "forms/list_rows.h"
#include "forms/win32/form_window.h"

#include <cmath>

namespace brx {

ListViewPeer::ListViewPeer(FormWindow& window, ListView& list)
    : RowsPeer(window, list, LVS_NOSORTHEADER), list_(list) {
    make_bold_font();
}

void ListViewPeer::show_rows() {
    const ListView::Changes changes = list_.take_changes();
    if (changes.columns || widths_.size() < list_.columns().size()) add_columns();
    if (changes.rows || shown_count() != list_.count()) return show_all_rows();
    const std::vector<int>& positions = changes.positions;
    for (auto first = positions.begin(); first != positions.end();) {
        auto last = first;
        while (last + 1 != positions.end() && *(last + 1) == *last + 1) ++last;
        redraw(*first - 1, *last - 1);
        first = last + 1;
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
        width.shown = std::min(static_cast<int>(std::lround(width.design * by)), widest_column);
        if (now != width.shown) send(LVM_SETCOLUMNWIDTH, i, width.shown);
    }
    shown_by_ = by;
}

/// On a row or beside the rows.
void ListViewPeer::press(int row, bool twice) {
    if (!window().deliver([&] { return select_row(row); })) return;
    if (twice) open_row();
}

void ListViewPeer::open_row() {
    window().deliver([&] { return list_.user_double_click(); });
}

int ListViewPeer::row_beginning_with(const std::string& text, int start) const {
    return brx::row_beginning_with(list_, text, start + 1) - 1;
}

LRESULT ListViewPeer::paint(NMLVCUSTOMDRAW& drawing) const {
    NMCUSTOMDRAW& part = drawing.nmcd;
    switch (part.dwDrawStage) {
    case CDDS_PREPAINT:
        return CDRF_NOTIFYITEMDRAW;
    case CDDS_ITEMPREPAINT:
        return CDRF_NOTIFYSUBITEMDRAW;
    case CDDS_ITEMPREPAINT | CDDS_SUBITEM: {
        const auto row = static_cast<int>(part.dwItemSpec);
        if (!in_range(row, drawing.iSubItem)) return CDRF_DODEFAULT;
        const CellLook look = list_.row(row + 1).look(drawing.iSubItem);
        // Of the selected row the system changes only the font: its background has a colour for text.
        const bool colored = look.fore_color != color::window_text && !Palette::high_contrast();
        drawing.clrText = Palette::rgb(colored ? look.fore_color : list_.fore_color());
        SelectObject(part.hdc, font_of(row, drawing.iSubItem));
        return CDRF_NEWFONT;
    }
    default:
        return CDRF_DODEFAULT;
    }
}

HFONT ListViewPeer::font_of(int row, int column) const {
    return list_.row(row + 1).look(column).bold && bold_ ? bold_.get() : window().font();
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

} // namespace brx
