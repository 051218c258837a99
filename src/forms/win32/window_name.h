#pragma once

#include <windows.h>

#include <string>

namespace brx {

/// Gives a window the name of the form or control that it shows: a global atom in its property "brx.Name".
/// User-interface tests find windows by it. False when the system has no room for it.
bool set_window_name(HWND window, const std::string& name);

/// Takes the name off again, as the window is destroyed.
void remove_window_name(HWND window);

} // namespace brx
