#pragma once

#include "common/model/object.h"
#include "screen.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace brx::checks {

class FakeHost;

/// One instance of a public class, created the way that this run creates them. Use on the stage's thread
/// only.
class PublicClass {
public:
    virtual ~PublicClass() = default;
    virtual std::int16_t ServerIndex() = 0;
    virtual void set_ServerIndex(std::int16_t index) = 0;
    virtual std::string ItemID() = 0;
    virtual void set_ItemID(const std::string& item_id) = 0;
    /// With the one or two objects that the class is shown with.
    virtual bool Show(const std::vector<ObjectPtr>& objects) = 0;
};

/// Where a scenario plays: a user-interface thread of the program under check, the host's objects handed to
/// it, and a screen. There is one for the headless engine and one for real windows through the DLL.
class Stage {
public:
    virtual ~Stage() = default;

    virtual Screen& screen() = 0;

    /// Runs `job` on the user-interface thread; returns when it has ended or a window waits for input.
    virtual void start(std::function<void()> job) = 0;

    /// Whether a job that was started has not ended.
    virtual bool busy() = 0;

    /// On the user-interface thread only: a new instance of `brxOpcDlgs6.<name>`.
    virtual std::unique_ptr<PublicClass> create(const std::string& name) = 0;

    /// On the user-interface thread only: so much time passes there, as in a call to a slow server.
    virtual void pass(std::chrono::milliseconds time) = 0;

    /// What the run can tell of things that leaked, "" for nothing. Asked when nothing is open any more.
    virtual std::string leaks() = 0;

    /// Differences between what the windows show and what their controls say, "" for none.
    virtual std::string differences() = 0;
};

/// The stage of this check program, with the host behind it.
std::unique_ptr<Stage> make_stage(FakeHost& host);

} // namespace brx::checks
