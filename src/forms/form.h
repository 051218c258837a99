#pragma once

#include "common/trap.h"
#include "forms/control.h"
#include "forms/environment.h"
#include "forms/turn.h"

#include <cstdint>
#include <string>
#include <vector>

namespace brx {

/// What a form is designed with.
struct FormDesign {
    const char* name;
    std::string caption;
    Size size;                    ///< of the client area
    bool resizable = false;       ///< `size` is then the smallest
    std::string font_family = {}; ///< "" for the system's message font
    ErrorLibrary errors = ErrorLibrary::brxError6;
};

/// Keys that mean the same wherever in the dialog the focus is.
enum class Shortcut {
    find,          ///< Ctrl+F
    find_next,     ///< F3
    find_previous, ///< Shift+F3
    leave,         ///< Escape, which presses the Cancel button where the dialog has no other use for it
};

/// A modal dialog. Its own fields may be set before it is shown and read after it has closed; its controls
/// are in their design state whenever it loads.
class Form : public Element, public Container, protected Module {
public:
    Form(Environment& environment, FormDesign design);

    using Element::form;
    Form& form() override { return *this; }
    Form& owner_form() override { return *this; }
    std::string name() const { return design_.name; }
    const FormDesign& design() const { return design_; }
    Environment& environment() const { return environment_; }

    /// The controls in the order of their creation.
    const std::vector<Control*>& controls() const { return controls_; }
    /// The controls in tab order; those without a position come first, as they were created.
    std::vector<Control*> controls_in_tab_order() const;

    const std::string& caption() const { return caption_; }
    void set_caption(const std::string& caption);

    /// The topic that F1 opens; 0 for none.
    std::int32_t help_topic() const { return help_topic_; }
    void set_help_topic(std::int32_t topic) { help_topic_ = topic; }

    /// The control that has the focus, or null.
    Control* focused() const { return focused_; }

    /// Loads the form, shows it, and returns when it has unloaded.
    void show_modal();
    bool loaded() const { return loaded_; }
    /// Closes the form. A handler that is running goes on to its end.
    void unload();

    /// The first control in tab order that the focus can be on now, one that only displays when there is no
    /// other; null when there is none at all.
    Control* first_focusable() const;

    /// Brings every peer of this form up to date.
    void settle();
    /// Puts the present state on the screen at once.
    void repaint();

    /// The button that Enter presses, and the one that Escape presses; null when there is none.
    class Button* default_button() const;
    class Button* cancel_button() const;
    /// Whether Escape is for leaving it by now, and for nothing else.
    virtual bool escape_leaves() const { return cancel_button() != nullptr; }
    /// Whether Alt and this letter press a button that leaves it.
    bool letter_leaves(char letter) const;

    /// A person closed the window by other means than a button.
    bool user_close();
    /// A person pressed keys that a dialog can have a use for. False where this one has none now.
    bool user_shortcut(Shortcut which);
    /// A person pressed F1: the help file opens, where the host has one.
    bool user_help();

    /// What its handlers do, as a person is told of it when it lasts.
    Work& work() const { return environment_.engine.work(); }

    /// Whether a person can do anything with this form now.
    bool in_front() const { return loaded_ && !turn::is_code_running() && turn::front() == this; }

    /// Runs an event's handlers as code of this form, whatever happens in them, and shows the outcome.
    template <class Event> void run_event(Event&& event) noexcept {
        {
            const CodeTurn code;
            const Work::Scope scope(work());
            trap("event", event);
        }
        settle();
    }

protected:
    ~Form() override = default;

    /// Shows a message box over this form and returns the button pressed.
    std::int32_t show_message(const Message& message);

    /// What a dialog of the host's answers, which waits for a person.
    template <class Question> auto answered(Question&& question) {
        expect_still_wanted();
        environment_.engine.comes_before_forms();
        const Work::Pause pause(Work::Afterwards::afresh);
        return question();
    }

    /// Whether it has a use for the keys: then it has done what they are for.
    virtual bool takes(Shortcut) { return false; }

    virtual void Form_Load() {}
    /// The form has closed: the place to let go of the host's objects.
    virtual void Form_Unload() {}

private:
    friend class Control;
    /// Nobody who has stopped the work, or is leaving it, waits for another dialog: throws then.
    void expect_still_wanted();
    void load();
    void move_focus(Control* control);
    void keep_focus_usable();
    void note_within(const Control& container, Aspect aspects);
    void show_help();

    Environment& environment_;
    FormDesign design_;
    std::vector<Control*> controls_;
    std::string caption_;
    std::int32_t help_topic_ = 0;
    Control* focused_ = nullptr;
    bool loaded_ = false;
};

template <class Deed> bool Control::by_person(Deed&& deed) {
    if (!within_reach()) return false;
    form().run_event(std::forward<Deed>(deed));
    return true;
}

} // namespace brx
