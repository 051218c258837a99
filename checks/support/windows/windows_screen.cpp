#include "windows/windows_screen.h"

#include "desk/native.h"
#include "desk/native_table.h"
#include "desk/native_tree.h"
#include "desk/reach.h"

namespace brx::checks {

namespace {

HWND dropped_list_of(HWND combo_box) {
    COMBOBOXINFO info{};
    info.cbSize = sizeof info;
    return GetComboBoxInfo(combo_box, &info) ? info.hwndList : nullptr;
}

} // namespace

HWND WindowsScreen::top_window() const {
    for (const HWND window : windows_of(ui_.id()))
        if (IsWindowEnabled(window) && (is_message_box(window) || !name_of(window).empty())) return window;
    return nullptr;
}

HWND WindowsScreen::top_form() const {
    // The order on the screen can be wrong for a moment while a window above closes.
    const HWND front = top_window();
    if (front && !is_message_box(front)) return front;
    const HWND owner = front ? GetWindow(front, GW_OWNER) : nullptr;
    if (owner && !name_of(owner).empty()) return owner;
    for (const HWND window : windows_of(ui_.id()))
        if (!name_of(window).empty()) return window;
    return nullptr;
}

HWND WindowsScreen::form_in_front() const {
    const HWND window = top_window();
    return window && !is_message_box(window) ? window : nullptr;
}

HWND WindowsScreen::reachable(const std::string& control) const {
    const HWND form = form_in_front();
    return form ? find_control(form, control) : nullptr;
}

HWND WindowsScreen::focused_in_front() const {
    const HWND focused = GetFocus();
    const HWND front = top_window();
    return focused && front && is_within(front, focused) ? focused : nullptr;
}

std::string WindowsScreen::front() {
    return asked([&] {
        const HWND window = top_window();
        if (!window) return std::string();
        return is_message_box(window) ? "message" : name_of(window);
    });
}

std::string WindowsScreen::caption() {
    return asked([&] {
        const HWND form = form_in_front();
        return form ? text_of(form) : std::string();
    });
}

Sight WindowsScreen::look(const std::string& control) {
    return asked([&] {
        const HWND form = top_form();
        const HWND window = form ? find_control(form, control) : nullptr;
        Sight sight = sight_of(window, GetFocus());
        if (window) sight.lines = lines_of(window);
        return sight;
    });
}

std::optional<Message> WindowsScreen::message() {
    return asked([&]() -> std::optional<Message> {
        const HWND window = top_window();
        if (!window || !is_message_box(window)) return std::nullopt;
        return message_in(window);
    });
}

bool WindowsScreen::hourglass() {
    return asked([&] { return GetCursor() == LoadCursorW(nullptr, IDC_WAIT); });
}

std::string WindowsScreen::help() {
    return asked([] { return WatchedHelp::shown(); });
}

/// The other thread takes its moment to open it and to close it.
HWND WindowsScreen::waiting_window_now() {
    // In the middle of a handler one is looked for that comes, and afterwards one that goes.
    for (int tries = 0; tries < 100 && (waiting_window() != nullptr) != ui_.is_this(); ++tries) Sleep(20);
    return waiting_window();
}

std::optional<Waiting> WindowsScreen::waiting() {
    const HWND window = waiting_window_now();
    if (!window) return std::nullopt;
    std::string what = text_of(GetDlgItem(window, 100));
    if (const auto end = what.find('.'); end != std::string::npos) what.resize(end);
    return Waiting{what, text_of(GetDlgItem(window, 101))};
}

bool WindowsScreen::stop() {
    const HWND window = waiting_window_now();
    return window && SendMessageW(GetDlgItem(window, IDCANCEL), BM_CLICK, 0, 0) == 0;
}

bool WindowsScreen::press(const std::string& button) {
    return done([&] {
        const HWND window = reachable(button);
        return window && click_into(window, centre_of(window));
    });
}

bool WindowsScreen::choose(const std::string& list, int line) {
    const bool drops_down =
        asked([&] { return reachable(list) && kind_of(reachable(list)) == NativeKind::combo_box; });
    if (drops_down) return choose_in_combo_box(list, line);
    return done([&] { return click_line(reachable(list), line); });
}

bool WindowsScreen::choose_in_combo_box(const std::string& list, int line) {
    const auto there_is_the_line = [&] {
        return line >= 0 && line < SendMessageW(reachable(list), CB_GETCOUNT, 0, 0);
    };
    if (!asked(there_is_the_line) || !press(list)) return false;
    return done([&] { return click_line(dropped_list_of(reachable(list)), line); });
}

bool WindowsScreen::double_click(const std::string& list, int line) {
    if (!choose(list, line)) return false;
    return done([&] {
        const HWND window = reachable(list);
        POINT point{};
        if (!find_line(window, line, point) || !can_be_hit(window, point)) return false;
        click_again(window, point);
        return true;
    });
}

bool WindowsScreen::expand(const std::string& tree, int row) { return click_sign(tree, row, false); }

bool WindowsScreen::collapse(const std::string& tree, int row) { return click_sign(tree, row, true); }

bool WindowsScreen::click_sign(const std::string& tree, int row, bool open) {
    return done([&] {
        const HWND window = reachable(tree);
        const HTREEITEM item = bring_row_into_view(window, row);
        POINT sign{};
        return item && is_open(window, item) == open && point_on_sign(window, item, sign) &&
               click_into(window, sign);
    });
}

bool WindowsScreen::close_box() {
    return done([&] {
        const HWND form = form_in_front();
        if (!form || (GetWindowLongW(form, GWL_STYLE) & WS_SYSMENU) == 0) return false;
        PostMessageW(form, WM_SYSCOMMAND, SC_CLOSE, 0);
        return true;
    });
}

bool WindowsScreen::answer(std::int32_t button) {
    return done([&] {
        const HWND box = top_window();
        if (!box || !is_message_box(box)) return false;
        HWND window = GetDlgItem(box, button);
        // The only button of a box with OK has the number of Cancel on Windows.
        if (!window && button == IDOK) window = GetDlgItem(box, IDCANCEL);
        return window && click_into(window, centre_of(window));
    });
}

void WindowsScreen::pass_ticks(int times) {
    for (int i = 0; i < times; ++i) ui_.tick();
    note_differences();
}

void WindowsScreen::note_differences() {
    if (!compare_) return;
    const std::string found = asked([&] {
        const HWND form = top_form();
        return form ? compare_(form) : std::string();
    });
    // Told once, although they stay.
    if (!found.empty() && differences_.find(found) == std::string::npos) differences_ += found;
}

std::string WindowsScreen::differences() {
    note_differences();
    return differences_;
}

} // namespace brx::checks
