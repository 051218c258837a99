#pragma once

#include "mutants/catalogue.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace brx::mutants {

/// So many edits, the same ones for the same seed; all of them when there are no more.
std::vector<const Edit*> drawn(const Catalogue& catalogue, std::uint64_t seed, std::size_t how_many);

/// A run of a check program: which checks, and when it counts as hanging.
struct Turn {
    int seconds;
    std::string filter;
};

/// The runs that an edit is tried with, one after another: the checks that reach it, first those that reach
/// little else. None when nothing reaches it; everything when it is reached outside any check. `reach` has a
/// line for each check: its name, its milliseconds, the edits.
std::vector<Turn> turns_for(std::string_view reach, const std::string& number);

/// A text without line breaks and tabs, for a table.
std::string one_line(std::string text);

} // namespace brx::mutants
