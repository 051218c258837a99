#pragma once

#include <map>
#include <string>

namespace brx::checks {

class FakeHost;

/// One test or descriptor of the host.
struct Holding {
    std::string text; ///< everything that a dialog can write
    /// Whether it goes back to this when one of its properties cannot be written: a new test is its owner's
    /// to remove, and of one without a trigger nobody reads what its value was.
    bool goes_back = true;
};

/// All of them.
std::map<const void*, Holding> holdings_of(const FakeHost& host);

/// What goes back and has not, as it was and as it is; "" for nothing.
std::string half_done(const std::map<const void*, Holding>& before,
                      const std::map<const void*, Holding>& now);

} // namespace brx::checks
