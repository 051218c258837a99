#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace brx::kit {

/// One check, as --gtest_filter takes it, and what its program told of it.
struct Told {
    std::string check;
    std::string text;
};

/// What a check program's log says.
struct Outcome {
    long long passed = 0;
    long long failed = 0;
    long long skipped = 0;
    /// It closed with "N passed, N failed, N skipped". One that did not has not come to its end, whatever its
    /// exit status says.
    bool closed = false;
    std::vector<Told> failures;
    std::vector<Told> skips; ///< the text is the reason
    /// The check that was under way when the program ended.
    std::string under_way;
};

Outcome outcome_of(std::istream& log);

/// How the program of a log came to its end.
struct End {
    bool in_time = true;
    unsigned long status = 0;
};

/// What is wrong with it beside its failed checks; empty where nothing is. `may_be_empty` where no check of
/// the program may have been asked for.
std::string complaint(const Outcome& outcome, const End& end, bool may_be_empty);

/// "3 passed, 0 failed, 1 skipped"
std::string closing_line(const Outcome& outcome);

} // namespace brx::kit
