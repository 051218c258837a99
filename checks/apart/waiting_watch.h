#pragma once

#include <atomic>
#include <set>
#include <string>
#include <thread>

namespace brx::checks {

/// Somebody who looks at the screen while a dialog waits for its server: what the small window told.
class WaitingWatch {
public:
    enum class Then { looks_on, presses_stop };
    explicit WaitingWatch(Then then = Then::looks_on) : then_(then), thread_([this] { look(); }) {}
    WaitingWatch(const WaitingWatch&) = delete;
    WaitingWatch& operator=(const WaitingWatch&) = delete;
    ~WaitingWatch();

    /// All that was told of what is waited for; ends the looking.
    const std::set<std::string>& seen();

private:
    void look();

    Then then_;
    std::set<std::string> seen_;
    std::atomic<bool> over_ = false;
    std::thread thread_;
};

} // namespace brx::checks
