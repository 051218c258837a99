#include "forms/win32/engine.h"
#include "rules/rule_stage.h"
#include "windows/described.h"
#include "windows/ui_thread.h"
#include "windows/windows_screen.h"

#include <optional>

namespace brx::checks {

namespace {

/// Forms of this program in windows of a thread of their own.
class WindowsRuleStage : public RuleStage {
public:
    explicit WindowsRuleStage(FakeHost& host) {
        ui_.call([&] { forms_.emplace(host); });
    }
    ~WindowsRuleStage() override {
        ui_.call([&] { forms_.reset(); });
    }

    Screen& screen() override { return screen_; }
    Environment& environment() override { return forms_->environment; }
    void start(std::function<void()> job) override { ui_.start(std::move(job)); }
    void pump() override { ui_.pump(); }
    void end_pump() override { ui_.end_pump(); }
    bool busy() override { return ui_.busy(); }
    std::string differences() override { return screen_.differences(); }

private:
    /// On the thread of the windows.
    struct Forms {
        explicit Forms(FakeHost& host) : environment(engine, host, host, Locale{}) {}
        Win32Engine engine;
        Environment environment;
    };

    UiThread ui_;
    WindowsScreen screen_{ui_, differences_in};
    std::optional<Forms> forms_;
};

} // namespace

std::unique_ptr<RuleStage> make_rule_stage(FakeHost& host) {
    return std::make_unique<WindowsRuleStage>(host);
}

} // namespace brx::checks
