#include "host/collection.h"

#include "collect/telling.h"
#include "host/configuration.h"
#include "host/server_entry.h"

#include <algorithm>
#include <utility>

namespace brx::host {

namespace {

constexpr double seconds_per_day = 86400;
constexpr double seconds_between_tries = 5;

/// The values of a configuration's items.
class GroupValues final : public collect::Values {
public:
    GroupValues(Configuration& configuration, std::map<std::string, std::string>& troubles)
        : configuration_(configuration), troubles_(troubles) {}

    std::optional<Variant> value_of(const std::string& item) override {
        ItemReading reading = configuration_.reading_of(item);
        troubles_[item] = std::move(reading.trouble);
        return std::move(reading.value);
    }
    std::optional<double> range_of(const std::string& item) override { return configuration_.range_of(item); }

private:
    Configuration& configuration_;
    std::map<std::string, std::string>& troubles_;
};

collect::TestSettings settings_of(CollectionTest& test) {
    return {.id = test.id(),
            .characteristic = test.characteristic_id(),
            .item = test.OPCItemID(),
            .own_trigger = test.ItemTrigger(),
            .condition = {test.TriggerExpression(), test.TriggerValue()},
            .save_as = static_cast<collect::SaveAs>(test.SaveAs()),
            .constant = test.Constant()};
}

collect::Settings settings_of(Configuration& from) {
    collect::Settings settings{
        .active = from.Active(),
        .update_rate = from.UpdateRate(),
        .dead_band = from.DeadBand(),
        .subgroup_size = from.SubgroupSize(),
        .from = from.SyncDateTime(),
        .subgroup = {from.SubgroupInterval(),
                     from.SubgroupTimeUnit(),
                     from.SubgroupTriggerItem(),
                     {from.SubgroupTriggerType(), from.SubgroupTriggerValue()}},
        .piece = {from.PieceInterval(),
                  from.PieceTimeUnit(),
                  from.PieceTriggerItem(),
                  {from.PieceTriggerType(), from.PieceTriggerValue()}},
        .tests = {},
        .descriptors = {},
    };
    for (const auto& test : from.tests().all()) settings.tests.push_back(settings_of(*test));
    for (const auto& each : from.descriptors().all())
        settings.descriptors.push_back({each->Type(), each->ItemName(), each->GroupName()});
    return settings;
}

} // namespace

void Collection::run() {
    collector_.emplace(settings_of(configuration_));
    running_ = true;
    obstacle_.clear();
    troubles_.clear();
    taken_.clear();
}

void Collection::take_over() {
    held_ = false;
    // What has stopped shows nothing of a test that is another one now.
    if (!collector_) return;
    collector_->take_over(settings_of(configuration_));
    troubles_.clear();
    for (auto& [test, number] : taken_)
        number = std::min(number, collector_->series(test).complete_subgroups());
}

std::string Collection::tick(ServerEntry& server, Date now) {
    if (!running_ || held_) return {};
    std::string obstacle =
        collector_->settings().active ? server.obstacle() : "The configuration is not active";
    if (obstacle.empty()) {
        GroupValues values(configuration_, troubles_);
        collector_->tick(values, now);
        take_complete(now);
    }
    if (obstacle == obstacle_) return {};
    obstacle_ = std::move(obstacle);
    return obstacle_.empty() ? "Collection goes on." : "Nothing is collected. " + obstacle_ + ".";
}

void Collection::take_complete(Date now) {
    for (const collect::TestSettings& test : collector_->settings().tests) {
        const collect::Series& series = collector_->series(test.id);
        std::int32_t& taken = taken_[test.id];
        for (; taken < series.complete_subgroups(); ++taken) {
            const collect::Subgroup* complete = series.subgroup(taken + 1);
            if (complete)
                waiting_.push_back({.test_id = test.id,
                                    .characteristic_id = test.characteristic,
                                    .item_id = test.item,
                                    .completed = now,
                                    .pieces = complete->pieces,
                                    .labels = complete->labels});
        }
    }
    for (; waiting_.size() > kept_for_later; ++lost_) waiting_.pop_front();
}

std::string Collection::store_complete(SubgroupStore store, Date now) {
    const double since =
        (now.days - tried_.days) * seconds_per_day; // less than nothing when the clock goes back
    if (waiting_.empty() || (!store_failure_.empty() && since >= 0 && since < seconds_between_tries))
        return {};
    tried_ = now;
    try {
        for (; !waiting_.empty(); waiting_.pop_front()) {
            store.add(waiting_.front());
            ++stored_[waiting_.front().test_id];
        }
    } catch (const Error& error) {
        if (error.description() == store_failure_) return {};
        store_failure_ = error.description();
        return "Subgroups wait to be stored. " + store_failure_;
    }
    if (store_failure_.empty()) return {};
    store_failure_.clear();
    const std::size_t lost = std::exchange(lost_, 0);
    return lost == 0 ? "All subgroups are stored."
                     : counted(static_cast<std::int64_t>(lost), "subgroup", "subgroups") +
                           " could not be stored in time and are lost; all others are stored.";
}

std::int64_t Collection::id_at(std::int32_t position) const {
    const auto& all = configuration_.tests().all();
    const auto index = static_cast<std::size_t>(position) - 1;
    return index < all.size() ? all[index]->id() : 0;
}

const collect::Series& Collection::series(std::int32_t position) const {
    static const collect::Series none;
    return collector_ ? collector_->series(id_at(position)) : none;
}

std::int64_t Collection::stored_of(std::int64_t test) const {
    const auto found = stored_.find(test);
    return found == stored_.end() ? 0 : found->second;
}

std::int32_t Collection::stored_subgroups(std::int32_t position) const {
    return static_cast<std::int32_t>(stored_of(id_at(position)));
}

/// What a person has to know beside how far it is.
std::string Collection::trouble_of(std::int64_t test) const {
    std::string text;
    const auto trouble = troubles_.find(collector_->test(test)->item);
    if (trouble != troubles_.end() && !trouble->second.empty())
        text += ".  No value: " + trouble->second;
    else if (trouble != troubles_.end() && !collector_->has_number(test))
        text += ".  Nothing to save: the value is no finite number";
    const auto waiting = std::ranges::count(waiting_, test, &StoredSubgroup::test_id);
    if (!store_failure_.empty() && waiting != 0)
        text += ".  " + counted(waiting, "subgroup waits", "subgroups wait") + " to be stored";
    return text;
}

std::string Collection::state_text(std::int64_t test, const Locale& locale) const {
    const std::string done = collect::so_far(*collector_, test, locale);
    if (!running_) return "Stopped: " + done;
    if (held_) return "Waits for the dialog: " + done;
    if (!obstacle_.empty()) return "Nothing is collected. " + obstacle_ + ".";
    return "Running: " + done + trouble_of(test);
}

std::string Collection::text(std::int32_t position, const Locale& locale) const {
    const std::int64_t id = id_at(position);
    if (id == 0) return {};
    const auto settings = settings_of(configuration_);
    const std::string plan =
        collect::how_it_goes_on(settings, settings.tests[static_cast<std::size_t>(position - 1)], locale);
    if (collector_ && collector_->test(id)) return state_text(id, locale) + "\n" + plan;
    const std::int64_t stored = stored_of(id);
    const std::string before =
        stored == 0 ? "" : " " + counted(stored, "subgroup is", "subgroups are") + " stored.";
    return "Not running." + before + "\n" + plan;
}

std::string Collection::trigger_text(std::int32_t position, const Locale& locale) const {
    if (id_at(position) == 0) return {};
    const auto test = settings_of(*configuration_.tests().all()[static_cast<std::size_t>(position - 1)]);
    return test.own_trigger ? collect::trigger_in_short(test.condition, locale) : std::string();
}

} // namespace brx::host
