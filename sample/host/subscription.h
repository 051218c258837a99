#pragma once

#include "host/opc_source.h"

#include <functional>
#include <map>

namespace brx::host {

/// What an item says now: a value, or why there is none.
struct ItemReading {
    std::optional<Variant> value; ///< none unless it is good
    std::string trouble;          ///< "" with a value
};

/// A group that the server is to tell the changes of. What it does not tell is asked for: first values that
/// do not come, everything of a group that it does not subscribe, and now and then whether an item that has
/// long been quiet is still what it was. For servers tell of no subscription that has silently ended.
class Subscription {
public:
    using Seconds = std::function<double()>;

    /// The dead band is in percent, the update rate in milliseconds.
    Subscription(std::unique_ptr<GroupAccess> group, std::int32_t update_rate, float dead_band,
                 Seconds seconds);

    /// Why the server does not subscribe the group; "" when it does.
    const std::string& refusal() const { return refusal_; }
    ItemReading read(const std::string& item_id);
    std::optional<double> range_of(const std::string& item_id) { return group_->range_of(item_id); }

private:
    struct Item {
        double since;             ///< its last answer, before that when it was first wanted
        double next_question = 0; ///< not before that
        bool only_asked = false;  ///< its changes were not told but found out
        std::optional<Observation> known;
        std::optional<Observation> found;  ///< by the last question
        std::optional<Observation> answer; ///< the last one of either
        std::string failure;               ///< of the last question
    };
    void subscribe();
    void stay_subscribed(double now);
    void hear(Item& item, const Observation& known, double now) const;
    bool is_to_be_asked(const Item& item, double now) const;
    void ask(Item& item, const std::string& item_id);
    bool tells_more(const Observation& found, const Item& item) const;
    ItemReading reading_of(const Item& item, double now) const;

    std::unique_ptr<GroupAccess> group_;
    std::int32_t update_rate_;
    float dead_band_;
    Seconds seconds_;
    bool subscribed_ = false;
    std::string refusal_;
    double next_look_ = 0; ///< whether it is still subscribed
    std::map<std::string, Item> items_;
};

} // namespace brx::host
