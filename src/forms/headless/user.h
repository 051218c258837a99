#pragma once

#include "forms/form.h"
#include "forms/headless/engine.h"

#include <string>

namespace brx {

class Control;
class ListView;
class TextBox;

/// What the keyboard and the mouse do to the window in front, by the platform's rules. On the forms' thread.
/// False when nothing there takes the input.
class HeadlessUser {
public:
    explicit HeadlessUser(HeadlessEngine& engine) : engine_(engine) {}

    /// Whether a click on it leaves the form.
    bool leaves(const std::string& button) const;
    bool escape_leaves() const;
    bool letter_leaves(char letter) const;
    bool click(const std::string& control);
    bool choose(const std::string& list, int line);
    bool double_click(const std::string& list, int line);
    /// Of a tree, with the mouse on the sign before the node.
    bool expand(const std::string& tree, int row);
    bool collapse(const std::string& tree, int row);
    /// Of a date picker: "2026-11-21", or "13:04:05" where it shows times.
    bool set_date(const std::string& picker, const std::string& text);
    bool focus(const std::string& control);
    bool type(const std::string& text);
    bool paste(const std::string& text);
    /// Ctrl+V, with this on the clipboard.
    bool control_v(const std::string& clipboard);
    bool enter();
    bool escape();
    bool shortcut(Shortcut which);
    bool tab(bool backwards);
    /// Ctrl+Tab
    bool turn_tab(bool backwards);
    bool space();
    bool move(int lines);
    bool left();
    bool right();
    /// Home and End.
    bool go_to_end(bool first);
    bool plus();
    bool minus();
    bool help();
    bool backspace();
    bool erase();
    bool accelerator(char letter);
    bool close_box();
    void tick();

private:
    Form* form() const;
    Control* find(const std::string& name) const;
    Control* focused() const;
    bool search_tree(const std::string& text);
    bool search_table(const std::string& text);
    bool search_list(const std::string& character);
    bool press_character(TextBox& box, const std::string& character);

    HeadlessEngine& engine_;
};

} // namespace brx
