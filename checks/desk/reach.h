#pragma once

#include <windows.h>

#include <commctrl.h>

namespace brx::checks {

// Where a person's mouse gets to. On the windows' thread.

bool is_within(HWND window, HWND hit);

/// Whether a click there would reach the window.
bool can_be_hit(HWND window, POINT client);

/// Posts a click, if it would reach the window.
bool click_into(HWND window, POINT client);

/// Scrolls a row of a tree into view where needed, as a person would first. Null when there is no such row.
HTREEITEM bring_row_into_view(HWND tree, int row);

/// Where to click on a line of a list box, a row of a tree or table, which is brought into view, or a tab.
/// False when there is none.
bool find_line(HWND list, int line, POINT& point);

bool click_line(HWND list, int line);

} // namespace brx::checks
