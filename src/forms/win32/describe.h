#pragma once

#include "forms/form.h"

#include <windows.h>

namespace brx {

/// The number of the registered message "brx.Describe". A form's window answers it to user-interface tests,
/// those of other processes too: wParam is the window that asks, lParam how many lines of each control it
/// wants to know, -1 for all. Before the message returns, that window gets WM_COPYDATA from the form's, with
/// this number as `dwData` and the description as UTF-16 without a final NUL, see `description_of`. The
/// result is 1, or 0 where the window that asks did not answer WM_COPYDATA with TRUE.
UINT describe_message();

/// Answers it.
LRESULT describe(const Form& form, HWND window, WPARAM asking, LPARAM most_lines);

} // namespace brx
