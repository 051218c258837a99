#pragma once

#include <windows.h>

#include <memory>

namespace sample {

// The scale of monitors and the fonts and names of windows.

/// Dots per inch that a window is drawn with; 96 is 100 %.
UINT dpi_of(HWND window);

/// A length at 96 DPI in pixels.
inline int scaled(int length, UINT dpi) { return MulDiv(length, static_cast<int>(dpi), 96); }

struct DeleteFont {
    using pointer = HFONT;
    void operator()(HFONT font) const { DeleteObject(font); }
};
using Font = std::unique_ptr<HFONT, DeleteFont>;

/// The system's font for messages and dialogs.
Font message_font(UINT dpi);

/// Gives a window a name that UI tests find it by: a global atom in its property `brx.Name`, as the windows
/// of the dialogs have it.
void name_window(HWND window, const wchar_t* name);
/// To be called as the window goes.
void forget_name(HWND window);

} // namespace sample
