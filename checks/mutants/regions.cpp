#include "mutants/edit.h"

#include <algorithm>

namespace brx::mutants {
namespace {

/// Whether a function is declared, and where what is declared ends.
struct Declared {
    bool function = false;
    std::size_t end = 0;
};

Declared declared_at(const Source& source, std::size_t index) {
    std::size_t i = index;
    while (source.word(i) != "(" && source.word(i) != "=" && source.word(i) != "{" && source.word(i) != ";" &&
           source.word(i) != "operator" && i + 1 < source.size())
        i = source.partner(i) > i ? source.partner(i) + 1 : i + 1;
    const bool function = source.word(i) == "(" || source.word(i) == "operator";
    while (i + 1 < source.size() && source.word(i) != ";" && !(function && source.word(i) == "{"))
        i = source.partner(i) > i ? source.partner(i) + 1 : i + 1;
    return {function, source.partner(i)};
}

/// What makes the declaration hold without `constexpr`.
std::string instead_of(const Source& source, std::size_t index, bool function) {
    const bool is_inline = source.word(index - 1) == "inline" || source.word(index + 1) == "inline";
    if (source.inside(index) == Inside::type) return function || is_inline ? "" : "inline";
    if (source.inside(index) != Inside::names || is_inline) return "";
    return function ? "inline" : "static";
}

/// Nothing that a program does: what only the compiler reads of a `static_assert`.
std::vector<Range> assertions_of(const Source& source) {
    std::vector<Range> ranges;
    for (std::size_t i = 0; i + 1 < source.size(); ++i)
        if (source.word(i) == "static_assert")
            ranges.push_back({source.token(i).begin, source.token(source.partner(i + 1)).end});
    return ranges;
}

bool is_within(const Range& inner, const Range& outer) {
    return inner.begin >= outer.begin && inner.end <= outer.end;
}

} // namespace

std::vector<Region> regions_of(const Source& source) {
    std::vector<Region> regions;
    for (std::size_t i = 0; i < source.size(); ++i) {
        if (source.word(i) != "constexpr" || source.word(i + 1) == "(") continue;
        const Declared declared = declared_at(source, i + 1);
        const Token& token = source.token(i);
        regions.push_back({.keyword = {token.begin, token.end},
                           .extent = {token.begin, source.token(declared.end).end},
                           .instead = instead_of(source, i, declared.function)});
    }
    return regions;
}

std::vector<Edit> edits_of(const Source& source, const NameGroups& groups) {
    std::vector<Edit> edits;
    find_constants(source, edits);
    find_texts(source, edits);
    find_names(source, groups, edits);
    find_operators(source, edits);
    find_conditions(source, edits);
    find_statements(source, edits);
    for (const Range& assertion : assertions_of(source))
        std::erase_if(edits, [&](const Edit& edit) { return is_within(edit.range, assertion); });
    const std::vector<Region> regions = regions_of(source);
    for (Edit& edit : edits)
        for (std::size_t i = 0; i < regions.size(); ++i)
            if (is_within(edit.range, regions[i].extent)) edit.region = static_cast<int>(i);
    std::stable_sort(edits.begin(), edits.end(),
                     [](const Edit& a, const Edit& b) { return a.range.begin < b.range.begin; });
    return edits;
}

} // namespace brx::mutants
