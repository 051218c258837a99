#pragma once

#include <windows.h>

#include <commctrl.h>

#include <cstdint>
#include <string>
#include <vector>

namespace brx::checks {

// Reading a tree view of this program, and where the mouse finds its parts.

constexpr std::size_t all_rows = SIZE_MAX;

/// Its items that are in view, given room, from the top down; no more than `most`. Some systems look through
/// the whole tree whenever they are asked about an item.
std::vector<HTREEITEM> items_in_view(HWND tree, std::size_t most = all_rows);
std::string text_of_item(HWND tree, HTREEITEM item);
bool is_open(HWND tree, HTREEITEM item);

/// The items in view as a person reads them: two blanks for each level, "+" before a closed one, "-" before
/// an open one, a blank before one without children, and the text.
std::vector<std::string> tree_rows(HWND tree, std::size_t most = all_rows);
/// Null when there is none.
HTREEITEM selected_item(HWND tree);
/// The row of the selected item; -1 when there is none.
int selected_row(HWND tree);

/// In client coordinates, within what is to be seen of the tree. The sign is where a click opens or closes
/// the item; false when there is none.
POINT point_on_text(HWND tree, HTREEITEM item);
bool point_on_sign(HWND tree, HTREEITEM item, POINT& point);

} // namespace brx::checks
