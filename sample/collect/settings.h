#pragma once

#include "common/values/variant.h"

#include <cstdint>
#include <string>
#include <vector>

namespace brx::collect {

// What a configuration says about its collection, as it was at one moment.

/// An operator code of the dialogs and the value to compare with.
struct Condition {
    int operation = 0; ///< 0 always, 1 =, 2 >, 3 >=, 4 <, 5 <=, 6 <>
    Variant value;
};

/// Begins a subgroup or a piece: the clock, an item, either of both, or nothing but the one before.
struct Period {
    int interval = 0;  ///< 0 for not by the clock
    int time_unit = 0; ///< 0 seconds to 7 years, -1 for none
    std::string item;  ///< "" for no trigger
    Condition condition;

    bool has_clock() const { return interval > 0 && time_unit >= 0; }
    bool has_trigger() const { return !item.empty(); }
};

/// What becomes of a value: the save-as codes.
enum class SaveAs { actual, absolute, reversed, constant };

struct TestSettings {
    std::int64_t id = 0;
    std::int64_t characteristic = 0;
    std::string item;
    bool own_trigger = false; ///< it takes its own pieces, when its item changes
    Condition condition;
    SaveAs save_as = SaveAs::actual;
    double constant = 0;
};

/// Kept beside a subgroup: texts, or "(%" item ")" for what that item says.
struct DescriptorSettings {
    int type = 0;
    std::string item;
    std::string group;
};

struct Settings {
    bool active = true;
    int update_rate = 0;  ///< milliseconds between two looks at the values; 0 for always
    double dead_band = 0; ///< percent of an item's range
    int subgroup_size = 1;
    Date from; ///< the intervals count from here, local time
    Period subgroup;
    Period piece;
    std::vector<TestSettings> tests;
    std::vector<DescriptorSettings> descriptors;
};

} // namespace brx::collect
