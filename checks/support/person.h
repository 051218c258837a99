#pragma once

#include "gave_up.h"
#include "screen.h"

#include <functional>
#include <string>
#include <vector>

namespace brx::checks {

using Lines = std::vector<std::string>;

/// A person in front of the screen, for whom anything that should be possible and is not ends the story.
class Person {
public:
    explicit Person(Screen& screen) : screen_(screen) {}
    Screen& screen() { return screen_; }

    /// Runs after each thing that she did.
    std::function<void()> afterwards = [] {};

    /// The window in front must be this form ("" for none).
    void is_at(const std::string& form);
    /// What she sees of a control of the form in front, which must have it.
    Sight sees(const std::string& control);
    std::string reads(const std::string& control) { return sees(control).text; }
    Lines lines_of(const std::string& list) { return sees(list).lines; }
    /// One line of a list, from 0, which must be there.
    std::string line_of(const std::string& list, int line);
    std::string title() { return screen_.caption(); }
    bool can_press(const std::string& button);
    /// The name of the control that has the focus, of those given; "" when none of them has it.
    bool has_focus(const std::string& control) { return sees(control).focused; }

    void presses(const std::string& button);
    void picks(const std::string& list, const std::string& line);
    void double_clicks(const std::string& list, const std::string& line);
    /// Of a tree: a click on the node with this text, or on the sign before it.
    void clicks_node(const std::string& tree, const std::string& node);
    void expands(const std::string& tree, const std::string& node);
    void collapses(const std::string& tree, const std::string& node);
    void ticks(const std::string& check_box);
    /// In a picker of dates "2026-11-21", in one of times "13:04:05".
    void sets(const std::string& picker, const std::string& date);
    void goes_to(const std::string& control);
    /// Goes to the box and replaces what is in it.
    void enters(const std::string& box, const std::string& text);
    /// The same in a box that refuses Backspace.
    void replaces(const std::string& box, const std::string& text);
    void types(const std::string& text);
    void pastes(const std::string& text);
    /// With the keyboard, what she copied elsewhere.
    void pastes_by_key(const std::string& text);
    void hits(Key key);
    void uses_accelerator(char letter);
    void closes_the_window();
    /// The message box in front must say exactly this; she presses the button.
    void answers(const Message& expected, std::int32_t button = message::ok);
    void waits_for_ticks(int times) { screen_.pass_ticks(times); }

private:
    void must(bool done, const std::string& deed);
    void does(bool done, const std::string& deed);
    int find_node(const std::string& tree, const std::string& node);
    int find_line(const std::string& list, const std::string& line);

    Screen& screen_;
};

} // namespace brx::checks
