#include "mutants/edit.h"

#include <algorithm>

namespace brx::mutants {
namespace {

/// The names of the constants between two braces; none when there is anything else.
std::vector<std::string> constants_within(const Source& source, std::size_t open) {
    std::vector<std::string> names;
    const std::size_t close = source.partner(open);
    for (std::size_t i = open + 1; i < close;) {
        if (source.word(i) != "inline" || source.word(i + 1) != "constexpr") return {};
        while (i < close && source.word(i) != "=") ++i;
        names.emplace_back(source.word(i - 1));
        while (i < close && source.word(i) != ";") ++i;
        ++i;
    }
    return names;
}

std::vector<std::string> enumerators_within(const Source& source, std::size_t open) {
    std::vector<std::string> names;
    for (std::size_t i = open; i < source.partner(open); ++i)
        if ((i == open || source.word(i) == ",") && source.token(i + 1).kind == TokenKind::word)
            names.emplace_back(source.word(i + 1));
    return names;
}

bool is_label(const Source& source, std::size_t index) {
    return source.is_constant(index) || source.word(index - 1) == "::" ||
           source.word(index - 1) == "namespace";
}

} // namespace

void collect_name_groups(const Source& source, NameGroups& groups) {
    for (std::size_t i = 0; i < source.size(); ++i) {
        const bool space = source.word(i) == "namespace";
        const bool enumeration = source.word(i) == "enum" && source.word(i + 1) == "class";
        if (!space && !enumeration) continue;
        const std::string name(source.word(space ? i + 1 : i + 2));
        std::size_t open = i;
        while (open < source.size() && source.word(open) != "{" && source.word(open) != ";") ++open;
        if (source.word(open) != "{") continue;
        const auto names = space ? constants_within(source, open) : enumerators_within(source, open);
        if (names.size() < 2) continue;
        // Two enumerations of one name: which one is meant where is not known here.
        const auto [place, is_new] = groups.emplace(name, names);
        if (!is_new) place->second.clear();
    }
}

void find_names(const Source& source, const NameGroups& groups, std::vector<Edit>& edits) {
    for (std::size_t i = 0; i + 2 < source.size(); ++i) {
        if (source.word(i + 1) != "::" || is_label(source, i)) continue;
        const auto group = groups.find(source.word(i));
        if (group == groups.end()) continue;
        const auto& names = group->second;
        const auto name = std::find(names.begin(), names.end(), source.word(i + 2));
        if (name == names.end()) continue;
        const std::string& next = name + 1 == names.end() ? names.front() : name[1];
        const std::string from = group->first + "::" + *name;
        const std::string to = group->first + "::" + next;
        edits.push_back({.kind = "name",
                         .line = source.token(i).line,
                         .range = {source.token(i).begin, source.token(i + 2).end},
                         .from = from,
                         .to = to,
                         .replacement = to,
                         .instead = "(::brx_mutant::on(@@) ? " + to + " : " + from + ")"});
    }
}

} // namespace brx::mutants
