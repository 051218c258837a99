#include "headless/headless_stage.h"

#include "forms/form.h"

namespace brx::checks {

std::string HeadlessScreen::front() {
    return there([&]() -> std::string {
        if (engine_.message()) return "message";
        return engine_.front() ? engine_.front()->form().name() : std::string();
    });
}

std::string HeadlessScreen::caption() {
    return there([&] { return engine_.front() ? engine_.front()->caption() : std::string(); });
}

Sight HeadlessScreen::look(const std::string& control) {
    return there([&]() -> Sight {
        const HeadlessWindow* window = engine_.windows().empty() ? nullptr : engine_.windows().back();
        const HeadlessPeer* peer = window ? window->find(control) : nullptr;
        if (!peer) return {};
        Sight sight{peer->shown()};
        if (!sight.rows.empty()) sight.lines = marked_rows(sight.rows);
        sight.exists = true;
        sight.focused = window->focused() == &peer->control();
        return sight;
    });
}

std::optional<Message> HeadlessScreen::message() {
    return there([&] {
        std::optional<Message> box = engine_.message();
        if (box) box->title = box->shown_title();
        return box;
    });
}

bool HeadlessScreen::hourglass() {
    return there([&] { return engine_.hourglasses() > 0; });
}

bool HeadlessScreen::press(const std::string& button) {
    return deed([=, this] { return user_.click(button); }, user_.leaves(button));
}
bool HeadlessScreen::choose(const std::string& list, int line) {
    return deed([=, this] { return user_.choose(list, line); });
}
bool HeadlessScreen::double_click(const std::string& list, int line) {
    return deed([=, this] { return user_.double_click(list, line); });
}
bool HeadlessScreen::expand(const std::string& tree, int row) {
    return deed([=, this] { return user_.expand(tree, row); });
}
bool HeadlessScreen::collapse(const std::string& tree, int row) {
    return deed([=, this] { return user_.collapse(tree, row); });
}
bool HeadlessScreen::toggle(const std::string& check_box) {
    return deed([=, this] { return user_.click(check_box); });
}
bool HeadlessScreen::set_date(const std::string& picker, const std::string& text) {
    return deed([=, this] { return user_.set_date(picker, text); });
}
bool HeadlessScreen::focus(const std::string& control) {
    return deed([=, this] { return user_.focus(control); });
}
bool HeadlessScreen::type(const std::string& text) {
    return deed([=, this] { return user_.type(text); });
}
bool HeadlessScreen::paste(const std::string& text) {
    return deed([=, this] { return user_.paste(text); });
}
bool HeadlessScreen::copy(const std::string& text) {
    clipboard_ = text;
    return true;
}

std::optional<Waiting> HeadlessScreen::waiting() {
    return there([&]() -> std::optional<Waiting> {
        if (!engine_.work().is_shown()) return std::nullopt;
        const Work::Report report = engine_.work().report();
        return Waiting{told_what(report), told_how_far(report, Locale{})};
    });
}

bool HeadlessScreen::stop() {
    return there([&] {
        if (!engine_.work().is_shown()) return false;
        engine_.work().stop();
        return true;
    });
}

bool HeadlessScreen::key(Key key) {
    if (key == Key::escape && stop()) return true;
    const auto press = [=, this] {
        switch (key) {
        case Key::enter:
            return user_.enter();
        case Key::escape:
            return user_.escape();
        case Key::tab:
            return user_.tab(false);
        case Key::back_tab:
            return user_.tab(true);
        case Key::space:
            return user_.space();
        case Key::up:
            return user_.move(-1);
        case Key::down:
            return user_.move(1);
        case Key::left:
            return user_.left();
        case Key::right:
            return user_.right();
        case Key::home:
            return user_.go_to_end(true);
        case Key::end:
            return user_.go_to_end(false);
        case Key::plus:
            return user_.plus();
        case Key::minus:
            return user_.minus();
        case Key::f1:
            return user_.help();
        case Key::f3:
            return user_.shortcut(Shortcut::find_next);
        case Key::shift_f3:
            return user_.shortcut(Shortcut::find_previous);
        case Key::control_f:
            return user_.shortcut(Shortcut::find);
        case Key::backspace:
            return user_.backspace();
        case Key::erase:
            return user_.erase();
        case Key::control_v:
            return user_.control_v(clipboard_);
        case Key::next_tab:
            return user_.turn_tab(false);
        case Key::previous_tab:
            return user_.turn_tab(true);
        }
        return false;
    };
    return deed(press, key == Key::escape && user_.escape_leaves());
}

bool HeadlessScreen::accelerator(char letter) {
    return deed([=, this] { return user_.accelerator(letter); }, user_.letter_leaves(letter));
}

bool HeadlessScreen::close_box() {
    return deed([=, this] { return user_.close_box(); }, true);
}

bool HeadlessScreen::answer(std::int32_t button) {
    return deed([=, this] {
        if (!engine_.message()) return false;
        engine_.answer(button);
        return true;
    });
}

void HeadlessScreen::pass_ticks(int times) {
    for (int i = 0; i < times; ++i) baton_.hand_over([this] { user_.tick(); });
}

std::string HeadlessScreen::help() {
    return there([&] { return engine_.help_shown(); });
}

} // namespace brx::checks
