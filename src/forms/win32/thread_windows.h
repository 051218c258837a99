#pragma once

#include <windows.h>

#include <vector>

namespace brx {

/// For its lifetime the windows that this thread had before take no input. Those that were disabled already
/// stay so, and windows made meanwhile are not touched.
class DisabledThreadWindows {
public:
    /// `but` is left to whoever else disables it.
    explicit DisabledThreadWindows(HWND but = nullptr);
    ~DisabledThreadWindows() { enable_again(); }
    DisabledThreadWindows(const DisabledThreadWindows&) = delete;
    DisabledThreadWindows& operator=(const DisabledThreadWindows&) = delete;

    /// Ends it early: windows must take input again before the one over them goes, or another program's
    /// window would come to the front.
    void enable_again() noexcept;

private:
    std::vector<HWND> windows_;
};

/// The host's window that a dialog belongs over: the active one of this thread, or else its uppermost one
/// with a caption. Tool windows stand for the window that owns them. Null when the host has none.
HWND host_window();

} // namespace brx
