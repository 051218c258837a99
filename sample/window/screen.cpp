#include "window/screen.h"

namespace sample {

namespace {

constexpr const wchar_t* name_property = L"brx.Name";

/// A function that older systems lack; null there.
template <class Function> Function* from_user32(const char* name) {
    const FARPROC found = GetProcAddress(GetModuleHandleW(L"user32.dll"), name);
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(found));
}

} // namespace

UINT dpi_of(HWND window) {
    static const auto dpi_for_window = from_user32<UINT WINAPI(HWND)>("GetDpiForWindow");
    if (dpi_for_window)
        if (const UINT dpi = dpi_for_window(window)) return dpi;
    const HDC screen = GetDC(nullptr);
    const int dpi = GetDeviceCaps(screen, LOGPIXELSY);
    ReleaseDC(nullptr, screen);
    return static_cast<UINT>(dpi);
}

Font message_font(UINT dpi) {
    static const auto for_dpi =
        from_user32<BOOL WINAPI(UINT, UINT, PVOID, UINT, UINT)>("SystemParametersInfoForDpi");
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    if (!for_dpi || !for_dpi(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0, dpi))
        SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    return Font(CreateFontIndirectW(&metrics.lfMessageFont));
}

void name_window(HWND window, const wchar_t* name) {
    const ATOM atom = GlobalAddAtomW(name);
    if (atom != 0) SetPropW(window, name_property, reinterpret_cast<HANDLE>(static_cast<ULONG_PTR>(atom)));
}

void forget_name(HWND window) {
    const auto atom = static_cast<ATOM>(reinterpret_cast<ULONG_PTR>(RemovePropW(window, name_property)));
    if (atom != 0) GlobalDeleteAtom(atom);
}

} // namespace sample
