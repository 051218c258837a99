#pragma once

#include "forms/engine.h"

#include <windows.h>

#include <functional>
#include <string>

namespace brx {

/// The programs that show help files.
struct HelpViewers {
    /// Shows a file by a command of the viewer's and the topic that goes with it. False when it does not.
    using Viewer = std::function<bool(HWND over, const std::wstring& file, UINT command, DWORD topic)>;

    Viewer html;  ///< HTML help
    Viewer older; ///< for files whose name ends in .hlp

    static HelpViewers of_the_system();
};

/// Opens a help file at a topic, with 0 at its first page. The name may go on with what its viewer
/// understands, "::" and a page or ">" and a window. Without a whole path the file is looked for beside the
/// program and in the current folder, and a bare name also where help was registered under it and in the
/// system's folder for help.
HelpOutcome open_help_file(HWND over, const std::wstring& name, DWORD topic, const HelpViewers& viewers);

} // namespace brx
