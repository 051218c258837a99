#pragma once

#include <windows.h>

#include <string>

namespace brx {

/// Answers WM_GETOBJECT, as it came to a window, for its client area: with the system's own object of such a
/// window, but for the name. 0, which leaves it to the system, where that cannot be had.
LRESULT named_accessible(HWND window, WPARAM flags, const std::wstring& name);

} // namespace brx
