#include "headless/headless_stage.h"
#include "rules/rule_stage.h"

namespace brx::checks {

namespace {

class HeadlessRuleStage : public RuleStage {
public:
    explicit HeadlessRuleStage(FakeHost& host) : stage_(host) {}

    Screen& screen() override { return stage_.screen(); }
    Environment& environment() override { return stage_.environment(); }
    void start(std::function<void()> job) override { stage_.start(std::move(job)); }
    void pump() override { stage_.pump(); }
    void end_pump() override { stage_.end_pump(); }
    bool busy() override { return stage_.busy(); }
    std::string differences() override { return stage_.leaks(); }

private:
    HeadlessStage stage_;
};

} // namespace

std::unique_ptr<RuleStage> make_rule_stage(FakeHost& host) {
    return std::make_unique<HeadlessRuleStage>(host);
}

} // namespace brx::checks
