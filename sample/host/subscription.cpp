#include "host/subscription.h"

#include "common/trap.h"
#include "host/words.h"

#include <algorithm>
#include <cmath>

namespace brx::host {

namespace {

// In seconds.
constexpr double patience_for_the_first_value = 3;
constexpr double patience_for_a_quiet_item = 10;
constexpr double between_subscriptions = 10;
constexpr double between_questions = 1;
/// A server that takes long to answer must not hold the host up all the time.
constexpr double rest_after_a_question = 4;

constexpr std::int32_t quality_bits = 0xC0;

bool is_good(const Observation& said) { return (said.quality & quality_bits) == quality_bits; }

bool has_said_anything(const Observation& known) {
    return known.quality != 0 || !std::holds_alternative<Empty>(known.value);
}

/// The time may be told in another way by another call.
bool says_the_same(const Observation& one, const Observation& other) {
    return one.value == other.value && one.quality == other.quality;
}

} // namespace

Subscription::Subscription(std::unique_ptr<GroupAccess> group, std::int32_t update_rate, float dead_band,
                           Seconds seconds)
    : group_(std::move(group)),
      update_rate_(update_rate),
      dead_band_(dead_band),
      seconds_(std::move(seconds)) {
    subscribe();
}

void Subscription::subscribe() {
    try {
        group_->subscribe(update_rate_, dead_band_);
        subscribed_ = group_->is_subscribed();
        refusal_ = subscribed_ ? "" : "the server has not done it";
    } catch (const Error& error) {
        subscribed_ = false;
        refusal_ = in_one_line(error);
    }
    next_look_ = seconds_() + between_subscriptions;
}

void Subscription::stay_subscribed(double now) {
    if (now < next_look_) return;
    next_look_ = now + between_subscriptions;
    bool still = false;
    attempt([&] { still = group_->is_subscribed(); });
    if (!still) return subscribe();
    subscribed_ = true;
    refusal_.clear();
}

ItemReading Subscription::read(const std::string& item_id) {
    const double now = seconds_();
    stay_subscribed(now);
    Item& item =
        items_.try_emplace(item_id, Item{.since = now, .known = {}, .found = {}, .answer = {}, .failure = {}})
            .first->second;
    try {
        hear(item, group_->known(item_id), now);
    } catch (const Error& error) {
        return {std::nullopt, "not in the group: " + in_one_line(error)};
    }
    if (is_to_be_asked(item, now)) ask(item, item_id);
    return reading_of(item, seconds_());
}

/// What a question of ours has brought is no news, and neither is what was known before. But once something
/// else is told, the same can come again and is.
void Subscription::hear(Item& item, const Observation& known, double now) const {
    if (!has_said_anything(known) || item.known == known) return;
    item.known = known;
    if (item.found && says_the_same(*item.found, known)) return;
    item.found.reset();
    item.answer = known;
    item.since = now;
    item.only_asked = false;
    item.failure.clear();
}

bool Subscription::is_to_be_asked(const Item& item, double now) const {
    if (now < item.next_question) return false;
    if (!subscribed_ || item.only_asked) return true;
    const double rate = update_rate_ / 1000.0;
    return now - item.since >= (item.answer ? std::max(patience_for_a_quiet_item, 3 * rate)
                                            : std::max(patience_for_the_first_value, rate));
}

void Subscription::ask(Item& item, const std::string& item_id) {
    const double asked = seconds_();
    try {
        const Observation said = group_->ask(item_id);
        if (tells_more(said, item)) {
            item.answer = said;
            item.only_asked = true;
        }
        item.found = said;
        item.failure.clear();
        item.since = seconds_();
    } catch (const Error& error) {
        item.failure = in_one_line(error);
    }
    const double answered = seconds_();
    const double pause =
        std::max({between_questions, update_rate_ / 1000.0, rest_after_a_question * (answered - asked)});
    item.next_question = answered + pause;
}

/// Within a dead band a server that tells changes keeps small ones to itself.
bool Subscription::tells_more(const Observation& found, const Item& item) const {
    if (!item.answer) return true;
    if (says_the_same(found, *item.answer)) return false;
    const bool is_told = subscribed_ && !item.only_asked;
    return !is_told || dead_band_ == 0 || found.quality != item.answer->quality;
}

ItemReading Subscription::reading_of(const Item& item, double now) const {
    if (!item.failure.empty())
        return {std::nullopt,
                (subscribed_ ? "" : "not subscribed, ") +
                    ("no answer since " + std::to_string(std::lround(std::floor(now - item.since))) +
                     " s: " + item.failure)};
    if (!item.answer) return {std::nullopt, "waiting for the first value"};
    if (!is_good(*item.answer)) return {std::nullopt, quality_in_words(item.answer->quality)};
    return {item.answer->value, ""};
}

} // namespace brx::host
