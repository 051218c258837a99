#pragma once

#include "desk/desk.h"

#include <ostream>

inline bool operator==(const RECT& a, const RECT& b) { return EqualRect(&a, &b) != FALSE; }
inline void PrintTo(const RECT& rect, std::ostream* to) {
    *to << rect.left << "," << rect.top << " to " << rect.right << "," << rect.bottom;
}

namespace brx::checks {

inline RECT place_in_form(HWND control) {
    RECT rect{};
    GetWindowRect(control, &rect);
    MapWindowPoints(nullptr, GetParent(control), reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

inline RECT rect_of(LONG left, LONG top, LONG width, LONG height) {
    return {left, top, left + width, top + height};
}

inline SIZE client_size(HWND window) {
    RECT rect{};
    GetClientRect(window, &rect);
    return {rect.right, rect.bottom};
}

/// What a control is told to paint with.
struct Paint {
    COLORREF text = 0;
    COLORREF background = 0;
    bool told = false;
};

inline Paint paint_of(Hands& hands, HWND control, UINT message) {
    Paint paint;
    hands.run([&] {
        const HDC dc = GetDC(control);
        SetTextColor(dc, 0x123456);
        const auto brush = reinterpret_cast<HBRUSH>(SendMessageW(
            GetParent(control), message, reinterpret_cast<WPARAM>(dc), reinterpret_cast<LPARAM>(control)));
        LOGBRUSH look{};
        GetObjectW(brush, sizeof look, &look);
        paint = {GetTextColor(dc), look.lbColor,
                 GetTextColor(dc) != 0x123456 && GetBkColor(dc) == look.lbColor};
        ReleaseDC(control, dc);
    });
    return paint;
}

/// A colour of the system, changed as a person does in the settings, until the end.
class SystemColor {
public:
    SystemColor(int index, COLORREF color) : index_(index), before_(GetSysColor(index)) {
        SetSysColors(1, &index_, &color);
    }
    ~SystemColor() { SetSysColors(1, &index_, &before_); }
    SystemColor(const SystemColor&) = delete;
    SystemColor& operator=(const SystemColor&) = delete;

private:
    int index_;
    COLORREF before_;
};

inline bool operator==(const SIZE& a, const SIZE& b) { return a.cx == b.cx && a.cy == b.cy; }

} // namespace brx::checks
