#include "forms/showing.h"

#include "forms/turn.h"

namespace brx {

namespace {
// No object: its destructor would keep the module loaded until the thread ends.
thread_local ShowingScope* outermost = nullptr;
} // namespace

ShowingScope::ShowingScope() noexcept : whole_(outermost ? *outermost : *this) { outermost = &whole_; }

ShowingScope::~ShowingScope() {
    if (outermost == this) outermost = nullptr;
}

bool ShowingScope::begins_to_tell(const ErrorReport& report) {
    const bool from_timer = turn::is_timer_running();
    if (telling_) return false;
    if (from_timer && (timer_told_ || turn::is_message_box_open())) return false;
    if (!told_.emplace(report.number, report.location).second) return false;
    timer_told_ = timer_told_ || from_timer;
    telling_ = true;
    return true;
}

} // namespace brx
