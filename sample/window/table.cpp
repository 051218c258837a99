#include "window/table.h"

#include "window/screen.h"

#include <commctrl.h>
#include <uxtheme.h>

#include <algorithm>

namespace sample {

namespace {

constexpr int least_width = 120; ///< at 96 DPI, of a column that takes what is left

void set_text(HWND list, int row, int column, std::wstring text) {
    ListView_SetItemText(list, row, column, text.data());
}

} // namespace

void Table::create(HWND parent, int id, std::span<const TableColumn> columns) {
    columns_ = columns;
    list_ = CreateWindowExW(
        WS_EX_CLIENTEDGE, WC_LISTVIEWW, nullptr,
        WS_CHILD | WS_VISIBLE | WS_TABSTOP | LVS_REPORT | LVS_SINGLESEL | LVS_SHOWSELALWAYS, 0, 0, 0, 0,
        parent, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr, nullptr);
    SetWindowTheme(list_, L"Explorer", nullptr);
    ListView_SetExtendedListViewStyle(list_, LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER | LVS_EX_LABELTIP);
    for (std::size_t i = 0; i < columns.size(); ++i) {
        std::wstring title = columns[i].title;
        LVCOLUMNW column{};
        column.mask = LVCF_TEXT;
        column.pszText = title.data();
        ListView_InsertColumn(list_, static_cast<int>(i), &column);
    }
}

void Table::show(const std::vector<TableLine>& lines) {
    if (lines == lines_) return;
    const long selection = selected();
    while (lines_.size() > lines.size()) {
        ListView_DeleteItem(list_, static_cast<int>(lines_.size() - 1));
        lines_.pop_back();
    }
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const int row = static_cast<int>(i);
        if (i == lines_.size()) {
            LVITEMW item{};
            item.iItem = row;
            ListView_InsertItem(list_, &item);
            lines_.emplace_back();
        }
        if (lines_[i] == lines[i]) continue;
        lines_[i] = lines[i];
        show_line(row, lines[i]);
    }
    select(std::min(selection, static_cast<long>(lines_.size())));
    fit_columns();
}

void Table::show_line(int index, const TableLine& line) {
    for (std::size_t i = 0; i < line.cells.size(); ++i)
        set_text(list_, index, static_cast<int>(i), line.cells[i]);
    ListView_RedrawItems(list_, index, index);
}

long Table::selected() const { return ListView_GetNextItem(list_, -1, LVNI_SELECTED) + 1; }

void Table::select(long position) {
    if (position < 1 || position == selected()) return;
    const int row = static_cast<int>(position - 1);
    ListView_SetItemState(list_, row, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    ListView_EnsureVisible(list_, row, FALSE);
}

void Table::place(const RECT& rect, UINT dpi) {
    MoveWindow(list_, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top, TRUE);
    if (dpi != dpi_) {
        // An empty picture in each line gives the lines some air.
        ImageList_Destroy(
            ListView_SetImageList(list_, ImageList_Create(1, scaled(19, dpi), ILC_COLOR, 0, 0), LVSIL_SMALL));
        dpi_ = dpi;
    }
    fit_columns();
}

/// There is less room once the list has more lines than it shows.
void Table::fit_columns() const {
    RECT inside{};
    GetClientRect(list_, &inside);
    int left = inside.right;
    for (const TableColumn& each : columns_) left -= scaled(each.width, dpi_);
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        const int width = columns_[i].width;
        ListView_SetColumnWidth(list_, static_cast<int>(i),
                                width != 0 ? scaled(width, dpi_) : std::max(left, scaled(least_width, dpi_)));
    }
}

LRESULT Table::draw(NMLVCUSTOMDRAW& request) const {
    if (request.nmcd.dwDrawStage == CDDS_PREPAINT) return CDRF_NOTIFYITEMDRAW;
    if (request.nmcd.dwDrawStage != CDDS_ITEMPREPAINT) return CDRF_DODEFAULT;
    const auto row = static_cast<std::size_t>(request.nmcd.dwItemSpec);
    if (row >= lines_.size() || lines_[row].tone == Tone::plain) return CDRF_DODEFAULT;
    request.clrText = lines_[row].tone == Tone::pale ? GetSysColor(COLOR_GRAYTEXT) : RGB(192, 0, 0);
    return CDRF_NEWFONT;
}

} // namespace sample
