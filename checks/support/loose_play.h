#pragma once

#include "host/holdings.h"
#include "scenario.h"

#include <gtest/gtest-spi.h>

#include <algorithm>
#include <map>
#include <string>

namespace brx::checks {

/// Plays the story whatever becomes of it: with a failing host nothing in it needs to come true.
inline void play_loosely(const Story& story, Play& its) {
    testing::TestPartResultArray ignored;
    const testing::ScopedFakeTestPartResultReporter ignore(
        testing::ScopedFakeTestPartResultReporter::INTERCEPT_ALL_THREADS, &ignored);
    try {
        story(its);
    } catch (const GaveUp&) {
    }
}

/// Looks whether a deed in which a call failed or was not made, and after which the same form is in front,
/// has left the host's objects as they were.
class Watch {
public:
    explicit Watch(Play& its) : its_(its) {
        its.person.afterwards = [this] { look(); };
        look();
    }

    void look() {
        if (failed_) return;
        const std::string front = its_.stage->screen().front();
        auto holdings = holdings_of(its_.host);
        failed_ =
            its_.host.calls.refused() > 0 || std::ranges::any_of(its_.host.calls.made(), &HostCall::failed);
        if (failed_ && front == front_) half_done_ = brx::checks::half_done(holdings_, holdings);
        front_ = front;
        holdings_ = std::move(holdings);
    }

    const std::string& half_done() const { return half_done_; }

private:
    Play& its_;
    bool failed_ = false;
    std::string front_;
    std::string half_done_;
    std::map<const void*, Holding> holdings_;
};

} // namespace brx::checks
