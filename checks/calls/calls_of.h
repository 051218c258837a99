#pragma once

#include "stories/calls.h"

#include <string>

namespace brx::checks {

/// Each call that a story makes to the host, in order.
inline Calls calls_of(const Story& story) {
    Calls calls;
    play([&](Play& its) {
        CallsMade made(its);
        story(its);
        calls = made.since_then();
    });
    return calls;
}

/// Compares with a list that has several calls on a line, each ending with a semicolon; one call a line, so
/// that a difference shows as in a text.
inline void expect_calls(const Calls& calls, const std::string& expected) {
    std::string made;
    for (const std::string& call : calls) made += call + "\n";
    std::string listed;
    std::size_t from = 0;
    for (std::size_t end; (end = expected.find(';', from)) != std::string::npos; from = end + 1) {
        const std::size_t begin = expected.find_first_not_of(" \n", from);
        listed += expected.substr(begin, end - begin) + "\n";
    }
    EXPECT_EQ(made, listed);
}

} // namespace brx::checks
