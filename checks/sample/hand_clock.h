#pragma once

#include "plant/clock.h"

namespace brx::plant {

/// Moves only when it is told to; waiting takes no time but is noted.
class HandClock final : public Clock {
public:
    static constexpr double noon = 46000.5;

    Date now() override { return {noon + seconds_ / 86400}; }
    void wait(std::chrono::milliseconds duration) override { waited_ += duration; }

    void advance(double seconds) { seconds_ += seconds; }
    std::chrono::milliseconds waited() const { return waited_; }

private:
    double seconds_ = 0;
    std::chrono::milliseconds waited_{0};
};

} // namespace brx::plant
