#include "desk/reach.h"

#include "desk/hands.h"
#include "desk/native.h"
#include "desk/native_table.h"
#include "desk/native_tree.h"

#include <commctrl.h>

namespace brx::checks {

bool is_within(HWND window, HWND hit) { return hit == window || IsChild(window, hit); }

bool can_be_hit(HWND window, POINT client) {
    return window && IsWindowVisible(window) && takes_input(window) &&
           is_within(window, window_at(window, client));
}

bool click_into(HWND window, POINT client) {
    if (!can_be_hit(window, client)) return false;
    click(window, client);
    return true;
}

namespace {

/// False when there is no such line.
bool bring_into_view(HWND list_box, int line) {
    if (line < 0 || line >= SendMessageW(list_box, LB_GETCOUNT, 0, 0)) return false;
    RECT client{};
    GetClientRect(list_box, &client);
    if (PtInRect(&client, centre_of_line(list_box, line))) return true;
    SendMessageW(list_box, LB_SETTOPINDEX, static_cast<WPARAM>(line), 0);
    return PtInRect(&client, centre_of_line(list_box, line)) != FALSE;
}

} // namespace

HTREEITEM bring_row_into_view(HWND tree, int row) {
    if (!tree || kind_of(tree) != NativeKind::tree || !takes_input(tree) || row < 0) return nullptr;
    const std::vector<HTREEITEM> items = items_in_view(tree);
    if (static_cast<std::size_t>(row) >= items.size()) return nullptr;
    const HTREEITEM item = items[static_cast<std::size_t>(row)];
    SendMessageW(tree, TVM_ENSUREVISIBLE, 0, reinterpret_cast<LPARAM>(item));
    // A long row has moved the beginning of all of them out of sight.
    SendMessageW(tree, WM_HSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 0), 0);
    return item;
}

bool find_line(HWND list, int line, POINT& point) {
    if (!list || !takes_input(list)) return false;
    if (kind_of(list) == NativeKind::tree) {
        const HTREEITEM item = bring_row_into_view(list, line);
        if (item) point = point_on_text(list, item);
        return item != nullptr;
    }
    if (kind_of(list) == NativeKind::table) return point_on_row(list, line, point);
    if (kind_of(list) == NativeKind::tabs) return point_on_tab(list, line, point);
    if (kind_of(list) != NativeKind::list_box || !bring_into_view(list, line)) return false;
    point = centre_of_line(list, line);
    return true;
}

bool click_line(HWND list, int line) {
    POINT point{};
    return find_line(list, line, point) && click_into(list, point);
}

} // namespace brx::checks
