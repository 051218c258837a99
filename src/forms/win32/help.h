#pragma once

#include <windows.h>

#include <string>

namespace brx {

/// Opens a help file at a topic (0 for its first page) in the system's viewer for its kind: HTML help, or the
/// older help for files whose name ends in .hlp. False when there is no such file, error 429 when there is no
/// such viewer.
bool open_help_file(HWND over, const std::wstring& file, DWORD topic);

} // namespace brx
