#pragma once

#include <windows.h>

#include <string>
#include <string_view>

namespace brx {

/// The system's form of a text, and back. Nothing is lost either way.
std::wstring to_wide(std::string_view text);
/// The same into a text that is there already, for texts by the thousand.
void to_wide(std::string_view text, std::wstring& result);
std::string from_wide(std::wstring_view text);

/// The whole text of a window of this thread.
std::wstring window_text(HWND window);

} // namespace brx
