#include "forms/turn.h"

namespace brx {

namespace {
// Nothing here may need a destructor: that would keep the module loaded until the thread ends.
thread_local bool code_running = false;
thread_local const ModalTurn* innermost = nullptr;
} // namespace

namespace turn {

bool is_code_running() { return code_running; }

Form* front() { return innermost ? innermost->form() : nullptr; }

Form* top_form() {
    const ModalTurn* each = innermost;
    while (each && !each->form()) each = each->below();
    return each ? each->form() : nullptr;
}

std::size_t depth() {
    std::size_t count = 0;
    for (const ModalTurn* each = innermost; each; each = each->below()) ++count;
    return count;
}

} // namespace turn

CodeTurn::CodeTurn() : outer_(code_running) { code_running = true; }

CodeTurn::~CodeTurn() { code_running = outer_; }

ModalTurn::ModalTurn(Form* form) : form_(form), below_(innermost), outer_(code_running) {
    innermost = this;
    code_running = false;
}

ModalTurn::~ModalTurn() {
    innermost = below_;
    code_running = outer_;
}

} // namespace brx
