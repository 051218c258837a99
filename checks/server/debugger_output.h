#pragma once

#include <string>
#include <vector>

namespace brx::checks {

/// Hears what this process writes for a debugger while it lives; one at a time.
class DebuggerOutput {
public:
    DebuggerOutput();
    DebuggerOutput(const DebuggerOutput&) = delete;
    DebuggerOutput& operator=(const DebuggerOutput&) = delete;
    ~DebuggerOutput();

    const std::vector<std::wstring>& lines() const;

private:
    void* handler_;
};

} // namespace brx::checks
