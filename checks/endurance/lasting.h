#pragma once

#include "endurance/footprint.h"

#include <string>

namespace brx::checks {

/// What a host does again and again, watched from the first tenth of the times on: by then the system has
/// made what it makes once.
class Lasting {
public:
    Lasting(const char* what, bench::LastingHost& host, int times)
        : what_(what), host_(host), times_(times) {}

    /// It was done once more. Ten times between the first and the last it is measured what there is.
    void count();
    bool is_done() const { return done_ >= times_; }
    /// Fails where something has grown, and prints a line of the table. So many blocks stay each time with a
    /// bare dialog too.
    void close(int blocks_of_the_system = 0) const;

private:
    std::string what_;
    bench::LastingHost& host_;
    int times_;
    int done_ = 0;
    Footprint mark_;
    Footprint latest_;
    std::string course_; ///< of the growing numbers, for the one who looks for the cause
};

/// A number from the environment, from 1,000 up: fewer would not tell growth from what is spared. Otherwise
/// the usual one; throws on anything else.
int times_from_environment(const char* name, int usual);

} // namespace brx::checks
