#pragma once

#include "bench/opening.h"
#include "bench/series.h"

namespace brx::bench {

/// Runs of the floor and the dialog, one right after the other, and both with next to nothing to show.
class Comparison {
public:
    template <class Subject>
    Comparison(Opening (*floor)(const Subject&), Opening (*dialog)(const Subject&), const Subject& subject,
               const Subject& least, int rounds = 7) {
        for (int round = 0; round < rounds; ++round) {
            least_floor_.add(floor(least).shown);
            least_dialog_.add(dialog(least).shown);
            note(floor(subject), floor_shown_, floor_expanded_);
            note(dialog(subject), dialog_shown_, dialog_expanded_);
        }
    }

    /// Without what it takes to open the window.
    Series floor_shown() const { return floor_shown_.over(least_floor_); }
    Series dialog_shown() const { return dialog_shown_.over(least_dialog_); }
    const Series& floor_expanded() const { return floor_expanded_; }
    const Series& dialog_expanded() const { return dialog_expanded_; }

private:
    static void note(const Opening& opening, Series& shown, Series& expanded) {
        shown.add(opening.shown);
        expanded.add(opening.expanded);
    }

    Series least_floor_, least_dialog_;
    Series floor_shown_, dialog_shown_;
    Series floor_expanded_, dialog_expanded_;
};

} // namespace brx::bench
