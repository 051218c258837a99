#pragma once

#include "desk/hands.h"
#include "screen.h"
#include "windows/ui_thread.h"
#include "windows/watched_help.h"

#include <functional>
#include <string>
#include <utility>

namespace brx::checks {

/// The windows of a user-interface thread, and a person before them, whose input reaches them as messages in
/// the thread's queue.
///
/// Input from that thread itself, as from a host's object while a handler runs, waits until the handler has
/// returned.
class WindowsScreen : public Screen {
public:
    /// After every deed `compare` is asked, on the thread, what is wrong with the form on top; "" for
    /// nothing.
    using Compare = std::function<std::string(HWND form)>;
    explicit WindowsScreen(UiThread& ui, Compare compare = {}) : ui_(ui), compare_(std::move(compare)) {}

    std::string front() override;
    std::string caption() override;
    Sight look(const std::string& control) override;
    std::optional<Message> message() override;
    bool hourglass() override;

    bool press(const std::string& button) override;
    bool choose(const std::string& list, int line) override;
    bool double_click(const std::string& list, int line) override;
    bool expand(const std::string& tree, int row) override;
    bool collapse(const std::string& tree, int row) override;
    bool toggle(const std::string& check_box) override { return press(check_box); }
    bool set_date(const std::string& picker, const std::string& text) override;
    bool focus(const std::string& control) override;
    bool type(const std::string& text) override;
    bool paste(const std::string& text) override;
    bool copy(const std::string& text) override;
    bool key(Key key) override;
    bool accelerator(char letter) override;
    bool close_box() override;
    bool answer(std::int32_t button) override;
    std::string help() override;
    std::optional<Waiting> waiting() override;
    bool stop() override;
    void pass_ticks(int times) override;

    /// What was found wrong after any deed, or is so now; "" for nothing.
    std::string differences();

private:
    template <class Question> auto asked(Question&& question) {
        decltype(question()) answer{};
        ui_.call([&] { answer = question(); });
        return answer;
    }
    /// Does a deed, given as what posts its input and says whether a person could do it.
    template <class Deed> bool done(Deed&& deed) {
        if (!asked(deed)) return false;
        ui_.settle();
        if (!ui_.is_this()) note_differences();
        return true;
    }
    bool stroke(const Stroke& stroke);
    bool click_sign(const std::string& tree, int row, bool open);
    bool choose_in_combo_box(const std::string& list, int line);
    bool type_date(const std::string& picker, const std::string& text);
    bool go_to_by_tab(const std::string& control);
    void note_differences();
    HWND waiting_window_now();

    // On the thread only.
    HWND top_window() const;
    HWND top_form() const;
    HWND form_in_front() const;
    HWND reachable(const std::string& control) const;
    HWND focused_in_front() const;

    UiThread& ui_;
    WatchedHelp help_;
    Compare compare_;
    std::string differences_;
};

} // namespace brx::checks
