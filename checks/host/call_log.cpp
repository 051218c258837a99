#include "host/call_log.h"

#include "common/trap.h"

#include <mutex>

namespace brx::checks {

namespace {

struct Remembered {
    std::mutex taken; ///< stages have threads of their own
    std::set<CallOfDialog> calls;
};

Remembered& remembered() {
    static Remembered all;
    return all;
}

} // namespace

std::string CallLog::current_location_text() { return current_location(); }

void CallLog::remember_who_calls(const std::string& member) {
    for (const std::string& module : current_modules()) {
        if (module == "CommonTools") continue; // somebody uses them
        const std::lock_guard held(remembered().taken);
        remembered().calls.insert({module, member.substr(0, member.find('('))});
        return;
    }
}

std::set<CallOfDialog> calls_of_all_dialogs() {
    const std::lock_guard held(remembered().taken);
    return remembered().calls;
}

} // namespace brx::checks
