#pragma once

#include "adding.h"
#include "configuring.h"

#include <string>
#include <vector>

namespace brx::checks {

// What the person is told of errors that the host does not take.

inline Message told(std::int32_t number, const std::string& description, const std::string& place) {
    return {.text = "Error " + std::to_string(number) + ": " + description + "\r\n\r\n" + place,
            .style = message::critical,
            .title = "brxOpcDlgs6"};
}

/// Of the n-th call that the host has got.
inline Message told_of_call(const Play& its, std::size_t n, const std::string& place) {
    const std::string member = n == 0 ? "no call" : its.host.calls.made()[n - 1].member;
    return told(CallLog::failure_number, CallLog::failure_text(static_cast<int>(n), member), place);
}

/// Of the host's call that failed last.
inline Message told_of_failure(const Play& its, const std::string& place) {
    const std::vector<HostCall>& calls = its.host.calls.made();
    std::size_t n = calls.size();
    while (n > 0 && !calls[n - 1].failed) --n;
    return told_of_call(its, n, place);
}

/// Of the first one that failed after so many: what is then put back can fail as well.
inline Message told_of_failure_after(const Play& its, std::size_t calls, const std::string& place) {
    const std::vector<HostCall>& made = its.host.calls.made();
    std::size_t n = calls + 1;
    while (n <= made.size() && !made[n - 1].failed) ++n;
    return told_of_call(its, n <= made.size() ? n : 0, place);
}

/// What the timer tells of a server without groups, and the button of a trigger without its item.
inline const Message no_groups = told(error::object_not_set, "Object variable or With block variable not set",
                                      "dlgConfiguration.Timer1_Timer");
inline const Message no_trigger_item =
    told(error::subscript_out_of_range, "Subscript out of range", "dlgConfiguration.bnClose_Click");

/// A host without error libraries, whose server has no groups to tell of at any tick.
inline void nobody_to_tell_and_no_groups(Play& its) {
    its.host.has_no_error_library();
    its.host.connection->groups = nullptr;
}

/// A configuration that cannot be committed.
inline void a_trigger_without_its_item(Play& its) {
    a_filled_configuration(its);
    its.host.configuration->fields.subgroup_trigger_item = "Gone";
}

} // namespace brx::checks
