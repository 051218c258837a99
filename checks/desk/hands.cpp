#include "desk/hands.h"

#include "com/bstr.h"
#include "system/this_system.h"

#include <array>

namespace brx::checks {

namespace {

LPARAM at(POINT client) { return MAKELPARAM(client.x, client.y); }

constexpr UINT f1_message = 0x004D; // WM_KEYF1, which has no name in the headers
constexpr LPARAM once = 1;
constexpr LPARAM with_alt = LPARAM{1} << 29;
constexpr LPARAM released = static_cast<LPARAM>(0xC0000000U);

LPARAM details_of(const Stroke& stroke) {
    const UINT scan =
        stroke.key == VK_PACKET ? stroke.character : MapVirtualKeyW(stroke.key, MAPVK_VK_TO_VSC);
    return once | static_cast<LPARAM>(scan) << 16 | (stroke.alt ? with_alt : 0);
}

Stroke stroke_for(wchar_t character) {
    const SHORT found = VkKeyScanW(character);
    const int held = HIBYTE(found);
    if (found == -1 || (held & ~1) != 0) return {.key = VK_PACKET, .character = character};
    return {.key = LOBYTE(found), .shift = (held & 1) != 0};
}

} // namespace

POINT centre_of(HWND window) {
    RECT client{};
    GetClientRect(window, &client);
    return {client.right / 2, client.bottom / 2};
}

POINT centre_of_line(HWND list_box, int line) {
    RECT client{};
    GetClientRect(list_box, &client);
    // Not LB_GETITEMRECT, which does not answer another program everywhere.
    const auto height = static_cast<int>(SendMessageW(list_box, LB_GETITEMHEIGHT, 0, 0));
    const auto top = static_cast<int>(SendMessageW(list_box, LB_GETTOPINDEX, 0, 0));
    return {client.right / 2, (line - top) * height + height / 2};
}

HWND window_at(HWND window, POINT client) {
    ClientToScreen(window, &client);
    return WindowFromPoint(client);
}

void click(HWND window, POINT client) {
    PostMessageW(window, WM_MOUSEMOVE, 0, at(client));
    PostMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, at(client));
    PostMessageW(window, WM_LBUTTONUP, 0, at(client));
}

void click_again(HWND window, POINT client) {
    PostMessageW(window, WM_LBUTTONDBLCLK, MK_LBUTTON, at(client));
    PostMessageW(window, WM_LBUTTONUP, 0, at(client));
}

std::vector<Stroke> strokes_for(const std::string& text) {
    std::vector<Stroke> strokes;
    for (const wchar_t character : brx::wide(text)) strokes.push_back(stroke_for(character));
    return strokes;
}

void press_down(HWND window, const Stroke& stroke) {
    // Wine finds the character in the message; Windows keeps it with real input, which a posted message is
    // not.
    if (stroke.key == VK_PACKET && !is_wine()) {
        PostMessageW(window, WM_CHAR, stroke.character, once);
        return;
    }
    PostMessageW(window, stroke.alt ? WM_SYSKEYDOWN : WM_KEYDOWN, stroke.key, details_of(stroke));
    // The system itself says so beside the key.
    if (stroke.key == VK_F1) PostMessageW(window, f1_message, 0, 0);
}

void let_go(HWND window, const Stroke& stroke) {
    if (stroke.key == VK_PACKET && !is_wine()) return;
    PostMessageW(window, stroke.alt ? WM_SYSKEYUP : WM_KEYUP, stroke.key, details_of(stroke) | released);
}

void hold_down(const Stroke& stroke) {
    std::array<BYTE, 256> state{};
    constexpr BYTE down = 0x80;
    if (stroke.shift) state[VK_SHIFT] = state[VK_LSHIFT] = down;
    if (stroke.control) state[VK_CONTROL] = state[VK_LCONTROL] = down;
    if (stroke.alt) state[VK_MENU] = state[VK_LMENU] = down;
    SetKeyboardState(state.data());
}

void hold_nothing() { hold_down({}); }

} // namespace brx::checks
