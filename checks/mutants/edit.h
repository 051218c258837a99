#pragma once

#include "mutants/source.h"

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace brx::mutants {

/// Bytes of a source.
struct Range {
    std::size_t begin = 0;
    std::size_t end = 0;
};

/// Text around a range in the guarded source. `@@` stands for the edit's number.
struct Wrap {
    Range range;
    std::string before;
    std::string after;
};

/// One single edit to a source, and how it is compiled in beside the original to be chosen at run time: by a
/// text instead of its range, by texts around ranges, or not at all.
struct Edit {
    std::string kind = {};
    int line = 1;
    Range range;
    std::string from = {}; ///< what a person reads
    std::string to = {};
    std::string replacement = {}; ///< for the range, when the edit is made for real
    std::string instead = {};
    std::vector<Wrap> wraps = {};
    int number = 0;
    bool guarded = true;
    int region = -1; ///< the `constexpr` that it lies in
};

/// A `constexpr` that guarded edits need gone, and how far what it governs reaches.
struct Region {
    Range keyword;
    Range extent;
    std::string instead;
};

/// Names that can stand for each other: the constants of a namespace or enumeration, by its name.
using NameGroups = std::map<std::string, std::vector<std::string>, std::less<>>;

/// Adds the groups that a source defines.
void collect_name_groups(const Source& source, NameGroups& groups);

/// All edits of a source in their order, without numbers.
std::vector<Edit> edits_of(const Source& source, const NameGroups& groups);
std::vector<Region> regions_of(const Source& source);

// The kinds of edits, each with its own file.
void find_constants(const Source& source, std::vector<Edit>& edits);
void find_texts(const Source& source, std::vector<Edit>& edits);
void find_names(const Source& source, const NameGroups& groups, std::vector<Edit>& edits);
void find_operators(const Source& source, std::vector<Edit>& edits);
void find_conditions(const Source& source, std::vector<Edit>& edits);
void find_statements(const Source& source, std::vector<Edit>& edits);

} // namespace brx::mutants
