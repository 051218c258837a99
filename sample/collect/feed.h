#pragma once

#include "collect/values.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>

namespace brx::collect {

/// Tells the values of items as an OPC group does: it looks at them once in an update rate, and tells one
/// that differs from the one told before, in an item with a range by more than the dead band.
class Feed {
public:
    Feed(int update_rate, double dead_band) : update_rate_(update_rate), dead_band_(dead_band) {}

    void watch(const std::string& item);
    /// Looks at the items when it is time to.
    void look(Values& values, Date now);

    /// What was told last; none while the value cannot be had.
    std::optional<Variant> value(const std::string& item) const;
    /// Whether the last look told another value than the one before.
    bool has_changed(const std::string& item) const;

private:
    struct Told {
        std::optional<Variant> value;
        bool changed = false;
    };
    bool is_news(const Variant& value, const Variant& told, std::optional<double> range) const;

    int update_rate_;
    double dead_band_;
    std::optional<std::int64_t> last_look_; ///< number of the update since a day long past
    std::map<std::string, Told> items_;
};

} // namespace brx::collect
