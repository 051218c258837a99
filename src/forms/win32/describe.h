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
/// `kind` is form, label, text_box, button, check_box, list_box, combo_box, frame, panel or timer. `enabled`
/// and `visible` are 0 or 1, containers considered. `number` is the selected line or the value of a check
/// box, -1 for the other kinds, and `lines` how many lines a list has, 0 for the other kinds. `text` is the
/// caption, the text or the selected line's text, with \\ \t \r \n \0 for backslash, tab, carriage return,
/// line feed and NUL. The form itself is enabled while a person can do something with it.
UINT describe_message();

/// Answers it.
LRESULT describe(const Form& form, WPARAM capacity, LPARAM buffer);

} // namespace brx
