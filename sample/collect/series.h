#pragma once

#include "collect/settings.h"

#include <cstdint>
#include <deque>
#include <string>
#include <vector>

namespace brx::collect {

/// A value that came, as it is or would be saved.
struct Point {
    double value = 0;
    std::int32_t subgroup = 0; ///< its number from 1; 0 when it was not collected
    bool operator==(const Point&) const = default;
};

/// What is kept beside a subgroup.
struct Label {
    int type = 0;
    std::string item;
    std::string group;
    bool operator==(const Label&) const = default;
};

struct Subgroup {
    std::int32_t number = 0; ///< from 1
    std::vector<double> pieces;
    std::vector<Label> labels;
    bool complete = false;

    double mean() const;
};

/// What was collected of one test, and what came in between. Old ones make room for new ones.
class Series {
public:
    static constexpr std::size_t kept_points = 60;
    static constexpr std::size_t kept_subgroups = 60;
    /// Of the values between two that were collected, only the last few are kept.
    static constexpr std::size_t kept_in_between = 8;

    void begin(std::vector<Label> labels);
    /// Takes a piece; the subgroup is complete when it has so many.
    void take(double value, int size);
    /// A value that came and was not collected.
    void pass(double value);
    /// Forgets the subgroup that is not complete; its pieces count as not collected.
    void break_off();

    bool is_open() const { return !subgroups_.empty() && !subgroups_.back().complete; }
    std::int32_t complete_subgroups() const { return complete_; }
    std::size_t pieces_of_the_open_one() const { return is_open() ? subgroups_.back().pieces.size() : 0; }
    /// The oldest first.
    const std::deque<Point>& points() const { return points_; }
    const std::deque<Subgroup>& subgroups() const { return subgroups_; }
    /// By its number; null when it is not kept any more.
    const Subgroup* subgroup(std::int32_t number) const;

private:
    void add(Point point);

    std::deque<Point> points_;
    std::deque<Subgroup> subgroups_;
    std::int32_t complete_ = 0;
};

} // namespace brx::collect
