#pragma once

#include "scenario.h"

#include <string>
#include <vector>

namespace brx::checks {

/// Each call that a story makes to the host, in order.
inline Lines calls_of(const Story& story) {
    Lines calls;
    play([&](Play& its) {
        story(its);
        calls = its.host.calls.members();
    });
    return calls;
}

/// One call a line, so that a difference shows as in a text.
inline std::string listed(const Lines& calls) {
    std::string text;
    for (const std::string& call : calls) text += call + "\n";
    return text;
}

/// The same from a list with several calls on a line, each ending with a semicolon.
inline std::string listed(std::string calls) {
    std::string text;
    std::size_t from = 0;
    for (std::size_t end; (end = calls.find(';', from)) != std::string::npos; from = end + 1) {
        const std::size_t begin = calls.find_first_not_of(" \n", from);
        text += calls.substr(begin, end - begin) + "\n";
    }
    return text;
}

} // namespace brx::checks
