#pragma once

#include <windows.h>

#include <string>
#include <utility>
#include <vector>

namespace brx::checks {

/// Watches the windows that this thread opens on the screen; one at a time.
class OpenedWindows {
public:
    OpenedWindows();
    OpenedWindows(const OpenedWindows&) = delete;
    OpenedWindows& operator=(const OpenedWindows&) = delete;
    ~OpenedWindows();

    /// How many windows with a title bar opened.
    int count() const;

    /// The title and the text of each message box among them that was closed at once.
    const std::vector<std::pair<std::wstring, std::wstring>>& messages() const;

    /// Closes each of them by its close box as soon as it becomes active.
    void close_at_once();

private:
    HHOOK hook_;
};

} // namespace brx::checks
