#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace brx::checks {

// What the mouse and the keyboard send to a window, put into its thread's queue. Nothing here asks whether a
// person could do it.

/// The centre of a window's client area, and of a line of a list box, in client coordinates.
POINT centre_of(HWND window);
POINT centre_of_line(HWND list_box, int line);

/// What the mouse hits there.
HWND window_at(HWND window, POINT client);

void click(HWND window, POINT client);
/// The second click of a double click.
void click_again(HWND window, POINT client);

/// A key with what it is held down together with.
struct Stroke {
    WORD key = 0; ///< VK_...
    bool shift = false;
    bool control = false;
    bool alt = false;
    wchar_t character = 0; ///< with VK_PACKET: what is entered
};

/// How a text is typed on the present keyboard: characters that it lacks go as VK_PACKET.
std::vector<Stroke> strokes_for(const std::string& text);

/// The two halves of a stroke, to be sent to the window with the focus.
void press_down(HWND window, const Stroke& stroke);
void let_go(HWND window, const Stroke& stroke);

/// On the window's thread: what that thread takes for held down.
void hold_down(const Stroke& stroke);
void hold_nothing();

} // namespace brx::checks
