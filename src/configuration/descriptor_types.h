#pragma once

#include <array>
#include <cstdint>

namespace brx::descriptor_type {

// The kinds of descriptor, by the codes that the host stores.
inline constexpr std::int32_t part = 0;
inline constexpr std::int32_t process = 1;
inline constexpr std::int32_t job = 2;
inline constexpr std::int32_t lot = 3;
inline constexpr std::int32_t shift = 4;
inline constexpr std::int32_t user_defined_subgroup = 5;
inline constexpr std::int32_t user_defined_piece = 6;
inline constexpr std::int32_t serial_number = 7;
inline constexpr std::int32_t subgroup_comment = 8;
inline constexpr std::int32_t count = 9;

/// What a configuration has at most one of, and what it may have any number of, as they are offered.
inline constexpr std::array<std::int16_t, 7> once_only = {part,          process,         job, lot, shift,
                                                          serial_number, subgroup_comment};
inline constexpr std::array<std::int16_t, 2> repeatable = {user_defined_subgroup, user_defined_piece};

/// Whether its value comes from an item or a plain text alone: no group, no record of the database.
constexpr bool is_item_only(std::int32_t code) {
    return code == lot || code == serial_number || code == subgroup_comment;
}

} // namespace brx::descriptor_type
