#pragma once

#include "forms/engine.h"
#include "forms/reading.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace brx::checks {

/// What a person sees of one control. The lines are also those of a table, see `marked_rows`.
struct Sight : Reading {
    bool exists = false;
    bool focused = false;
};

/// The rows of a table as a person reads them: the cells parted by " | ", a bold one between asterisks, a red
/// text after "red:".
std::vector<std::string> marked_rows(const std::vector<Reading::Row>& rows);

enum class Key {
    enter,
    escape,
    tab,
    back_tab,
    space,
    up,
    down,
    left,
    right,
    home,
    end,
    plus,
    minus,
    f1,
    f3,
    shift_f3,
    control_f,
    backspace,
    erase, ///< all of a box's text: Home, Shift+End, Delete
    control_v,
    next_tab,
    previous_tab
};

/// What a person is told of work that lasts.
struct Waiting {
    std::string what;
    std::string how_far; ///< "12 s", "12 s - 5 of 20"
    bool operator==(const Waiting&) const = default;
};

/// A screen with dialogs on it, and the hands of a person before it. Deeds return when everything that they
/// led to is done and the program waits for input again; false when a person could not do it (no such
/// control, disabled, hidden, another window in front). Names are those of forms and controls.
class Screen {
public:
    virtual ~Screen() = default;

    /// The form that takes input, "message" for a message box, "" for none.
    virtual std::string front() = 0;
    /// The caption of the form in front.
    virtual std::string caption() = 0;
    virtual Sight look(const std::string& control) = 0;
    /// The message box in front, if there is one. The style is 0 where the platform does not tell it.
    virtual std::optional<Message> message() = 0;
    /// Whether the hourglass shows for the form in front.
    virtual bool hourglass() = 0;

    virtual bool press(const std::string& button) = 0; ///< with the mouse
    virtual bool choose(const std::string& list, int line) = 0;
    virtual bool double_click(const std::string& list, int line) = 0;
    /// A click on the sign before a row of a tree.
    virtual bool expand(const std::string& tree, int row) = 0;
    virtual bool collapse(const std::string& tree, int row) = 0;
    virtual bool toggle(const std::string& check_box) = 0;
    /// Of a picker of dates "2026-11-21", of one of times "13:04:05".
    virtual bool set_date(const std::string& picker, const std::string& text) = 0;
    virtual bool focus(const std::string& control) = 0; ///< by clicking into it
    virtual bool type(const std::string& text) = 0;     ///< into the control that has the focus
    virtual bool paste(const std::string& text) = 0;    ///< from the menu of the box
    virtual bool copy(const std::string& text) = 0;     ///< in another program, to the clipboard
    virtual bool key(Key key) = 0;
    virtual bool accelerator(char letter) = 0;
    virtual bool close_box() = 0;
    virtual bool answer(std::int32_t button) = 0; ///< the message box, by one of its buttons

    /// The small window that tells of work that lasts; none while there is no such work.
    virtual std::optional<Waiting> waiting() = 0;
    virtual bool stop() = 0; ///< presses its Stop

    /// The help that was opened last, as "file at topic", "" for none.
    virtual std::string help() = 0;

    /// Lets the dialogs' timers tick `times` times.
    virtual void pass_ticks(int times) = 0;
};

} // namespace brx::checks
