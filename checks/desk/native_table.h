#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace brx::checks {

// Reading a list view in report style, a tab control and a date picker of this program, and where the mouse
// finds their parts.

int row_count(HWND list);
/// -1 when none is selected.
int selected_row_of(HWND list);
/// The captions of its columns.
std::vector<std::string> column_captions(HWND list);
/// The text of one cell, the row's own in column 0.
std::string cell_text(HWND list, int row, int column);
/// The rows as a person reads them: the cells parted by " | ", a bold one between asterisks, a red text after
/// "red:". No more than `most`. How a cell looks its parent is asked as when it is drawn.
std::vector<std::string> table_rows(HWND list, int most);
/// On the row's own text, in client coordinates, once the row is scrolled into view. False when there is no
/// such row.
bool point_on_row(HWND list, int row, POINT& point);

std::vector<std::string> tab_captions(HWND tabs);
/// False when there is no such tab, or it is scrolled out of view.
bool point_on_tab(HWND tabs, int tab, POINT& point);

/// What a date picker holds, as 2026-11-21 or, where it shows times, 13:04:05.
std::string date_text(HWND picker);

/// What has to be typed into each field of a date picker, from left to right, for it to hold this. Empty when
/// the text is no such date or time.
std::vector<std::string> date_fields(HWND picker, const std::string& text);

} // namespace brx::checks
