#include "forms/headless/baton.h"

#include <utility>

namespace brx {

void Baton::serve(const std::function<bool()>& done) {
    while (!done()) {
        std::function<void()> work;
        {
            std::unique_lock lock(mutex_);
            waiting_for_work_ = true;
            changed_.notify_all();
            changed_.wait(lock, [&] { return work_ != nullptr; });
            work = std::exchange(work_, nullptr);
        }
        work();
    }
}

void Baton::hand_over(std::function<void()> work) {
    hand_over_last(std::move(work));
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [&] { return waiting_for_work_; });
}

void Baton::hand_over_last(std::function<void()> work) {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [&] { return waiting_for_work_; });
    waiting_for_work_ = false;
    work_ = std::move(work);
    changed_.notify_all();
}

} // namespace brx
