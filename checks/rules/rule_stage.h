#pragma once

#include "forms/environment.h"
#include "host/fake_host.h"
#include "screen.h"

#include <functional>
#include <memory>
#include <string>

namespace brx::checks {

/// Where rules of forms are played: a thread that forms live on, and a screen before a person. There is one
/// for the headless engine and one for real windows.
class RuleStage {
public:
    virtual ~RuleStage() = default;

    virtual Screen& screen() = 0;
    virtual Environment& environment() = 0;

    /// Runs `job` on the forms' thread; returns when it has ended or a window waits for input.
    virtual void start(std::function<void()> job) = 0;

    /// On the forms' thread: takes input until `end_pump`, as foreign code does that waits for messages.
    virtual void pump() = 0;
    virtual void end_pump() = 0;

    /// Whether a job that was started has not ended.
    virtual bool busy() = 0;

    /// Differences between what the windows show and what their controls say, "" for none.
    virtual std::string differences() = 0;
};

/// The stage of this check program.
std::unique_ptr<RuleStage> make_rule_stage(FakeHost& host);

} // namespace brx::checks
