#include "forms/work.h"

#include "common/call_gate.h"
#include "common/error.h"
#include "common/values/locale.h"

#include <utility>

namespace brx {

namespace {
// The thread's. Nothing here may need a destructor: that would keep the module loaded until the thread ends.
thread_local Work* running = nullptr;
} // namespace

Work::Work() {
    // Of all works the same.
    call_gate::ask = [] {
        if (refuses_calls()) throw Stopped();
    };
}

void Work::waits_for(const std::string& what) {
    counts_to(0);
    const std::lock_guard lock(mutex_);
    what_ = what;
}

void Work::expect_no_stop() {
    if (!is_stopped()) return;
    if (wish_ == Wish::leave) throw Left();
    throw Stopped();
}

void Work::go_on_with(const std::string& what) {
    expect_no_stop();
    waits_for(what);
}

Work::Milliseconds Work::now() const {
    return std::chrono::duration_cast<Milliseconds>(std::chrono::steady_clock::now().time_since_epoch());
}

Work::Report Work::report() const {
    const std::lock_guard lock(mutex_);
    return {.what = what_,
            .done = done_,
            .total = total_,
            .lasted = lasted(),
            .wish = wish_,
            .call_goes_on = call_goes_on_,
            .turn = turn_};
}

void Work::stop(unsigned turn) {
    const std::lock_guard lock(mutex_);
    if (!going_on_ || turn != turn_) return;
    wish_ = Wish::stop;
    is_seen();
    call_goes_on_ = !break_off_call();
}

void Work::leave() {
    const std::lock_guard lock(mutex_);
    if (!going_on_ || wish_ == Wish::stop) return;
    wish_ = Wish::leave;
    is_seen();
}

void Work::is_seen() {
    if (!is_seen_.exchange(true)) ++call_gate::minded;
}

void Work::forget() {
    if (is_seen_.exchange(false)) --call_gate::minded;
    wish_ = Wish::go_on;
    call_goes_on_ = false;
}

bool Work::refuses_calls() { return running && running->is_stopped() && running->wish_ == Wish::stop; }

void Work::go_on(bool on) {
    {
        const std::lock_guard lock(mutex_);
        ++turn_;
        if (on) began_ = now();
        going_on_ = on;
    }
    changed();
}

Work::Scope::Scope(Work& work) : own_(running ? nullptr : &work) {
    if (!own_) return;
    running = own_;
    own_->waits_for({});
    own_->forget();
    own_->go_on(true);
}

Work::Scope::~Scope() {
    if (!own_) return;
    own_->go_on(false);
    own_->forget();
    running = nullptr;
}

Work::Pause::Pause(Afterwards afterwards)
    : paused_(std::exchange(running, nullptr)),
      undoes_(std::exchange(call_gate::is_wide_open, false)),
      afterwards_(afterwards) {
    if (!paused_) return;
    paused_->go_on(false);
    const Report before = paused_->report();
    what_ = before.what;
    done_ = before.done;
    total_ = before.total;
    wish_ = before.wish;
}

Work::Pause::~Pause() {
    running = paused_;
    call_gate::is_wide_open = undoes_;
    if (!paused_) return;
    paused_->waits_for(what_);
    paused_->done_ = done_;
    paused_->total_ = total_;
    paused_->forget();
    if (wish_ != Wish::go_on && afterwards_ == Afterwards::as_before) {
        paused_->wish_ = wish_;
        paused_->is_seen();
    }
    paused_->go_on(true);
}

std::string grouped(int number, const Locale& locale) {
    std::string text = std::to_string(number);
    for (auto place = static_cast<std::ptrdiff_t>(text.size()) - 3; place > 0; place -= 3)
        text.insert(static_cast<std::size_t>(place), locale.grouping_separator);
    return text;
}

std::string told_what(const Work::Report& report) {
    return report.what.empty() ? "Waiting for the server" : report.what;
}

std::string told_how_far(const Work::Report& report, const Locale& locale) {
    std::string text = grouped(static_cast<int>(report.lasted.count() / 1000), locale) + " s";
    if (report.total > 0)
        text += " - " + grouped(report.done, locale) + " of " + grouped(report.total, locale);
    return text;
}

} // namespace brx
