#pragma once

#include "conversions/generator.h"

#include <initializer_list>
#include <set>
#include <utility>

namespace brx::conversions {

/// The parts one behind the other. Unlike with +, they are made in this order by every compiler.
std::string in_order(std::initializer_list<std::string> parts);

/// Puts one or two mistakes into a text.
std::string with_mistakes(Random& random, std::string text);

/// Collects samples and leaves out what is there already.
template <class Sample> class Samples {
public:
    void add(const Sample& sample) {
        if (seen_.insert(sample).second) list_.push_back(sample);
    }
    std::size_t size() const { return list_.size(); }
    std::vector<Sample> list() && { return std::move(list_); }

private:
    std::set<Sample> seen_;
    std::vector<Sample> list_;
};

} // namespace brx::conversions
