#include "forms/showing.h"

#include "forms/turn.h"

namespace brx {

namespace {
// No object: its destructor would keep the module loaded until the thread ends.
thread_local ShowingScope* innermost_showing = nullptr;
} // namespace

ShowingScope::ShowingScope(const char* form) noexcept
    : form_(form), outer_(innermost_showing), whole_(outer_ ? outer_->whole_ : *this) {
    innermost_showing = this;
}

ShowingScope::~ShowingScope() { innermost_showing = outer_; }

/// That of the form which reports. What is no form's belongs to the form shown last: a person tries again
/// what failed there.
ShowingScope& ShowingScope::showing_of(const ErrorReport& report) {
    ShowingScope* last_form = nullptr;
    for (ShowingScope* each = innermost_showing; each; each = each->outer_) {
        if (!each->form_) continue;
        if (report.location.starts_with(each->form_ + std::string("."))) return *each;
        if (!last_form) last_form = each;
    }
    return last_form ? *last_form : innermost_showing->whole_;
}

bool ShowingScope::begins_to_tell(const ErrorReport& report) {
    const bool from_timer = turn::is_timer_running();
    if (telling_) return false;
    if (from_timer && (timer_told_ || turn::is_message_box_open())) return false;
    if (!showing_of(report).told_.emplace(report.number, report.location).second) return false;
    timer_told_ = timer_told_ || from_timer;
    telling_ = true;
    return true;
}

} // namespace brx
