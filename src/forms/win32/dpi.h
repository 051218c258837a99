#pragma once

#include <windows.h>

namespace brx {

// The scale of monitors. Systems before Windows 10 have one scale for all of them, and fewer functions.

/// Dots per inch that a window is to be drawn with; 96 is 100 %.
unsigned dpi_of(HWND window);

/// For its lifetime this thread's windows are scaled like that one, which is another thread's.
class ScaleOf {
public:
    explicit ScaleOf(HWND window);
    ~ScaleOf();
    ScaleOf(const ScaleOf&) = delete;
    ScaleOf& operator=(const ScaleOf&) = delete;

private:
    void* before_ = nullptr;
};

/// A length at 96 DPI in pixels at `dpi`.
inline int scaled(int length, unsigned dpi) { return MulDiv(length, static_cast<int>(dpi), 96); }

/// The outer size of a window of these styles whose client area has this size.
SIZE frame_around(SIZE client, DWORD style, DWORD ex_style, unsigned dpi);

/// The system's font for messages and dialogs.
LOGFONTW message_font(unsigned dpi);

} // namespace brx
