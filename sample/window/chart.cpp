#include "window/chart.h"

#include "window/screen.h"

#include <utility>

namespace sample {

namespace {

constexpr const wchar_t* chart_class = L"brxChart";

} // namespace

void Chart::register_class(HINSTANCE program) {
    WNDCLASSEXW description{};
    description.cbSize = sizeof description;
    description.style = CS_HREDRAW | CS_VREDRAW;
    description.lpfnWndProc = procedure;
    description.hInstance = program;
    description.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    description.lpszClassName = chart_class;
    RegisterClassExW(&description);
}

void Chart::create(HWND parent, int id) {
    CreateWindowExW(0, chart_class, L"", WS_CHILD | WS_VISIBLE, 0, 0, 0, 0, parent,
                    reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), GetModuleHandleW(nullptr), this);
}

void Chart::show(ChartContent content) {
    if (content == content_) return;
    content_ = std::move(content);
    SetWindowTextW(window_, content_.text.c_str());
    InvalidateRect(window_, nullptr, FALSE);
}

LRESULT CALLBACK Chart::procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    auto* self = reinterpret_cast<Chart*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (message == WM_NCCREATE) {
        self = static_cast<Chart*>(reinterpret_cast<CREATESTRUCTW*>(lparam)->lpCreateParams);
        self->window_ = window;
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(self));
    }
    if (!self) return DefWindowProcW(window, message, wparam, lparam);
    switch (message) {
    case WM_SETFONT:
        self->font_ = reinterpret_cast<HFONT>(wparam);
        InvalidateRect(window, nullptr, FALSE);
        return 0;
    case WM_GETFONT:
        return reinterpret_cast<LRESULT>(self->font_);
    case WM_ERASEBKGND:
        return 1;
    case WM_SYSCOLORCHANGE:
    case WM_THEMECHANGED:
        InvalidateRect(window, nullptr, FALSE);
        return 0;
    case WM_PAINT:
        self->paint();
        return 0;
    default:
        return DefWindowProcW(window, message, wparam, lparam);
    }
}

/// Drawn aside and then shown at once, so that it does not flicker.
void Chart::paint() const {
    PAINTSTRUCT paint{};
    const HDC screen = BeginPaint(window_, &paint);
    RECT area{};
    GetClientRect(window_, &area);
    const HDC aside = CreateCompatibleDC(screen);
    const HBITMAP bitmap = CreateCompatibleBitmap(screen, area.right, area.bottom);
    const HGDIOBJ former_bitmap = SelectObject(aside, bitmap);
    const HGDIOBJ former_font = SelectObject(aside, font_ ? font_ : GetStockObject(DEFAULT_GUI_FONT));
    draw_chart(aside, area, content_, dpi_of(window_));
    BitBlt(screen, 0, 0, area.right, area.bottom, aside, 0, 0, SRCCOPY);
    SelectObject(aside, former_font);
    SelectObject(aside, former_bitmap);
    DeleteObject(bitmap);
    DeleteDC(aside);
    EndPaint(window_, &paint);
}

} // namespace sample
