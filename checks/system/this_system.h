#pragma once

#include <windows.h>

#include <string>

// The system that the checks run on. What has to be different under Wine asks here.

namespace brx::checks {

/// Wine's version; empty on a real Windows.
std::string wine_version();
inline bool is_wine() { return !wine_version().empty(); }

/// The process has the rights of an administrator, not only the user.
bool is_elevated();

/// The user's settings and the language of the system's messages are those of the United States, and nobody
/// has changed signs or orders of numbers and dates.
bool has_us_settings();

/// The main screen, in pixels as Windows tells them to this program.
SIZE screen_size();

/// "Windows 10.0.19045", of Windows itself and whatever the program's manifest says.
std::string windows_version();

} // namespace brx::checks
