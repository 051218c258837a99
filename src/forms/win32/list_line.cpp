#include "forms/win32/list_line.h"

#include "forms/win32/control_peer.h"

namespace brx {

namespace {

HBRUSH set_colors(HDC dc, int text, int back) {
    SetTextColor(dc, GetSysColor(text));
    SetBkColor(dc, GetSysColor(back));
    return GetSysColorBrush(back);
}

} // namespace

int ListLine::draw(const ControlPeer& peer, HFONT font, HDC dc) const {
    HBRUSH back = peer.set_colors(dc);
    if (!back) back = set_colors(dc, COLOR_GRAYTEXT, COLOR_BTNFACE);
    if (selected && IsWindowEnabled(peer.handle()))
        back = set_colors(dc, COLOR_HIGHLIGHTTEXT, COLOR_HIGHLIGHT);
    FillRect(dc, &place, back);
    const std::wstring wide = to_wide(text);
    const auto length = static_cast<UINT>(wide.size());
    const HGDIOBJ before = SelectObject(dc, font);
    ExtTextOutW(dc, place.left + indent, text_top, ETO_CLIPPED, &place, wide.data(), length, nullptr);
    SIZE size{};
    GetTextExtentPoint32W(dc, wide.data(), static_cast<int>(length), &size);
    SelectObject(dc, before);
    if (focused) DrawFocusRect(dc, &place);
    return size.cx + 2 * indent;
}

} // namespace brx
