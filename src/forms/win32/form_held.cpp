// Keys and the mouse while code of the thread runs: foreign code that pumps messages hands them to the
// windows, where they wait until the handler has returned.

#include "forms/button.h"
#include "forms/turn.h"
#include "forms/win32/engine.h"
#include "forms/win32/form_window.h"

#include <algorithm>
#include <array>
#include <utility>

namespace brx {

namespace {

constexpr UINT f1_message = 0x004D; // WM_KEYF1, which has no name in the headers

enum class Input { none, key, character, mouse, closing };

Input kind_of(UINT message, WPARAM wparam) {
    switch (message) {
    case WM_KEYDOWN:
    case WM_KEYUP:
    case WM_SYSKEYDOWN:
    case WM_SYSKEYUP:
    case f1_message:
        return Input::key;
    case WM_CHAR:
    case WM_DEADCHAR:
    case WM_SYSCHAR:
    case WM_SYSDEADCHAR:
        return Input::character;
    case WM_CLOSE:
        return Input::closing;
    case WM_SYSCOMMAND:
        return (wparam & 0xFFF0U) == SC_CLOSE ? Input::closing : Input::none;
    default:
        return message > WM_MOUSEMOVE && message <= WM_MOUSELAST ? Input::mouse : Input::none;
    }
}

bool is_pressed_key(UINT message) { return message == WM_KEYDOWN || message == WM_SYSKEYDOWN; }

using KeyStates = std::array<BYTE, 256>;

KeyStates key_states() {
    KeyStates states{};
    GetKeyboardState(states.data());
    return states;
}

constexpr BYTE held_down = 0x80;
constexpr BYTE toggled = 1;

/// What is held down now, in the eyes of the system, of the keys that others go together with.
void end_keys_of_then() {
    KeyStates states = key_states();
    for (BYTE& each : states) each &= toggled;
    for (const int key :
         {VK_SHIFT, VK_LSHIFT, VK_RSHIFT, VK_CONTROL, VK_LCONTROL, VK_RCONTROL, VK_MENU, VK_LMENU, VK_RMENU})
        if (GetAsyncKeyState(key) < 0) states[static_cast<std::size_t>(key)] |= held_down;
    SetKeyboardState(states.data());
}

/// Of the key that was dealt with last.
bool take_character(MSG& message) {
    const auto take = [&](UINT first, UINT last) {
        if (!PeekMessageW(&message, nullptr, first, last, PM_REMOVE)) return false;
        // It comes through every filter, and is the host's.
        const bool is_quit = message.message == WM_QUIT;
        if (is_quit) PostQuitMessage(static_cast<int>(message.wParam));
        return !is_quit;
    };
    return take(WM_CHAR, WM_DEADCHAR) || take(WM_SYSCHAR, WM_SYSDEADCHAR);
}

} // namespace

bool FormWindow::has_to_wait() const {
    return turn::is_code_running() && turn::front() == &form_ && !is_showing();
}

bool FormWindow::holds(HWND target, UINT message, WPARAM wparam, LPARAM lparam) {
    const Input input = kind_of(message, wparam);
    if (input == Input::none || !has_to_wait()) return false;
    if (message == WM_KEYDOWN && wparam == VK_ESCAPE && engine_.work().is_shown()) {
        engine_.work().stop();
        holds_key_ = true; // nor does its character come to anything
        return true;
    }
    const MSG held{
        .hwnd = target, .message = message, .wParam = wparam, .lParam = lparam, .time = 0, .pt = {}};
    if (leaves(held)) engine_.work().leave();
    switch (input) {
    case Input::key:
        if (is_pressed_key(message)) holds_key_ = true;
        held_.hold([this, held, states = key_states()] { press_again(held, states); });
        break;
    case Input::character:
        // A key that is held gives its characters when its time has come. One whose turn it is has its own.
        if (!holds_key_) held_.hold_next([this, held] { press_again(held, key_states()); });
        break;
    case Input::mouse:
        held_.hold([this, held] { click_again(held); });
        break;
    case Input::closing:
    case Input::none:
        held_.hold([this, held] { deal_with(held); });
        break;
    }
    return true;
}

bool FormWindow::leaves(const MSG& held) const {
    switch (kind_of(held.message, held.wParam)) {
    case Input::closing:
        return true;
    case Input::key:
        return leaves_by_key(held);
    case Input::mouse:
        return held.message == WM_LBUTTONDOWN && std::ranges::any_of(form_.controls(), [&](Control* each) {
                   const auto* button = dynamic_cast<Button*>(each);
                   return button && button->leaves() && window_of(button) == held.hwnd;
               });
    default:
        return held.message == WM_NCLBUTTONDOWN && held.wParam == HTCLOSE && held.hwnd == handle_;
    }
}

/// The release of a letter tells of Alt and that letter as well: what waits in the queue is known by the
/// first of its kind, and the first that is pressed is Alt itself.
bool FormWindow::leaves_by_key(const MSG& held) const {
    switch (held.message) {
    case WM_KEYDOWN:
        return held.wParam == VK_ESCAPE && form_.escape_leaves();
    case WM_SYSKEYDOWN:
    case WM_SYSKEYUP:
        if (held.wParam == VK_F4) return true;
        return held.wParam >= '0' && held.wParam <= 'Z' &&
               form_.letter_leaves(static_cast<char>(held.wParam));
    default:
        return false;
    }
}

bool FormWindow::do_held() {
    const HeldDeeds::Deed deed = held_.next();
    if (!deed) return false;
    attempt(deed);
    return true;
}

void FormWindow::deal_with(MSG message) {
    if (takes(message)) return;
    TranslateMessage(&message);
    DispatchMessageW(&message);
}

/// In the control that has the focus by now.
void FormWindow::press_again(MSG key, const std::array<BYTE, 256>& states) {
    KeyStates as_then = key_states();
    for (std::size_t i = 0; i < as_then.size(); ++i)
        as_then[i] = static_cast<BYTE>((as_then[i] & toggled) | (states[i] & held_down));
    SetKeyboardState(as_then.data());
    keys_of_then_ = true;
    const auto press = [&](MSG message) {
        const HWND focused = GetFocus();
        message.hwnd = focused && IsChild(handle_, focused) ? focused : window_of(form_.focused());
        if (message.hwnd) deal_with(message);
    };
    press(key);
    while (form_.loaded() && take_character(key)) press(key);
    forget_keys_of_then();
}

void FormWindow::forget_keys_of_then() {
    if (std::exchange(keys_of_then_, false)) end_keys_of_then();
}

void FormWindow::miss_held() {
    held_.miss();
    forget_keys_of_then();
}

void FormWindow::click_again(MSG click) {
    if (IsWindowVisible(click.hwnd) && IsWindowEnabled(click.hwnd)) deal_with(click);
}

} // namespace brx
