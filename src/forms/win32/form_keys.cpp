// Each message from the queue before its window has it: the keys that are the form's own, wherever in it the
// focus is.

#include "forms/accelerator.h"
#include "forms/win32/form_window.h"

#include <utility>

namespace brx {

namespace {

bool is_key(const MSG& message) { return message.message >= WM_KEYFIRST && message.message <= WM_KEYLAST; }

/// Whether the control with the focus has a use for it; otherwise a letter is an accelerator without Alt too.
bool is_wanted(const MSG& character) {
    const LRESULT wanted =
        SendMessageW(character.hwnd, WM_GETDLGCODE, character.wParam, reinterpret_cast<LPARAM>(&character));
    return (wanted & (DLGC_WANTCHARS | DLGC_WANTMESSAGE)) != 0;
}

bool is_held(int key) { return (GetKeyState(key) & 0x8000) != 0; }

} // namespace

bool FormWindow::takes(MSG& message) {
    if (is_key(message)) holds_key_ = false;
    // One that is kept down presses nothing again: it may have ended work that lasted, and be meant for that.
    constexpr LPARAM again = LPARAM{1} << 30;
    if (message.message == WM_KEYDOWN && message.wParam == VK_ESCAPE && (message.lParam & again) != 0)
        return true;
    const bool outer = std::exchange(by_key_, is_key(message));
    const bool outer_character =
        std::exchange(by_character_, message.message == WM_CHAR || message.message == WM_SYSCHAR);
    const bool taken = takes_key(message) || IsDialogMessageW(handle_, &message);
    by_character_ = outer_character;
    by_key_ = outer;
    return taken;
}

bool FormWindow::takes_key(const MSG& message) {
    if (!handle_ || !IsChild(handle_, message.hwnd)) return false;
    bool taken = false;
    attempt([&] {
        switch (message.message) {
        case WM_KEYDOWN:
            if (message.wParam == VK_RETURN) finish_typing();
            taken =
                message.wParam == VK_TAB ? is_held(VK_CONTROL) && turn_tabs() : take_shortcut(message.wParam);
            break;
        case WM_CHAR:
            if (!is_wanted(message)) taken = take_accelerator(message.wParam);
            break;
        case WM_SYSCHAR:
            finish_typing();
            taken = take_accelerator(message.wParam);
            break;
        default:
            break;
        }
    });
    return taken;
}

/// Also where nothing came of it: a form with tabs has no other use for these keys.
bool FormWindow::turn_tabs() {
    TabStrip* const strip = tab_strip_of(form_);
    if (!strip) return false;
    deliver([&] { return strip->user_turn(is_held(VK_SHIFT)); });
    return true;
}

/// The dialog manager knows the accelerators of all controls but tabs. Of several with one letter not every
/// system's goes to the next one and presses none of them.
bool FormWindow::take_accelerator(WPARAM character) {
    if (character > 0x7F) return false;
    const auto letter = static_cast<char>(character);
    const Accelerator found = accelerator_of(form_, letter);
    auto* const strip = dynamic_cast<TabStrip*>(found.control);
    if (!found.control || (found.alone && !strip)) return false;
    Control* const target = focus_for(*found.control);
    deliver([&] {
        return found.alone ? strip->user_select(tab_with(*strip, letter))
                           : target && target->user_take_focus();
    });
    return true;
}

bool FormWindow::take_shortcut(WPARAM key) {
    const auto take = [&](Shortcut which) { return deliver([&] { return form_.user_shortcut(which); }); };
    if (key == VK_F3) return take(is_held(VK_SHIFT) ? Shortcut::find_previous : Shortcut::find_next);
    return key == 'F' && is_held(VK_CONTROL) && take(Shortcut::find);
}

void FormWindow::finish_typing() {
    if (ControlPeer* const peer = peer_of(GetFocus())) peer->finish_typing();
}

} // namespace brx
