#pragma once

#include <windows.h>

#include <array>
#include <string>

namespace brx::checks {

/// While this lives, the system's viewer of HTML help opens nothing in this process: it notes what it is
/// asked for and says that it is shown. One at a time.
class WatchedHelp {
public:
    WatchedHelp();
    ~WatchedHelp();
    WatchedHelp(const WatchedHelp&) = delete;
    WatchedHelp& operator=(const WatchedHelp&) = delete;

    /// What it was asked for last, as "file at topic", "" for nothing.
    static std::string shown();

private:
    using Code = std::array<unsigned char, 14>;

    void write(const Code& code) const;

    HMODULE viewer_;
    void* entry_ = nullptr;
    Code before_{};
};

} // namespace brx::checks
