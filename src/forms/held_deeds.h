#pragma once

#include <deque>
#include <functional>
#include <utility>

namespace brx {

/// What a person did to an open form while code ran, in its order. It is done when the handler has returned
/// and the form is in front.
class HeldDeeds {
public:
    using Deed = std::function<void()>;

    void hold(Deed deed) { held_.push_back(std::move(deed)); }

    /// The other half of the deed that is being done.
    void hold_next(Deed deed) { due_.push_front(std::move(deed)); }

    bool empty() const { return due_.empty() && held_.empty(); }

    /// The next deed, empty when there is none. What is held while it is done comes after all that was held
    /// before.
    Deed next() {
        if (due_.empty()) due_.swap(held_);
        if (due_.empty()) return {};
        Deed deed = std::move(due_.front());
        due_.pop_front();
        return deed;
    }

    /// Something comes before the form: what was to follow the deed that led to it misses the form.
    void miss() { due_.clear(); }

private:
    std::deque<Deed> due_;
    std::deque<Deed> held_;
};

} // namespace brx
