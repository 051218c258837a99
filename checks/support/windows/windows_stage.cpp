#include "windows/windows_stage.h"

#include "desk/native.h"
#include "win32/module.h"

#include <gtest/gtest.h>

#include <thread>

namespace brx::checks {

WindowsStage::WindowsStage(FakeHost& host) {
    ui_.call([&] {
        classes_ = std::make_unique<HostClasses>(host);
        component_ = std::make_unique<Component>();
    });
}

WindowsStage::~WindowsStage() {
    try {
        ui_.call([&] {
            component_.reset();
            classes_.reset();
        });
        EXPECT_FALSE(Component::is_loaded()) << "The DLL stays although its host has let go of it.";
    } catch (const std::exception&) {
        // The thread hangs, and ends the run as it is destroyed.
        static_cast<void>(component_.release());
        static_cast<void>(classes_.release());
    }
}

void WindowsStage::start(std::function<void()> job) {
    ui_.start([this, job = std::move(job)] {
        classes_->offer_what_it_has();
        job();
    });
}

std::unique_ptr<PublicClass> WindowsStage::create(const std::string& name) {
    return component_->create(name);
}

/// And a little more: what counts the time is another thread, on a machine that has other work.
void WindowsStage::pass(std::chrono::milliseconds time) {
    std::this_thread::sleep_for(time + std::chrono::milliseconds(400));
}

std::string WindowsStage::leaks() {
    std::string leaks;
    ui_.call([&] {
        if (const long objects = ModuleLock::count(); objects != 0)
            leaks += std::to_string(objects) + " COM objects of the host are still referred to. ";
        if (!component_->can_be_unloaded()) leaks += "The DLL says that it is still in use. ";
        for (const HWND window : windows_of(ui_.id()))
            if (window != ui_.window()) leaks += "The window \"" + text_of(window) + "\" is still there. ";
        if (!IsWindowEnabled(ui_.window())) leaks += "The host's window is still disabled. ";
    });
    return leaks;
}

std::unique_ptr<Stage> make_stage(FakeHost& host) { return std::make_unique<WindowsStage>(host); }

} // namespace brx::checks
