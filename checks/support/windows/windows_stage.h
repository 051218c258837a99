#pragma once

#include "host/fake_host.h"
#include "stage.h"
#include "windows/component.h"
#include "windows/described.h"
#include "windows/host_classes.h"
#include "windows/ui_thread.h"
#include "windows/windows_screen.h"

#include <memory>
#include <string>

namespace brx::checks {

/// The DLL in a host program with a window of its own: everything between the two goes through COM, and
/// dialogs are real windows.
class WindowsStage : public Stage {
public:
    explicit WindowsStage(FakeHost& host);
    ~WindowsStage() override;

    Screen& screen() override { return screen_; }
    void start(std::function<void()> job) override;
    bool busy() override { return ui_.busy(); }
    std::unique_ptr<PublicClass> create(const std::string& name) override;
    void pass(std::chrono::milliseconds time) override;
    std::string leaks() override;
    std::string differences() override { return screen_.differences(); }

private:
    UiThread ui_;
    WindowsScreen screen_{ui_, differences_in};
    // On the user-interface thread only.
    std::unique_ptr<HostClasses> classes_;
    std::unique_ptr<Component> component_;
};

} // namespace brx::checks
