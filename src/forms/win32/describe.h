#pragma once

#include "forms/form.h"

#include <windows.h>

namespace brx {

/// The number of the registered message "brx.Describe". A form's window answers it for user-interface tests
/// in its process: wParam is the capacity of a buffer in UTF-16 units, lParam the buffer or 0; the result is
/// the length that the whole answer needs, its final NUL included. A short buffer gets the beginning and a
/// NUL.
///
/// The answer is what the form and its controls hold, whatever their windows show; a line each, the form
/// first, then the controls in the order of their creation. The fields of a line are divided by tabs:
///
///   name  kind  enabled  visible  number  lines  text
///
/// `kind` is form, label, text_box, button, check_box, list_box, combo_box, tree_view, list_view, tab_strip,
/// date_picker, frame, panel or timer. `enabled` and `visible` are 0 or 1, containers considered. `number` is
/// the selected line, row or tab from 0, the value of a check box, or 1 for a panel that lies before what it
/// overlaps and 0 for one behind; -1 for the other kinds and where none is selected. `lines` is how many
/// lines, rows or tabs there are, 0 for the other kinds. `text` is the caption, the text or the
/// selected line's text, with \\ \t \r \n \0 for backslash, tab, carriage return, line feed and NUL. The form
/// itself is enabled while a person can do something with it.
///
/// Of a tree the lines are the nodes in view. They follow the line of the tree, under its name, as lines of
/// kind `row` whose text begins with two blanks for each level and "+" for a closed node, "-" for an open one
/// or a blank for one without children. `number` is the row of the selected node, -1 when none in view is
/// selected, and `text` that node's own text.
///
/// The columns of a list view follow it as lines of kind `column` with their captions, and then its rows as
/// lines of kind `row`: the cells are parted by " | ", a bold one stands between asterisks, and a red text
/// begins with "red:". The tabs of a tab strip are lines of kind `row` as well. The `text` of a date picker
/// is 2026-11-21 or, where it shows times, 13:04:05.
UINT describe_message();

/// Answers it.
LRESULT describe(const Form& form, WPARAM capacity, LPARAM buffer);

} // namespace brx
