#pragma once

#include "desk/native.h"
#include "windows/plain_dialog.h"
#include "windows/windows_screen.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace brx::checks {

using Events = std::vector<std::string>;

/// The dialog is on the screen.
class WindowsScreenTest : public testing::Test {
protected:
    WindowsScreenTest() {
        ui.start([this] { dialog.run(); });
    }

    Events events() {
        Events events;
        ui.call([&] { events = dialog.take_events(); });
        return events;
    }
    HWND window(const std::string& name) {
        HWND found = nullptr;
        ui.call([&] {
            for (const HWND form : windows_of(ui.id()))
                if (name_of(form) == "dlgPlain") found = name == "dlgPlain" ? form : find_control(form, name);
        });
        return found;
    }

    UiThread ui;
    WindowsScreen screen{ui};
    PlainDialog dialog{ui.window()};
};

} // namespace brx::checks
