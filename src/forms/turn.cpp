#include "forms/turn.h"

namespace brx {

namespace {
// Nothing here may need a destructor: that would keep the module loaded until the thread ends.
thread_local bool code_running = false;
thread_local bool timer_running = false;
thread_local const ModalTurn* innermost = nullptr;
} // namespace

namespace turn {

bool is_code_running() { return code_running; }

bool is_timer_running() { return timer_running; }

bool is_message_box_open() { return innermost && !innermost->form(); }

Form* front() { return innermost ? innermost->form() : nullptr; }

Form* top_form() {
    const ModalTurn* each = innermost;
    while (each && !each->form()) each = each->below();
    return each ? each->form() : nullptr;
}

} // namespace turn

CodeTurn::CodeTurn() : outer_(code_running) { code_running = true; }

CodeTurn::~CodeTurn() { code_running = outer_; }

TimerTurn::TimerTurn() : outer_(timer_running) { timer_running = true; }

TimerTurn::~TimerTurn() { timer_running = outer_; }

/// What a person did in a form of its own has nothing to do with what she stopped before.
ModalTurn::ModalTurn(Form* form)
    : form_(form),
      below_(innermost),
      code_was_running_(code_running),
      timer_was_running_(timer_running),
      pause_(form ? Work::Afterwards::afresh : Work::Afterwards::as_before) {
    innermost = this;
    code_running = false;
    timer_running = false;
}

ModalTurn::~ModalTurn() {
    innermost = below_;
    code_running = code_was_running_;
    timer_running = timer_was_running_;
}

} // namespace brx
