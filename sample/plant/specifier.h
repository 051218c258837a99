#pragma once

#include "common/values/variant.h"
#include "plant/opc_errors.h"

#include <algorithm>
#include <cstddef>
#include <string>

namespace brx::plant {

/// Where in a collection an item specifier points: a position from 1 (16 or 32-bit integer) or a name (exact
/// case). Gives the index from 0; fails as an invalid argument for anything else.
template <class Collection, class NameOf>
std::size_t position_of(const Variant& specifier, const Collection& collection, NameOf&& name_of) {
    std::int64_t position = 0;
    if (const auto* word = std::get_if<std::int16_t>(&specifier)) position = *word;
    if (const auto* number = std::get_if<std::int32_t>(&specifier)) position = *number;
    if (const auto* name = std::get_if<std::string>(&specifier)) {
        const auto found =
            std::ranges::find_if(collection, [&](const auto& element) { return name_of(element) == *name; });
        if (found != collection.end()) position = found - collection.begin() + 1;
    }
    if (position < 1 || position > static_cast<std::int64_t>(collection.size()))
        throw failure(com_error::invalid_argument);
    return static_cast<std::size_t>(position - 1);
}

} // namespace brx::plant
