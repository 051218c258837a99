#pragma once

#include "scenario.h"

#include <string>
#include <vector>

namespace brx::checks {

/// The calls that the host has got, a part of a story at a time.
class CallsMade {
public:
    explicit CallsMade(const Play& its) : its_(its) {}
    /// Since this was asked for the last time, in order.
    std::vector<std::string> since_then() {
        std::vector<std::string> all = its_.host.calls.members();
        std::vector<std::string> part(all.begin() + static_cast<std::ptrdiff_t>(seen_), all.end());
        seen_ = all.size();
        return part;
    }

private:
    const Play& its_;
    std::size_t seen_ = 0;
};

} // namespace brx::checks
