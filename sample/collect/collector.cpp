#include "collect/collector.h"

#include "collect/reference.h"
#include "collect/trigger.h"
#include "common/trap.h"
#include "common/values/convert.h"

#include <algorithm>
#include <cmath>

namespace brx::collect {

std::optional<double> saved(const TestSettings& test, const Variant& value) {
    if (test.save_as == SaveAs::constant) return number_in(test.constant);
    const auto number = number_in(value);
    if (!number) return std::nullopt;
    if (test.save_as == SaveAs::absolute) return std::abs(*number);
    return test.save_as == SaveAs::reversed ? -*number : *number;
}

Collector::Collector(Settings settings)
    : settings_(std::move(settings)),
      feed_(settings_.update_rate, settings_.dead_band),
      subgroups_(settings_.subgroup, settings_.from),
      pieces_(settings_.piece, settings_.from) {
    watch_items();
}

void Collector::take_over(Settings settings) {
    Collector next(std::move(settings));
    for (const TestSettings& now : next.settings_.tests) {
        const TestSettings* before = test(now.id);
        if (!before || before->characteristic != now.characteristic || before->item != now.item ||
            before->save_as != now.save_as)
            continue;
        Series& kept = series_[now.id];
        kept.break_off();
        next.series_[now.id] = std::move(kept);
    }
    *this = std::move(next);
}

void Collector::watch_items() {
    feed_.watch(settings_.subgroup.item);
    feed_.watch(settings_.piece.item);
    for (const TestSettings& test : settings_.tests) feed_.watch(test.item);
    for (const DescriptorSettings& descriptor : settings_.descriptors) {
        feed_.watch(referred_item(descriptor.item));
        feed_.watch(referred_item(descriptor.group));
    }
}

void Collector::tick(Values& values, Date now) {
    if (!settings_.active) return;
    feed_.look(values, now);
    const bool subgroup_begins = subgroups_.is_due(feed_, now) || subgroups_.is_free();
    const bool piece_is_due = pieces_.is_due(feed_, now);
    for (const TestSettings& test : settings_.tests) collect(test, subgroup_begins, piece_is_due);
}

void Collector::collect(const TestSettings& test, bool subgroup_begins, bool piece_is_due) {
    Series& series = series_[test.id];
    if (subgroup_begins && !series.is_open()) series.begin(labels());
    const auto value = feed_.value(test.item);
    const auto number = value ? saved(test, *value) : std::nullopt;
    if (!number) return;
    const bool changed = feed_.has_changed(test.item);
    bool due = piece_is_due || (pieces_.is_free() && changed);
    if (test.own_trigger) due = changed && holds(test.condition, *value);
    if (due && series.is_open())
        series.take(*number, settings_.subgroup_size);
    else if (changed)
        series.pass(*number);
}

std::vector<Label> Collector::labels() const {
    std::vector<Label> all;
    for (const DescriptorSettings& each : settings_.descriptors)
        all.push_back({each.type, told(each.item), told(each.group)});
    return all;
}

std::string Collector::told(const std::string& text) const {
    const std::string item = referred_item(text);
    if (item.empty()) return text;
    std::string said;
    if (const auto value = feed_.value(item)) attempt([&] { said = to_text(*value, Locale{}); });
    return said;
}

const Series& Collector::series(std::int64_t test) const {
    static const Series none;
    const auto found = series_.find(test);
    return found == series_.end() ? none : found->second;
}

const TestSettings* Collector::test(std::int64_t id) const {
    const auto found = std::ranges::find(settings_.tests, id, &TestSettings::id);
    return found == settings_.tests.end() ? nullptr : &*found;
}

bool Collector::has_number(std::int64_t id) const {
    const TestSettings* wanted = test(id);
    const auto value = wanted ? feed_.value(wanted->item) : std::nullopt;
    return value && saved(*wanted, *value).has_value();
}

} // namespace brx::collect
