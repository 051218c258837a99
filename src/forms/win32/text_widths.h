#pragma once

#include "forms/win32/gdi.h"

#include <array>
#include <string_view>

namespace brx {

/// The widths of many texts in one font: exactly what the system says, without asking it about each plain
/// text.
class TextWidths {
public:
    TextWidths(HWND window, HFONT font);

    /// In pixels.
    int of(std::string_view text) const;

private:
    TextMeasure measure_;
    std::array<int, 256> advance_; ///< of each byte; far more than any text's when it is no plain character
};

} // namespace brx
