#pragma once

#include <condition_variable>
#include <functional>
#include <mutex>

namespace brx {

/// Hands work from the thread of a scripted user to the thread that the forms live on. Only one of the two
/// runs at any time, so that every run is the same.
class Baton {
public:
    /// On the forms' thread: does what it is handed until `done`. Nests: work may serve again.
    void serve(const std::function<bool()>& done);

    /// On the user's thread: has `work` done; returns when it has ended or serves again.
    void hand_over(std::function<void()> work);

    /// The same for the work after which nothing serves any more; does not wait for its end.
    void hand_over_last(std::function<void()> work);

private:
    std::mutex mutex_;
    std::condition_variable changed_;
    std::function<void()> work_;
    bool waiting_for_work_ = false;
};

} // namespace brx
