#pragma once

#include <string>
#include <vector>

namespace brx::checks {

enum class Verb {
    // a host's
    begins,  ///< a host of its own, with nothing open
    shows,   ///< a class, for the objects of kind `number`
    changes, ///< something of it, see `changes_of_a_host`
    fails,   ///< the call under way, with the error at `number`
    answers, ///< in the call under way the value at `number` instead
    lasts,   ///< the call under way, for so many milliseconds
    // a person's
    presses,
    chooses,
    double_clicks,
    expands,
    collapses,
    toggles,
    sets,
    goes_to,
    types,
    pastes,
    copies,
    hits,
    uses_accelerator,
    leaves,
    decides, ///< by the button `number` of a message box
    waits,   ///< for ticks
    stops
};

/// One thing that a person or the host does. It says by itself all that is needed to do it again; what has
/// become impossible by then is left out.
struct Deed {
    Verb verb = Verb::waits;
    std::string on = {}; ///< which control, class or change
    std::string text = {};
    int number = 0;
    int in_call = 0; ///< in which of the host's calls from then on; 0 at once
    bool operator==(const Deed&) const = default;
};
using Deeds = std::vector<Deed>;

/// One line of a file, and back. A line that is none is an error of type std::runtime_error.
std::string line_of(const Deed& deed);
Deed deed_of(const std::string& line);

/// As a person tells it.
std::string sentence_of(const Deed& deed);

} // namespace brx::checks
