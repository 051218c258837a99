#include "mutants/failures.h"

#include "mutants/guard.h"

#include <algorithm>
#include <charconv>
#include <functional>
#include <optional>
#include <sstream>

namespace brx::mutants {
namespace {

/// A place in a source that a message names.
struct Place {
    const File* file;
    int line;
    int column;
};

/// One error with everything that was said of it: the places most to the point first.
struct Failure {
    std::vector<Place> places;
    bool impossible = false;
    bool of_constant = false; ///< something was to be known to the compiler
};

std::optional<Place> place_of(std::string_view message, const Catalogue& catalogue) {
    const std::size_t colon = message.find(':');
    const std::size_t start = message.substr(0, colon).rfind("src/");
    if (colon == std::string_view::npos || start == std::string_view::npos) return std::nullopt;
    Place place{catalogue.file_at(message.substr(start, colon - start)), 0, 0};
    const char* const end = message.data() + message.size();
    const auto line = std::from_chars(message.data() + colon + 1, end, place.line);
    if (!place.file || line.ec != std::errc() || line.ptr == end || *line.ptr != ':') return std::nullopt;
    std::from_chars(line.ptr + 1, end, place.column);
    return place;
}

bool holds(std::string_view text, std::string_view part) { return text.find(part) != std::string_view::npos; }

/// Of one compilation: where a constant is missing, the other errors mostly follow from that.
void keep_causes(std::vector<Failure>& failures, std::size_t first) {
    const auto begin = failures.begin() + static_cast<std::ptrdiff_t>(first);
    const auto is_cause = [](const Failure& failure) { return failure.of_constant || failure.impossible; };
    if (std::any_of(begin, failures.end(), is_cause))
        failures.erase(std::remove_if(begin, failures.end(), std::not_fn(is_cause)), failures.end());
}

/// gcc tells the instantiations first, then the error, then its notes.
std::vector<Failure> failures_in(std::string_view log, const Catalogue& catalogue) {
    std::vector<Failure> failures;
    std::vector<Place> before;
    bool within = false;
    std::size_t first = 0;
    std::istringstream lines{std::string(log)};
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with("FAILED: ")) {
            keep_causes(failures, first);
            first = failures.size();
        }
        const std::optional<Place> place = place_of(line, catalogue);
        const bool error = holds(line, " error: ") || holds(line, " sorry, ");
        if (error) {
            failures.push_back({{}, holds(line, "no such edit"), holds(line, "constant")});
            if (place) failures.back().places.push_back(*place);
            failures.back().places.insert(failures.back().places.end(), before.begin(), before.end());
            before.clear();
            within = true;
        } else if (holds(line, "required from") || holds(line, "required by")) {
            if (within) before.clear();
            within = false;
            if (place) before.push_back(*place);
        } else if (holds(line, " note: ") && within && place) {
            failures.back().places.push_back(*place);
        }
    }
    keep_causes(failures, first);
    return failures;
}

/// The edits at a place: the smallest guard around it, or all of its line.
std::vector<const Edit*> edits_at(const Place& place) {
    const File& file = *place.file;
    const Guarded text = guarded(file.source, file.edits, file.regions);
    std::size_t line = 0;
    for (int n = 1; n < place.line; ++n) line = text.text.find('\n', line) + 1;
    const std::size_t at = line + static_cast<std::size_t>(place.column) - 1;
    std::vector<const Edit*> on_line;
    for (const Guarded::Placed& each : text.placed) {
        const Edit* const edit = &file.edits[each.edit];
        if (at >= each.range.begin && at < each.range.end) return {edit};
        if (edit->line == place.line) on_line.push_back(edit);
    }
    return on_line;
}

/// What cannot be exchanged is an operator: the sign of a sum, and else a comparison.
void keep_operators(std::vector<const Edit*>& edits) {
    for (const char* kind : {"sum", "comparison"}) {
        const auto is_other = [&](const Edit* edit) { return edit->kind != kind; };
        if (std::all_of(edits.begin(), edits.end(), is_other)) continue;
        std::erase_if(edits, is_other);
        return;
    }
}

/// With an edit all those of its region go, for its `constexpr` comes back.
void drop(const File& file, const Edit& edit, std::set<std::string>& keys) {
    if (edit.region < 0) {
        keys.insert(Catalogue::key(file, edit));
        return;
    }
    for (const Edit& each : file.edits)
        if (each.region == edit.region) keys.insert(Catalogue::key(file, each));
}

} // namespace

int learn_from(std::string_view log, const Catalogue& catalogue, Known& known) {
    const std::size_t before = known.unguarded.size() + known.impossible.size();
    for (const Failure& failure : failures_in(log, catalogue)) {
        for (const Place& place : failure.places) {
            std::vector<const Edit*> edits = edits_at(place);
            if (failure.impossible) keep_operators(edits);
            for (const Edit* edit : edits) {
                if (failure.impossible)
                    known.impossible.insert(Catalogue::key(*place.file, *edit));
                else
                    drop(*place.file, *edit, known.unguarded);
            }
            if (!edits.empty()) break;
        }
    }
    return static_cast<int>(known.unguarded.size() + known.impossible.size() - before);
}

} // namespace brx::mutants
