#pragma once

#include "tour/program.h"

#include <windows.h>

#include <string>
#include <vector>

namespace tour {

// What a person reads in the controls of another program, and does with them.

using Lines = std::vector<std::wstring>;

std::wstring text_of(HWND window);
/// The lines of a list, whichever way the system shows it.
Lines lines_of(const Program& program, HWND list);
/// The text of a message box.
std::wstring message_of(HWND box);
/// How many rows a list view has, and which one is selected, from 0; -1 for none.
int rows_of(HWND list_view);
int selected_row(HWND list_view);
/// The text of a cell of a list view, both counted from 0.
std::wstring cell_of(const Program& program, HWND list_view, int row, int column);

void click(HWND control, POINT place);
void press(HWND button);
void type(HWND box, const std::wstring& text);
void hit(HWND control, WPARAM key);
/// Clicks on a line of a list that is no combo box, or double-clicks.
void click_line(const Program& program, HWND list, int line, bool twice = false);
/// Clicks on a tab, counted from 1.
void click_tab(const Program& program, HWND tab_strip, int tab);
/// Types into the fields of a date or time picker, from the first one on.
void type_fields(HWND picker, const Lines& fields);
void close(HWND window);

} // namespace tour
