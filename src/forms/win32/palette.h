#pragma once

#include "forms/geometry.h"
#include "forms/win32/gdi.h"

#include <map>

namespace brx {

/// Colours as the system shows them at the moment.
class Palette {
public:
    static bool is_system(Color color) { return (color & 0x80000000) != 0; }

    static COLORREF rgb(Color color) {
        return is_system(color) ? GetSysColor(index(color)) : color & 0xFFFFFF;
    }

    /// Whether the user wants nothing but the system's own colours.
    static bool high_contrast() {
        HIGHCONTRASTW setting{};
        setting.cbSize = sizeof setting;
        return SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof setting, &setting, 0) &&
               (setting.dwFlags & HCF_HIGHCONTRASTON) != 0;
    }

    /// Valid as long as the palette.
    HBRUSH brush(Color color) {
        // The system keeps its own brushes current, whatever colours the user chooses meanwhile.
        if (is_system(color)) return GetSysColorBrush(index(color));
        BrushHandle& brush = brushes_[color & 0xFFFFFF];
        if (!brush) brush.reset(CreateSolidBrush(color & 0xFFFFFF));
        return brush.get();
    }

private:
    static int index(Color color) { return static_cast<int>(color & 0xFF); }

    std::map<Color, BrushHandle> brushes_;
};

} // namespace brx
