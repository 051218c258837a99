#pragma once

#include "collect/collector.h"
#include "sample/hand_clock.h"

#include <gtest/gtest.h>

#include <map>

namespace brx::collect {

/// Values that the check sets by hand.
class HandValues final : public Values {
public:
    std::optional<Variant> value_of(const std::string& item) override {
        const auto found = values.find(item);
        return found == values.end() ? std::nullopt : std::optional(found->second);
    }
    std::optional<double> range_of(const std::string& item) override {
        const auto found = ranges.find(item);
        return found == ranges.end() ? std::nullopt : std::optional(found->second);
    }

    std::map<std::string, Variant> values;
    std::map<std::string, double> ranges;
};

/// A test on the item Weight in subgroups of 2, which takes every new value; settings differ from check to
/// check. The clock begins at noon, when intervals begin to count.
class CollectCheck : public testing::Test {
protected:
    void begin() {
        collector.emplace(settings);
        collector->tick(values, clock.now());
    }
    /// A second passes, in which the weight becomes this.
    void weighs(double weight) { becomes("Weight", weight); }
    void becomes(const std::string& item, const Variant& value) {
        values.values[item] = value;
        pass(1);
    }
    /// Seconds pass.
    void pass(int seconds) {
        for (int i = 0; i < seconds; ++i) {
            clock.advance(1);
            collector->tick(values, clock.now());
        }
    }

    const Series& series(std::int64_t test = 1) const { return collector->series(test); }
    /// Everything that came: values in brackets were not collected, bars end subgroups.
    std::string story(std::int64_t test = 1) const {
        std::string text;
        std::size_t in_subgroup = 0;
        for (const Point& point : series(test).points()) {
            const std::string value = std::to_string(static_cast<int>(point.value));
            text += (text.empty() ? "" : " ") + (point.subgroup == 0 ? "(" + value + ")" : value);
            if (point.subgroup == 0) continue;
            const Subgroup* around = series(test).subgroup(point.subgroup);
            if (around && ++in_subgroup == around->pieces.size() && around->complete) {
                text += " |";
                in_subgroup = 0;
            }
        }
        return text;
    }

    plant::HandClock clock;
    HandValues values{};
    Settings settings{.update_rate = 1000,
                      .dead_band = 0,
                      .subgroup_size = 2,
                      .from = {plant::HandClock::noon},
                      .subgroup = {},
                      .piece = {},
                      .tests = {{.id = 1, .item = "Weight", .condition = {}}},
                      .descriptors = {}};
    std::optional<Collector> collector;

    CollectCheck() { values.values["Weight"] = 100.0; }
};

inline Period every(int interval, int time_unit) { return {interval, time_unit, "", {}}; }
inline Period when(const std::string& item, int operation, Variant value) {
    return {0, 0, item, {operation, std::move(value)}};
}

} // namespace brx::collect
