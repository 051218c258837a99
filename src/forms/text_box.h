#pragma once

#include "forms/form.h"

#include <cstdint>
#include <functional>

namespace brx {

/// May change the character's code; 0 discards it.
using KeyPressHandler = std::function<void(std::int32_t& key_ascii)>;
using KeyHandler = std::function<void(std::int32_t key_code)>;

/// Ctrl+A, C, V, X and Z come as characters too, but enter none: no KeyPress tells of them. Backspace is a
/// character like any other.
constexpr bool is_edit_command(std::int32_t key_ascii) {
    return key_ascii == 1 || key_ascii == 3 || key_ascii == 22 || key_ascii == 24 || key_ascii == 26;
}

struct TextBoxDesign {
    Place place;
    int tab = 0;
    std::string text = {};
    bool display_only = false; ///< a person can read and copy the text, not change it
    bool takes_enter = false;  ///< Enter goes to the box and presses no button
    bool enabled = true;
    bool visible = true;
    Anchor anchor = Anchor::top_left;
    Handler Change = {};
    KeyHandler KeyDown = {};
    KeyPressHandler KeyPress = {};
    KeyHandler KeyUp = {};
    Handler GotFocus = {};
    Handler LostFocus = {};
};

/// A box of one line of text.
class TextBox : public Control {
public:
    TextBox(Container& container, const char* name, const TextBoxDesign& design)
        : Control(container, name, design.display_only ? look_of(design) : window_look_of(design)),
          design_(design),
          text_(design.text) {}

    const char* kind() const override { return "text_box"; }
    bool focusable() const override { return true; }
    bool display_only() const { return design_.display_only; }
    bool takes_enter() const { return design_.takes_enter; }
    bool takes_entries() const override { return !display_only(); }

    const std::string& text() const { return text_; }
    void set_text(const std::string& text) {
        if (text_ == text) return;
        text_ = text;
        all_selected_ = false;
        changed(Aspect::text);
        fire(design_.Change);
    }

    /// Selects the whole text, so that typing replaces it.
    void select_all() {
        all_selected_ = true;
        changed(Aspect::selection);
    }
    /// Whether the whole text is selected, as far as the box knows.
    bool all_selected() const { return all_selected_; }

    /// A person pressed the mouse in the box: the caret goes there, unless the form selects the text as the
    /// focus comes.
    bool user_press() {
        if (form().focused() == this) return by_person([&] { all_selected_ = false; });
        return can_focus() && by_person([&] {
                   all_selected_ = false;
                   set_focus();
               });
    }

    /// A person pressed a key down; released it.
    bool user_key_down(std::int32_t key_code) {
        return by_person([&] {
            if (design_.KeyDown) design_.KeyDown(key_code);
        });
    }
    bool user_key_up(std::int32_t key_code) {
        return by_person([&] {
            if (design_.KeyUp) design_.KeyUp(key_code);
        });
    }
    /// A person typed a character. Returns the code of the character to enter, 0 for none. An edit command
    /// comes back as it is, for the platform to carry out.
    std::int32_t user_key_press(std::int32_t key_ascii) {
        if (!by_person([&] {
                if (design_.KeyPress && !is_edit_command(key_ascii)) design_.KeyPress(key_ascii);
            }))
            return 0;
        return key_ascii;
    }
    /// A person's typing, pasting, cutting or undoing led to this text.
    bool user_text(const std::string& text) {
        if (text_ == text) return true;
        return !design_.display_only && by_person([&] { set_text(text); });
    }

    void got_focus() override { fire(design_.GotFocus); }
    void lost_focus() override { fire(design_.LostFocus); }

    void reset() override {
        Control::reset();
        text_ = design_.text;
        all_selected_ = false;
    }

protected:
    void select_content() override { select_all(); }
    void read_content(Aspect aspects, Reading& into, int) const override {
        if (has(aspects, Aspect::text)) into.text = text_;
    }

private:
    TextBoxDesign design_;
    std::string text_;
    bool all_selected_ = false;
};

} // namespace brx
