#pragma once

#include "host/holdings.h"
#include "stage.h"

#include <cstddef>
#include <map>
#include <string>

namespace brx::checks {

class FakeHost;

/// What a host's calls did that the watch has to know of.
struct Disturbance {
    int failures = 0;            ///< calls that failed because a deed said so
    bool by_a_person = false;    ///< who did something meanwhile
    bool stopped = false;        ///< ever, perhaps, by a person; also what goes on after a message
    bool strange_answer = false; ///< ever
};

/// Looks after each deed whether the host and the reports to it are as they have to be; throws a Finding
/// where they are not.
class Watch {
public:
    Watch(FakeHost& host, Stage& stage);

    /// After a deed in which this happened.
    void look(const Disturbance& disturbance);
    /// When nothing is open any more.
    void look_at_the_end();

private:
    void look_at_reports(bool stopped);
    void look_at_failures(bool exactly);
    void look_at_objects(const Disturbance& disturbance);

    FakeHost& host_;
    Stage& stage_;
    std::size_t reports_seen_ = 0;
    std::size_t calls_seen_ = 0;
    std::string front_;
    std::map<const void*, Holding> holdings_;
};

} // namespace brx::checks
