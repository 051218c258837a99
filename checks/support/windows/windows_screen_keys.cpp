// What a person does before the windows with the keyboard.

#include "com/bstr.h"
#include "desk/native.h"
#include "desk/native_table.h"
#include "desk/reach.h"
#include "windows/windows_screen.h"

#include <algorithm>
#include <cstring>

namespace brx::checks {

namespace {

constexpr int most_tabs = 100;

/// A day that the month of the moment has not, for example, comes right the second time.
constexpr int most_tries = 3;

/// Behind the text, so that the caret stands at its end.
POINT end_of_text_box(HWND box) {
    RECT client{};
    GetClientRect(box, &client);
    return {client.right - 2, client.bottom / 2};
}

bool copy_to_clipboard(HWND owner, const std::wstring& text) {
    const std::size_t bytes = (text.size() + 1) * sizeof(wchar_t);
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes);
    if (!memory) return false;
    std::memcpy(GlobalLock(memory), text.c_str(), bytes);
    GlobalUnlock(memory);
    if (OpenClipboard(owner)) {
        const bool taken = EmptyClipboard() && SetClipboardData(CF_UNICODETEXT, memory);
        CloseClipboard();
        if (taken) return true;
    }
    GlobalFree(memory);
    return false;
}

} // namespace

bool WindowsScreen::set_date(const std::string& picker, const std::string& text) {
    const auto is_picker = [&] {
        const HWND window = reachable(picker);
        return window && kind_of(window) == NativeKind::date_picker;
    };
    if (!asked(is_picker) || !focus(picker)) return false;
    for (int i = 0; i < most_tries && look(picker).text != text; ++i)
        if (!type_date(picker, text)) return false;
    return look(picker).text == text;
}

/// Field by field, from the left one on. Going on to the next one takes over what was typed.
bool WindowsScreen::type_date(const std::string& picker, const std::string& text) {
    std::vector<std::string> fields;
    const bool begun = done([&] {
        const HWND window = reachable(picker);
        if (!window || GetFocus() != window) return false;
        fields = date_fields(window, text);
        return !fields.empty() && click_into(window, {5, centre_of(window).y});
    });
    return begun && std::ranges::all_of(fields, [&](const std::string& field) {
               return std::ranges::all_of(strokes_for(field),
                                          [&](const Stroke& each) { return stroke(each); }) &&
                      key(Key::right);
           });
}

bool WindowsScreen::focus(const std::string& control) {
    // A click would do more than that to any other control.
    const auto is_text_box = [&] {
        const HWND window = reachable(control);
        return window && kind_of(window) == NativeKind::text_box;
    };
    if (!asked(is_text_box)) return go_to_by_tab(control);
    return done([&] {
        const HWND box = reachable(control);
        return box && click_into(box, end_of_text_box(box));
    });
}

bool WindowsScreen::go_to_by_tab(const std::string& control) {
    for (int i = 0; i < most_tabs; ++i) {
        const Sight sight = look(control);
        if (!sight.enabled || !sight.visible) return false;
        if (sight.focused) return true;
        if (!key(Key::tab)) return false;
    }
    return false;
}

bool WindowsScreen::stroke(const Stroke& stroke) {
    const Stroke alt_key{.key = VK_MENU, .alt = true};
    const bool down = asked([&] {
        const HWND focused = focused_in_front();
        if (!focused) return false;
        hold_down(stroke);
        if (stroke.alt) press_down(focused, alt_key);
        press_down(focused, stroke);
        return true;
    });
    ui_.settle();
    // Wherever the focus has gone.
    done([&] {
        const HWND focused = GetFocus();
        if (focused) let_go(focused, stroke);
        if (focused && stroke.alt) let_go(focused, {.key = VK_MENU});
        return focused != nullptr;
    });
    ui_.call(hold_nothing);
    return down;
}

bool WindowsScreen::type(const std::string& text) {
    const auto takes_text = [&] {
        const HWND focused = focused_in_front();
        if (!focused) return false;
        const NativeKind kind = kind_of(focused);
        return kind == NativeKind::text_box || kind == NativeKind::tree || kind == NativeKind::table ||
               kind == NativeKind::push_button || kind == NativeKind::check_box;
    };
    return std::ranges::all_of(strokes_for(text),
                               [&](const Stroke& each) { return asked(takes_text) && stroke(each); });
}

bool WindowsScreen::paste(const std::string& text) {
    return done([&] {
        const HWND focused = focused_in_front();
        if (!focused || kind_of(focused) != NativeKind::text_box) return false;
        if ((GetWindowLongW(focused, GWL_STYLE) & ES_READONLY) != 0) return false;
        if (!copy_to_clipboard(ui_.window(), brx::wide(text))) return false;
        PostMessageW(focused, WM_PASTE, 0, 0);
        return true;
    });
}

bool WindowsScreen::copy(const std::string& text) {
    return asked([&] { return copy_to_clipboard(ui_.window(), brx::wide(text)); });
}

bool WindowsScreen::key(Key key) {
    switch (key) {
    case Key::enter:
        return stroke({.key = VK_RETURN});
    case Key::escape:
        return stroke({.key = VK_ESCAPE});
    case Key::tab:
        return stroke({.key = VK_TAB});
    case Key::back_tab:
        return stroke({.key = VK_TAB, .shift = true});
    case Key::space:
        return stroke({.key = VK_SPACE});
    case Key::up:
        return stroke({.key = VK_UP});
    case Key::down:
        return stroke({.key = VK_DOWN});
    case Key::left:
        return stroke({.key = VK_LEFT});
    case Key::right:
        return stroke({.key = VK_RIGHT});
    case Key::home:
        return stroke({.key = VK_HOME});
    case Key::end:
        return stroke({.key = VK_END});
    case Key::plus:
        return stroke({.key = VK_ADD});
    case Key::minus:
        return stroke({.key = VK_SUBTRACT});
    case Key::f1:
        return stroke({.key = VK_F1});
    case Key::f3:
        return stroke({.key = VK_F3});
    case Key::shift_f3:
        return stroke({.key = VK_F3, .shift = true});
    case Key::control_f:
        return stroke({.key = 'F', .control = true});
    case Key::backspace:
        return stroke({.key = VK_BACK});
    case Key::erase:
        return stroke({.key = VK_HOME}) && stroke({.key = VK_END, .shift = true}) &&
               stroke({.key = VK_DELETE});
    case Key::control_v:
        return stroke({.key = 'V', .control = true});
    case Key::next_tab:
        return stroke({.key = VK_TAB, .control = true});
    case Key::previous_tab:
        return stroke({.key = VK_TAB, .shift = true, .control = true});
    }
    return false;
}

bool WindowsScreen::accelerator(char letter) {
    std::vector<Stroke> strokes = strokes_for(std::string(1, letter));
    strokes.front().shift = false;
    strokes.front().alt = true;
    return stroke(strokes.front());
}

} // namespace brx::checks
