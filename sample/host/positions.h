#pragma once

#include "common/error.h"
#include "common/values/variant.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace brx::host {

// Positions in the host's collections, which count from 1.

/// The number that a caller gave as a position; error 13 for what is no number.
inline std::int32_t position_in(const Variant& index) {
    if (const auto* word = std::get_if<std::int16_t>(&index)) return *word;
    if (const auto* number = std::get_if<std::int32_t>(&index)) return *number;
    if (const auto* real = std::get_if<double>(&index))
        if (std::abs(*real) < 1e9) return static_cast<std::int32_t>(std::lrint(*real));
    throw Error(error::type_mismatch);
}

/// The index from 0 of a position; error 9 for one that there is not.
template <class Part>
std::size_t index_of(const std::vector<std::shared_ptr<Part>>& parts, std::int32_t position) {
    if (position < 1 || static_cast<std::size_t>(position) > parts.size())
        throw Error(error::subscript_out_of_range);
    return static_cast<std::size_t>(position - 1);
}

/// The position of a part; 0 when it is not among them.
template <class Part>
std::int32_t position_of(const std::vector<std::shared_ptr<Part>>& parts, const Part* part) {
    for (std::size_t i = 0; i < parts.size(); ++i)
        if (parts[i].get() == part) return static_cast<std::int32_t>(i + 1);
    return 0;
}

template <class Part> void erase_at(std::vector<std::shared_ptr<Part>>& parts, std::size_t index) {
    parts.erase(parts.begin() + static_cast<std::ptrdiff_t>(index));
}

/// Error 5 for a code that is not between `least` and `most`.
template <class Integer> Integer checked_code(Integer code, int least, int most) {
    if (code < least || code > most) throw Error(error::invalid_procedure_call);
    return code;
}

} // namespace brx::host
