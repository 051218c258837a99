#pragma once

#include "common/error.h"
#include "forms/work.h"

#include <cstdint>
#include <string>

namespace brx {

class Form;

/// A message box: its text, the sum of the platform's style flags, and its title.
struct Message {
    std::string text;
    std::int32_t style = 0;
    std::string title = {}; ///< "" for the component's name
    bool operator==(const Message&) const = default;

    /// What a person reads in its title bar.
    std::string shown_title() const { return title.empty() ? component_name : title; }
};
namespace message {
inline constexpr std::int32_t ok_cancel = 1;
inline constexpr std::int32_t critical = 16;
inline constexpr std::int32_t question = 32;
inline constexpr std::int32_t exclamation = 48;
inline constexpr std::int32_t information = 64;

inline constexpr std::int32_t ok = 1;     ///< result: the OK button
inline constexpr std::int32_t cancel = 2; ///< result: the Cancel button, Escape or the close box
} // namespace message

/// What came of opening the help.
enum class HelpOutcome {
    opened,
    missing,    ///< there is no such file
    not_opened, ///< there is, but no viewer takes it
};

/// Where forms run. An engine opens windows, pumps input and shows state; it holds no dialog logic.
class FormEngine {
public:
    FormEngine() = default;
    FormEngine(const FormEngine&) = delete;
    FormEngine& operator=(const FormEngine&) = delete;
    virtual ~FormEngine() = default;

    /// Opens a window for the loaded form, over the form or host window in front, and serves it until the
    /// form is no longer loaded. Every other window of the thread is disabled meanwhile.
    virtual void show_modal(Form& form) = 0;

    /// Puts the form's present state on the screen at once, although a handler is running.
    virtual void repaint(Form& form) = 0;

    /// Shows the hourglass (or ends it). Calls are balanced and may nest; the form may not be open yet.
    virtual void hourglass(Form& form, bool on) = 0;

    /// Shows the system's message box over the form in front and returns the button pressed.
    virtual std::int32_t message_box(const Message& message) = 0;

    /// Opens the help file at the topic, with 0 at its contents.
    virtual HelpOutcome show_help(const std::string& help_file, std::int32_t topic) = 0;

    /// Something that is none of its windows comes before its forms: a message box or a dialog of the host's.
    virtual void comes_before_forms() {}

    /// The work that the handlers of its forms do.
    virtual Work& work() { return work_; }

private:
    Work work_;
};

} // namespace brx
