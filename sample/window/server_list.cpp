#include "window/server_list.h"

#include "window/screen.h"

#include <commctrl.h>
#include <uxtheme.h>

#include <algorithm>
#include <array>

namespace sample {

namespace {

struct Column {
    const wchar_t* title;
    int width; ///< at 96 DPI; the last one takes what is left
};
constexpr std::array columns = {Column{L"OPC Server", 180}, Column{L"Node", 110}, Column{L"State", 0}};
enum { name_column, node_column, state_column };

bool is_connected(const ServerLine& line) { return line.state.rfind(L"Not connected", 0) != 0; }

void set_text(HWND list, int row, int column, std::wstring text) {
    ListView_SetItemText(list, row, column, text.data());
}

} // namespace

void ServerList::create(HWND parent, int id) {
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

void ServerList::show(const std::vector<ServerLine>& lines) {
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

void ServerList::show_line(int index, const ServerLine& line) {
    set_text(list_, index, name_column, line.name);
    set_text(list_, index, node_column, line.node.empty() ? L"(this computer)" : line.node);
    set_text(list_, index, state_column, line.state);
    ListView_RedrawItems(list_, index, index);
}

long ServerList::selected() const { return ListView_GetNextItem(list_, -1, LVNI_SELECTED) + 1; }

void ServerList::select(long position) {
    if (position < 1 || position == selected()) return;
    const int row = static_cast<int>(position - 1);
    ListView_SetItemState(list_, row, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    ListView_EnsureVisible(list_, row, FALSE);
}

void ServerList::place(const RECT& rect, UINT dpi) {
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
void ServerList::fit_columns() const {
    RECT inside{};
    GetClientRect(list_, &inside);
    int left = inside.right;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const bool last = i + 1 == columns.size();
        const int width = last ? std::max(left, scaled(120, dpi_)) : scaled(columns[i].width, dpi_);
        ListView_SetColumnWidth(list_, static_cast<int>(i), width);
        left -= width;
    }
}

LRESULT ServerList::draw(NMLVCUSTOMDRAW& request) const {
    if (request.nmcd.dwDrawStage == CDDS_PREPAINT) return CDRF_NOTIFYITEMDRAW;
    if (request.nmcd.dwDrawStage != CDDS_ITEMPREPAINT) return CDRF_DODEFAULT;
    const auto row = static_cast<std::size_t>(request.nmcd.dwItemSpec);
    if (row >= lines_.size() || is_connected(lines_[row])) return CDRF_DODEFAULT;
    request.clrText = GetSysColor(COLOR_GRAYTEXT);
    return CDRF_NEWFONT;
}

} // namespace sample
