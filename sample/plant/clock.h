#pragma once

#include "common/values/variant.h"

#include <chrono>

namespace brx::plant {

inline constexpr double seconds_per_day = 86400;

/// Where the plant takes its time from, so that a check can move it by hand.
class Clock {
public:
    Clock() = default;
    Clock(const Clock&) = delete;
    Clock& operator=(const Clock&) = delete;
    virtual ~Clock() = default;

    virtual Date now() = 0; ///< UTC
    /// What a slow computer takes to answer.
    virtual void wait(std::chrono::milliseconds duration) = 0;
};

class SystemClock : public Clock {
public:
    Date now() override;
    void wait(std::chrono::milliseconds duration) override;
};

} // namespace brx::plant
