#pragma once

#include "forms/work.h"

namespace brx {

class Form;

/// Whose turn it is on this thread: code runs, or a modal loop waits for a person. Foreign code that a
/// handler calls may pump messages; what a person or a timer does then comes while it is the code's turn, and
/// is refused.
namespace turn {

bool is_code_running();

/// Whether a timer started the code that runs. What a person does in a window that such code opens is her
/// own.
bool is_timer_running();

/// Whether the loop that waits for a person is a message box's.
bool is_message_box_open();

/// The form in front of the person, or null when there is none or a message box lies over it.
Form* front();

/// The form that was shown last, message box over it or not.
Form* top_form();

} // namespace turn

/// For its lifetime code runs.
class CodeTurn {
public:
    CodeTurn();
    ~CodeTurn();
    CodeTurn(const CodeTurn&) = delete;
    CodeTurn& operator=(const CodeTurn&) = delete;

private:
    bool outer_;
};

/// For its lifetime a timer's tick is dealt with.
class TimerTurn {
public:
    TimerTurn();
    ~TimerTurn();
    TimerTurn(const TimerTurn&) = delete;
    TimerTurn& operator=(const TimerTurn&) = delete;

private:
    bool outer_;
};

/// For its lifetime a modal loop runs: of the form, or of a message box when it is null.
class ModalTurn {
public:
    explicit ModalTurn(Form* form);
    ~ModalTurn();
    ModalTurn(const ModalTurn&) = delete;
    ModalTurn& operator=(const ModalTurn&) = delete;

    Form* form() const { return form_; }
    const ModalTurn* below() const { return below_; }

private:
    Form* form_;
    const ModalTurn* below_;
    bool code_was_running_;
    bool timer_was_running_;
    const Work::Pause pause_;
};

} // namespace brx
