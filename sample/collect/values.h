#pragma once

#include "common/values/variant.h"

#include <optional>
#include <string>

namespace brx::collect {

/// Where values come from.
class Values {
public:
    Values() = default;
    Values(const Values&) = delete;
    Values& operator=(const Values&) = delete;
    virtual ~Values() = default;

    /// The value that an item has now; none when it cannot be had.
    virtual std::optional<Variant> value_of(const std::string& item) = 0;
    /// From its lowest to its highest value; none for an item that tells no range.
    virtual std::optional<double> range_of(const std::string& item) = 0;
};

} // namespace brx::collect
