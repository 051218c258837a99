#pragma once

#include "forms/engine.h"
#include "forms/headless/baton.h"
#include "forms/headless/screen_state.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace brx {

class HeadlessEngine;

/// Work by a clock that only passes when somebody says so.
class HeadlessWork : public Work {
public:
    explicit HeadlessWork(const HeadlessEngine& engine) : engine_(engine) {}
    Milliseconds now() const override { return now_; }
    void pass(Milliseconds time) { now_ += time; }
    bool keeps_a_person_waiting() override;
    /// Whether a person sees by now what is waited for.
    bool is_shown() const { return is_going_on() && lasted() >= shown_after; }

private:
    const HeadlessEngine& engine_;
    Milliseconds now_{};
};

/// The engine of the checks: forms open and close, nothing is drawn, and a scripted user works through
/// `Baton`.
class HeadlessEngine : public FormEngine {
public:
    explicit HeadlessEngine(Baton& baton) : baton_(baton) {}

    void show_modal(Form& form) override;
    void repaint(Form& form) override;
    void hourglass(Form& form, bool on) override;
    std::int32_t message_box(const Message& message) override;
    HelpOutcome show_help(const std::string& help_file, std::int32_t topic) override;
    void comes_before_forms() override { miss_held(); }
    HeadlessWork& work() override { return work_; }

    /// Does what a person does, later when code runs, and leaves the form with it or not; false when it was
    /// not possible.
    bool person_does(std::function<bool()> deed, bool leaves = false);
    /// The window that takes input; null when there is none or a message box lies over it.
    HeadlessWindow* front() const;
    const std::vector<HeadlessWindow*>& windows() const { return windows_; }
    const std::optional<Message>& message() const { return message_; }
    void answer(std::int32_t button) { answer_ = button; }
    int hourglasses() const { return hourglasses_; }
    /// How many windows and message boxes have opened so far.
    int opened() const { return opened_; }
    const std::string& help_shown() const { return help_shown_; }

private:
    void miss_held();

    Baton& baton_;
    HeadlessWork work_{*this};
    std::vector<HeadlessWindow*> windows_;
    std::optional<Message> message_;
    std::int32_t answer_ = 0;
    int hourglasses_ = 0;
    int opened_ = 0;
    std::string help_shown_;
};

} // namespace brx
