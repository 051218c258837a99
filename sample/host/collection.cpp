#include "host/collection.h"

#include "collect/telling.h"
#include "host/configuration.h"
#include "host/server_entry.h"

namespace brx::host {

namespace {

/// The values of a configuration's items.
class GroupValues final : public collect::Values {
public:
    GroupValues(ServerEntry& server, Configuration& configuration)
        : server_(server), configuration_(configuration) {}

    std::optional<Variant> value_of(const std::string& item) override {
        return server_.value_of(configuration_, item);
    }
    std::optional<double> range_of(const std::string& item) override {
        return server_.range_of(configuration_, item);
    }

private:
    ServerEntry& server_;
    Configuration& configuration_;
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
}

void Collection::take_over() {
    held_ = false;
    // What has stopped shows nothing of a test that is another one now.
    if (collector_) collector_->take_over(settings_of(configuration_));
}

std::string Collection::tick(ServerEntry& server, Date now) {
    if (!running_ || held_) return {};
    std::string obstacle =
        collector_->settings().active ? server.obstacle() : "The configuration is not active";
    if (obstacle.empty()) {
        GroupValues values(server, configuration_);
        collector_->tick(values, now);
    }
    if (obstacle == obstacle_) return {};
    obstacle_ = std::move(obstacle);
    return obstacle_.empty() ? "Collection goes on." : "Nothing is collected. " + obstacle_ + ".";
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

std::string Collection::state_text(std::int64_t test, const Locale& locale) const {
    const std::string done = collect::so_far(*collector_, test, locale);
    if (!running_) return "Stopped: " + done;
    if (held_) return "Waits for the dialog: " + done;
    if (!obstacle_.empty()) return "Nothing is collected. " + obstacle_ + ".";
    return "Running: " + done;
}

std::string Collection::text(std::int32_t position, const Locale& locale) const {
    const std::int64_t id = id_at(position);
    if (id == 0) return {};
    const auto settings = settings_of(configuration_);
    const std::string plan =
        collect::how_it_goes_on(settings, settings.tests[static_cast<std::size_t>(position - 1)], locale);
    return (collector_ && collector_->test(id) ? state_text(id, locale) : "Not running.") + "\n" + plan;
}

std::string Collection::trigger_text(std::int32_t position, const Locale& locale) const {
    if (id_at(position) == 0) return {};
    const auto test = settings_of(*configuration_.tests().all()[static_cast<std::size_t>(position - 1)]);
    return test.own_trigger ? collect::trigger_in_short(test.condition, locale) : std::string();
}

} // namespace brx::host
