#include "mutants/guard.h"

#include <algorithm>

namespace brx::mutants {
namespace {

/// A text that comes instead of a range, which may be empty.
struct Change {
    Range range;
    int order; ///< among those at the same place
    std::string text;
    std::size_t edit;
};

constexpr std::size_t nobody = static_cast<std::size_t>(-1);

std::string numbered(std::string text, int number) {
    for (std::size_t at; (at = text.find("@@")) != std::string::npos;)
        text.replace(at, 2, std::to_string(number));
    return text;
}

struct Numbered {
    const Wrap* wrap;
    std::size_t edit;
};

/// Outer ones before inner ones.
std::vector<Numbered> wraps_of(const std::vector<Edit>& edits) {
    std::vector<Numbered> wraps;
    for (std::size_t i = 0; i < edits.size(); ++i)
        if (edits[i].guarded)
            for (const Wrap& wrap : edits[i].wraps) wraps.push_back({&wrap, i});
    std::stable_sort(wraps.begin(), wraps.end(), [](const Numbered& a, const Numbered& b) {
        const Range& x = a.wrap->range;
        const Range& y = b.wrap->range;
        return x.begin != y.begin ? x.begin < y.begin : x.end > y.end;
    });
    return wraps;
}

} // namespace

void unguard_crossing(std::vector<Edit>& edits) {
    std::vector<Range> open;
    for (const Numbered& each : wraps_of(edits)) {
        const Range& range = each.wrap->range;
        while (!open.empty() && open.back().end <= range.begin) open.pop_back();
        if (!open.empty() && open.back().end < range.end)
            edits[each.edit].guarded = false;
        else
            open.push_back(range);
    }
}

Guarded guarded(const Source& source, const std::vector<Edit>& edits, const std::vector<Region>& regions,
                const Edit* real) {
    std::vector<Change> changes;
    if (real) changes.push_back({real->range, 0, real->replacement, nobody});
    const auto within_real = [&](const Range& range) {
        return real && range.begin >= real->range.begin && range.end <= real->range.end;
    };
    int order = 0;
    for (const Numbered& each : wraps_of(edits)) {
        const Range& range = each.wrap->range;
        const int number = edits[each.edit].number;
        if (within_real(range)) continue;
        ++order;
        changes.push_back(
            {{range.begin, range.begin}, order, numbered(each.wrap->before, number), each.edit});
        // Before everything that opens there, inner ones first.
        changes.push_back({{range.end, range.end}, -order, numbered(each.wrap->after, number), each.edit});
    }
    std::vector<bool> opened(regions.size(), false);
    for (std::size_t i = 0; i < edits.size(); ++i) {
        const Edit& edit = edits[i];
        if (!edit.guarded) continue;
        if (edit.region >= 0) opened[static_cast<std::size_t>(edit.region)] = true;
        if (!edit.instead.empty() && !within_real(edit.range))
            changes.push_back({edit.range, order + 1, numbered(edit.instead, edit.number), i});
    }
    for (std::size_t i = 0; i < regions.size(); ++i)
        if (opened[i]) changes.push_back({regions[i].keyword, 0, regions[i].instead, nobody});
    std::stable_sort(changes.begin(), changes.end(), [](const Change& a, const Change& b) {
        return a.range.begin != b.range.begin ? a.range.begin < b.range.begin : a.order < b.order;
    });

    Guarded result;
    std::size_t position = 0;
    for (const Change& change : changes) {
        result.text += source.between(position, change.range.begin);
        const std::size_t begin = result.text.size();
        result.text += change.text;
        position = change.range.end;
        if (change.edit != nobody) result.placed.push_back({change.edit, {begin, result.text.size()}});
    }
    result.text += source.between(position, source.text().size());
    return result;
}

} // namespace brx::mutants
