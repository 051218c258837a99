#pragma once

#include "collect/sampling.h"
#include "collect/series.h"
#include "collect/settings.h"

#include <map>

namespace brx::collect {

/// Collects the values of a configuration's tests. Subgroups begin for all tests together, and each test
/// fills its own; it heeds the next beginning when its subgroup is complete.
class Collector {
public:
    explicit Collector(Settings settings);

    /// Goes on with other settings. Complete subgroups stay, those that are not are broken off; a test with
    /// another characteristic, item or way to save starts afresh.
    void take_over(Settings settings);
    /// To be called several times a second, with the local time: collects what is due.
    void tick(Values& values, Date now);

    const Settings& settings() const { return settings_; }
    /// What was collected of a test, by its id; empty for one that is not known.
    const Series& series(std::int64_t test) const;
    const TestSettings* test(std::int64_t id) const;
    /// Whether the item of a test has a value now that is a number.
    bool has_number(std::int64_t test) const;

private:
    void collect(const TestSettings& test, bool subgroup_begins, bool piece_is_due);
    std::vector<Label> labels() const;
    std::string told(const std::string& text) const;
    void watch_items();

    Settings settings_;
    Feed feed_;
    Sampling subgroups_;
    Sampling pieces_;
    std::map<std::int64_t, Series> series_;
};

/// The value as it is saved; none for what is no finite number.
std::optional<double> saved(const TestSettings& test, const Variant& value);

} // namespace brx::collect
