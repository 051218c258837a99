#pragma once

#include <windows.h>

#include <memory>
#include <type_traits>

namespace brx {

struct GdiDelete {
    void operator()(void* object) const noexcept { DeleteObject(object); }
};
using FontHandle = std::unique_ptr<std::remove_pointer_t<HFONT>, GdiDelete>;
using RegionHandle = std::unique_ptr<std::remove_pointer_t<HRGN>, GdiDelete>;
using BrushHandle = std::unique_ptr<std::remove_pointer_t<HBRUSH>, GdiDelete>;

/// A window's device context with a font in it, for measuring text.
class TextMeasure {
public:
    TextMeasure(HWND window, HFONT font)
        : window_(window), dc_(GetDC(window)), before_(SelectObject(dc_, font)) {}
    ~TextMeasure() {
        SelectObject(dc_, before_);
        ReleaseDC(window_, dc_);
    }
    TextMeasure(const TextMeasure&) = delete;
    TextMeasure& operator=(const TextMeasure&) = delete;

    /// In pixels.
    int width(const wchar_t* text, std::size_t length) const {
        SIZE size{};
        GetTextExtentPoint32W(dc_, text, static_cast<int>(length), &size);
        return size.cx;
    }
    int height() const {
        TEXTMETRICW metrics{};
        GetTextMetricsW(dc_, &metrics);
        return metrics.tmHeight;
    }
    HDC dc() const { return dc_; }

private:
    HWND window_;
    HDC dc_;
    HGDIOBJ before_;
};

} // namespace brx
