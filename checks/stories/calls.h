#pragma once

#include "scenario.h"

#include <algorithm>
#include <cstddef>
#include <string>

namespace brx::checks {

/// Calls to the host, in order. With a failing host there may be fewer than a story counts on.
struct Calls : Lines {
    using Lines::Lines;
    std::string nth(std::size_t index) const { return index < size() ? (*this)[index] : std::string(); }
    Calls part(std::size_t from, std::size_t count) const {
        const std::size_t begin_at = std::min(from, size());
        const auto first = begin() + static_cast<std::ptrdiff_t>(begin_at);
        return Calls(first, first + static_cast<std::ptrdiff_t>(std::min(count, size() - begin_at)));
    }
    Calls last(std::size_t count) const { return part(size() - std::min(count, size()), count); }
};

/// The calls that the host gets from now on, a part of a story at a time.
class CallsMade {
public:
    explicit CallsMade(const Play& its) : its_(its), seen_(its.host.calls.made().size()) {}
    /// Since this was asked for the last time, in order.
    Calls since_then() {
        const std::vector<HostCall>& made = its_.host.calls.made();
        Calls news;
        for (; seen_ < made.size(); ++seen_) news.push_back(made[seen_].member);
        return news;
    }

private:
    const Play& its_;
    std::size_t seen_;
};

} // namespace brx::checks
