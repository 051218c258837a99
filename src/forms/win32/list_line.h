#pragma once

#include <windows.h>

#include <string_view>

namespace brx {

class ControlPeer;
class FormWindow;

/// A line as the system's lists draw theirs, in the colours of the peer's control.
struct ListLine {
    RECT place;
    std::string_view text;
    LONG text_top;
    int indent; ///< on each side of the text
    bool selected = false;
    bool focused = false; ///< with the frame that the keyboard's lines have

    /// Returns the width that it takes, in pixels.
    int draw(const ControlPeer& peer, HFONT font, HDC dc) const;
};

} // namespace brx
