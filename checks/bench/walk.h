#pragma once

#include "bench/opening.h"

#include <windows.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace brx::checks {
class Component;
class FakeHost;
} // namespace brx::checks

namespace brx::bench {

/// The dialogs by their names.
const std::vector<std::string>& dialogs();

/// A host that stays up and shows one of the dialogs as often as it is asked to, through COM.
class LastingHost {
public:
    /// What is done with the open dialog each time that there is nothing else to do, until it is content.
    using Stay = std::function<bool(HWND)>;

    explicit LastingHost(const std::string& dialog);
    ~LastingHost();
    LastingHost(const LastingHost&) = delete;
    LastingHost& operator=(const LastingHost&) = delete;

    checks::FakeHost& objects();
    const checks::Component& component() const;

    /// From `Show`, or from the press of the button that opens the dialog, until it waits for input; then
    /// closes everything. Throws when the dialog does not open.
    Opening open(const std::function<void(HWND)>& look = [](HWND) {});
    /// The same of one that stays open for a while, turned to the tab of that number where there is one.
    void keep_open(int tab, const Stay& stay);

private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
};

} // namespace brx::bench
