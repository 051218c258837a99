#include "forms/win32/dpi.h"

#include "win32/system_function.h"

namespace brx {

namespace {

unsigned system_dpi() {
    const HDC screen = GetDC(nullptr);
    const int dpi = GetDeviceCaps(screen, LOGPIXELSY);
    ReleaseDC(nullptr, screen);
    return dpi > 0 ? static_cast<unsigned>(dpi) : 96;
}

} // namespace

namespace {
void* set_thread_context(void* context) {
    using SetFunction = void*(WINAPI*)(void*);
    static const auto set = function_of<SetFunction>(L"user32.dll", "SetThreadDpiAwarenessContext");
    return set && context ? set(context) : nullptr;
}
} // namespace

ScaleOf::ScaleOf(HWND window) {
    using ContextFunction = void*(WINAPI*)(HWND);
    static const auto context = function_of<ContextFunction>(L"user32.dll", "GetWindowDpiAwarenessContext");
    if (context && window) before_ = set_thread_context(context(window));
}

ScaleOf::~ScaleOf() { set_thread_context(before_); }

unsigned dpi_of(HWND window) {
    using GetDpiForWindowFunction = UINT(WINAPI*)(HWND);
    static const auto get = function_of<GetDpiForWindowFunction>(L"user32.dll", "GetDpiForWindow");
    const UINT dpi = get ? get(window) : 0;
    return dpi != 0 ? dpi : system_dpi();
}

SIZE frame_around(SIZE client, DWORD style, DWORD ex_style, unsigned dpi) {
    using AdjustFunction = BOOL(WINAPI*)(RECT*, DWORD, BOOL, DWORD, UINT);
    static const auto adjust = function_of<AdjustFunction>(L"user32.dll", "AdjustWindowRectExForDpi");
    RECT rect{0, 0, client.cx, client.cy};
    if (!adjust || !adjust(&rect, style, FALSE, ex_style, dpi))
        AdjustWindowRectEx(&rect, style, FALSE, ex_style);
    return {rect.right - rect.left, rect.bottom - rect.top};
}

LOGFONTW message_font(unsigned dpi) {
    using ParametersFunction = BOOL(WINAPI*)(UINT, UINT, void*, UINT, UINT);
    static const auto parameters =
        function_of<ParametersFunction>(L"user32.dll", "SystemParametersInfoForDpi");
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    if (parameters && parameters(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0, dpi))
        return metrics.lfMessageFont;
    if (SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0)) {
        LONG& height = metrics.lfMessageFont.lfHeight;
        height = MulDiv(height, static_cast<int>(dpi), static_cast<int>(system_dpi()));
    }
    return metrics.lfMessageFont;
}

} // namespace brx
