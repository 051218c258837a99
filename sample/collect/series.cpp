#include "collect/series.h"

#include <algorithm>
#include <numeric>

namespace brx::collect {

double Subgroup::mean() const {
    if (pieces.empty()) return 0;
    return std::accumulate(pieces.begin(), pieces.end(), 0.0) / static_cast<double>(pieces.size());
}

void Series::begin(std::vector<Label> labels) {
    subgroups_.push_back({complete_ + 1, {}, std::move(labels), false});
    if (subgroups_.size() > kept_subgroups) subgroups_.pop_front();
}

void Series::take(double value, int size) {
    Subgroup& open = subgroups_.back();
    open.pieces.push_back(value);
    add({value, open.number});
    if (static_cast<int>(open.pieces.size()) < size) return;
    open.complete = true;
    ++complete_;
}

void Series::pass(double value) {
    add({value, 0});
    const auto last_taken = std::find_if(points_.rbegin(), points_.rend(),
                                         [](const Point& point) { return point.subgroup != 0; });
    if (last_taken - points_.rbegin() > static_cast<std::ptrdiff_t>(kept_in_between))
        points_.erase(last_taken.base());
}

void Series::break_off() {
    if (!is_open()) return;
    const std::int32_t number = subgroups_.back().number;
    subgroups_.pop_back();
    for (Point& point : points_)
        if (point.subgroup == number) point.subgroup = 0;
}

const Subgroup* Series::subgroup(std::int32_t number) const {
    const auto found = std::ranges::find(subgroups_, number, &Subgroup::number);
    return found == subgroups_.end() ? nullptr : &*found;
}

void Series::add(Point point) {
    points_.push_back(point);
    if (points_.size() > kept_points) points_.pop_front();
}

} // namespace brx::collect
