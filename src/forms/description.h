#pragma once

#include "forms/form.h"

#include <string>

namespace brx {

/// What a form and its controls hold, whatever their windows show, for user-interface tests of hosts: a line
/// each, the form first, then the controls in the order of their creation. The fields of a line are divided
/// by tabs:
///
///   name  kind  enabled  visible  number  lines  text
///
/// `kind` is form, label, text_box, button, check_box, list_box, combo_box, tree_view, list_view, tab_strip,
/// date_picker, frame, panel or timer. `enabled` and `visible` are 0 or 1, containers considered; the form
/// itself is enabled while a person can do something with it. `number` is the selected line, row, node or tab
/// from 0, the value of a check box, or 1 for a panel that lies before what it overlaps and 0 for one behind;
/// -1 for the other kinds and where none is selected. `lines` is how many lines, rows, nodes in view or tabs
/// there are, 0 for the other kinds. `text` is the caption, the text or the selected line's text, with
/// \\ \t \r \n \0 for backslash, tab, carriage return, line feed and NUL; of a date picker 2026-11-21 or,
/// where it shows times, 13:04:05.
///
/// What has lines is followed by them under its own name, `most_lines` of each control at most: first lines
/// of kind `column` with the captions of a list view's columns, then one of kind `row` for each line, and
/// after that one of kind `cell` for each further cell of a list view's row. Of rows and cells `number` is
/// the colour of the text as 0x00BBGGRR, -1 for the usual one, and `lines` 1 where it is bold. The row of a
/// tree begins with two blanks for each level and "+" for a closed node, "-" for an open one or a blank for
/// one without children.
std::string description_of(const Form& form, int most_lines);

} // namespace brx
