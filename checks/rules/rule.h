#pragma once

#include "forms/form.h"
#include "forms/turn.h"
#include "person.h"
#include "rules/rule_stage.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <utility>

namespace brx::checks {

/// A rule of controls, told as what becomes of a form of kind `Shown` before a person. A rule holds on every
/// engine: each check program plays it on its own stage.
///
/// `Shown` notes its events in `events` and clears them as it has loaded.
template <class Shown> class RuleOf : public testing::Test {
protected:
    using Story = std::function<void()>;

    RuleOf() {
        stage_->start([this] { form_ = std::make_unique<Shown>(stage_->environment()); });
    }
    ~RuleOf() override {
        for (const Report& each : host.reports)
            ADD_FAILURE() << "Reported: " << each.what.number << " " << each.what.description << " in "
                          << each.what.location;
    }

    /// Shows the form. What it opens is closed at the end.
    void while_open(const Story& story) {
        stage_->start([this] { form().show_modal(); });
        try {
            story();
        } catch (const GaveUp&) {
            // Recorded where it happened.
        }
        EXPECT_EQ(stage_->differences(), "");
        for (int tries = 9; tries > 0 && stage_->busy(); --tries)
            if (!screen().answer(message::ok)) screen().close_box();
        ASSERT_FALSE(stage_->busy()) << screen().front() << " could not be closed.";
    }

    Shown& form() { return *form_; }
    Screen& screen() { return stage_->screen(); }
    Environment& environment() { return stage_->environment(); }
    /// Runs code as a handler of the form does.
    void code(const Story& handler) {
        stage_->start([this, handler] { form().run_event(handler); });
    }
    /// The story happens while a handler of the form waits for foreign code that takes input. The handler
    /// goes on with `afterwards`.
    void while_code_pumps(
        const Story& story, const Story& afterwards = [] {}) {
        code([this, afterwards] {
            pump();
            afterwards();
        });
        story();
        end_pump();
    }
    void pump() { stage_->pump(); }
    void end_pump() { stage_->end_pump(); }
    /// What the form has noted since it was asked last.
    std::string told() { return std::exchange(form().events, {}); }
    /// The control with the focus, "none" when it is none of the form's.
    std::string focused() {
        for (const Control* each : form().controls())
            if (screen().look(each->name()).focused) return each->name();
        return "none";
    }

    FakeHost host;

private:
    std::unique_ptr<RuleStage> stage_ = make_rule_stage(host);
    std::unique_ptr<Shown> form_;

protected:
    Person person{stage_->screen()};
};

} // namespace brx::checks
