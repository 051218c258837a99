#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <vector>

namespace brx::checks {

/// Chance by a seed, the same with every compiler.
class Chance {
public:
    explicit Chance(std::uint64_t seed) : next_(seed) {}

    /// From 0, less than `end`, which is at least 1.
    int below(int end) { return static_cast<int>(next_() % static_cast<std::uint64_t>(end)); }
    int between(int first, int last) { return first + below(last - first + 1); }
    bool happens(int percent) { return below(100) < percent; }
    template <class List> const auto& one_of(const List& list) {
        return *(std::begin(list) + below(static_cast<int>(std::size(list))));
    }

private:
    std::mt19937_64 next_;
};

} // namespace brx::checks
