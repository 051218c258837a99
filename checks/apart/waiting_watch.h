#pragma once

#include <atomic>
#include <set>
#include <string>
#include <thread>
#include <utility>

namespace brx::checks {

/// Somebody who looks at the screen while a dialog waits for its server: what the small window told.
class WaitingWatch {
public:
    /// Presses Stop as soon as it is told how far the work has come of this, "" to look on only.
    explicit WaitingWatch(std::string stops_at = {})
        : stops_at_(std::move(stops_at)), thread_([this] { look(); }) {}
    WaitingWatch(const WaitingWatch&) = delete;
    WaitingWatch& operator=(const WaitingWatch&) = delete;
    ~WaitingWatch();

    /// All that was told of what is waited for; ends the looking.
    const std::set<std::string>& seen();

private:
    void look();

    std::string stops_at_;
    std::set<std::string> seen_;
    std::atomic<bool> over_ = false;
    std::thread thread_;
};

} // namespace brx::checks
