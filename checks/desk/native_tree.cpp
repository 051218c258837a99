#include "desk/native_tree.h"

#include "com/bstr.h"
#include "desk/native.h"

namespace brx::checks {

namespace {

HTREEITEM next(HWND tree, UINT relation, HTREEITEM item = nullptr) {
    return reinterpret_cast<HTREEITEM>(ask(tree, TVM_GETNEXTITEM, relation, reinterpret_cast<LPARAM>(item)));
}

TVITEMW details_of(HWND tree, HTREEITEM item, UINT mask, wchar_t* text = nullptr) {
    TVITEMW details{};
    details.mask = TVIF_HANDLE | mask;
    details.hItem = item;
    details.stateMask = TVIS_EXPANDED;
    details.pszText = text;
    details.cchTextMax = text ? longest_text : 0;
    ask(tree, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&details));
    return details;
}

std::string row_of(HWND tree, HTREEITEM item) {
    std::string row;
    for (HTREEITEM each = next(tree, TVGN_PARENT, item); each; each = next(tree, TVGN_PARENT, each))
        row += "  ";
    const TVITEMW details = details_of(tree, item, TVIF_CHILDREN | TVIF_STATE);
    const bool open = (details.state & TVIS_EXPANDED) != 0 && next(tree, TVGN_CHILD, item);
    return row + (open ? '-' : details.cChildren != 0 ? '+' : ' ') + text_of_item(tree, item);
}

/// Of the text, as far as it is to be seen.
RECT text_place(HWND tree, HTREEITEM item) {
    RECT place{};
    *reinterpret_cast<HTREEITEM*>(&place) = item;
    if (!ask(tree, TVM_GETITEMRECT, TRUE, reinterpret_cast<LPARAM>(&place))) return {};
    RECT client{};
    GetClientRect(tree, &client);
    RECT seen{};
    IntersectRect(&seen, &place, &client);
    return seen;
}

UINT part_at(HWND tree, POINT point, HTREEITEM item) {
    TVHITTESTINFO hit{};
    hit.pt = point;
    ask(tree, TVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
    return hit.hItem == item ? hit.flags : 0;
}

} // namespace

std::vector<HTREEITEM> items_in_view(HWND tree, std::size_t most) {
    std::vector<HTREEITEM> items;
    HTREEITEM each = next(tree, TVGN_ROOT);
    for (; each && items.size() < most; each = next(tree, TVGN_NEXTVISIBLE, each)) items.push_back(each);
    return items;
}

std::string text_of_item(HWND tree, HTREEITEM item) {
    std::wstring text(longest_text, L'\0');
    const TVITEMW details = details_of(tree, item, TVIF_TEXT, text.data());
    const std::wstring got = details.pszText;
    return brx::text_of(got.data(), got.size());
}

bool is_open(HWND tree, HTREEITEM item) {
    return (details_of(tree, item, TVIF_STATE).state & TVIS_EXPANDED) != 0;
}

std::vector<std::string> tree_rows(HWND tree, std::size_t most) {
    std::vector<std::string> rows;
    for (const HTREEITEM item : items_in_view(tree, most)) rows.push_back(row_of(tree, item));
    return rows;
}

HTREEITEM selected_item(HWND tree) { return next(tree, TVGN_CARET); }

int selected_row(HWND tree) {
    const HTREEITEM selected = selected_item(tree);
    int row = 0;
    for (HTREEITEM each = selected ? next(tree, TVGN_ROOT) : nullptr; each;
         each = next(tree, TVGN_NEXTVISIBLE, each), ++row)
        if (each == selected) return row;
    return -1;
}

POINT point_on_text(HWND tree, HTREEITEM item) {
    const RECT text = text_place(tree, item);
    RECT client{};
    GetClientRect(tree, &client);
    return {std::min((text.left + text.right) / 2, client.right - 2), (text.top + text.bottom) / 2};
}

bool point_on_sign(HWND tree, HTREEITEM item, POINT& point) {
    if (details_of(tree, item, TVIF_CHILDREN).cChildren == 0) return false;
    const RECT text = text_place(tree, item);
    point.y = (text.top + text.bottom) / 2;
    for (point.x = text.left; point.x >= 0; --point.x)
        if ((part_at(tree, point, item) & TVHT_ONITEMBUTTON) != 0) {
            point.x -= 2; // off its edge
            return (part_at(tree, point, item) & TVHT_ONITEMBUTTON) != 0;
        }
    return false;
}

} // namespace brx::checks
