#include "collect/feed.h"

#include "collect/trigger.h"

#include <algorithm>
#include <cmath>

namespace brx::collect {

namespace {

constexpr double milliseconds_per_day = 86'400'000;

} // namespace

void Feed::watch(const std::string& item) {
    if (!item.empty()) items_.try_emplace(item);
}

bool Feed::is_news(const Variant& value, const Variant& told, std::optional<double> range) const {
    const auto from = number_in(told);
    const auto to = number_in(value);
    if (!from || !to || !range) return !is_the_same(value, told);
    return std::abs(*to - *from) > *range * dead_band_ / 100;
}

void Feed::look(Values& values, Date now) {
    for (auto& [id, item] : items_) item.changed = false;
    // Half a millisecond is more than a Date loses in rounding.
    const auto look = static_cast<std::int64_t>(
        std::floor((now.days * milliseconds_per_day + 0.5) / std::max(update_rate_, 1)));
    if (look == last_look_) return;
    last_look_ = look;
    for (auto& [id, item] : items_) {
        const auto value = values.value_of(id);
        const bool first = !item.value;
        if (value && !first && !is_news(*value, *item.value, values.range_of(id))) continue;
        item.changed = value && !first;
        item.value = value;
    }
}

std::optional<Variant> Feed::value(const std::string& item) const {
    const auto found = items_.find(item);
    return found == items_.end() ? std::nullopt : found->second.value;
}

bool Feed::has_changed(const std::string& item) const {
    const auto found = items_.find(item);
    return found != items_.end() && found->second.changed;
}

} // namespace brx::collect
