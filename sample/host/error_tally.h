#pragma once

#include "common/error.h"

#include <cstddef>
#include <string>
#include <vector>

namespace brx::host {

class Log;

/// An error as a component reports it.
struct ReportedError {
    std::int32_t number = 0;
    std::string description;
    std::string location; ///< object, full stop, procedure
};

/// Joins the reports of errors that are alike: of one number, from one place. What a timer reports is told
/// once for as long as it keeps coming, anything else whenever a person has met it again.
class ErrorTally {
public:
    explicit ErrorTally(Log& log) : log_(log) {}

    /// One more, by a clock in seconds. True when it is to be told in a box; otherwise one is open or was.
    bool add(const ReportedError& error, double now);
    /// What `add` wanted a box for is no longer told in it.
    void box_closed(const ReportedError& error, double now);
    /// "and 41 more like it": how many came after the one that is told; "" for none.
    std::string more_like(const ReportedError& error);
    /// The error that came last with how many are like it, in one line; "" when all is quiet.
    std::string last(double now);

private:
    struct Kind {
        ReportedError told;
        std::size_t more = 0;
        double began = 0;
        double came = 0;
        double quiet_from = 0; ///< unless more come or a box is open
        bool box_open = false;
    };
    void end_quiet_ones(double now);
    void end(const Kind& kind);
    std::vector<Kind>::iterator find(const ReportedError& error);

    Log& log_;
    std::vector<Kind> kinds_;
};

} // namespace brx::host
