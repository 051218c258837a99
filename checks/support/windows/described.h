#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace brx::checks {

/// What a form or one of its controls holds, as the form's window tells it in answer to "brx.Describe".
struct Described {
    std::string name;
    std::string kind;
    bool enabled = false;
    bool visible = false;
    int number = -1; ///< the selected line, row or tab, the value of a check box, whether a panel is in front
    int lines = 0;
    std::string text;
    std::vector<std::string> rows;    ///< of a tree, a list view, a tab strip
    std::vector<std::string> columns; ///< of a list view
};

/// The form first, then its controls. On the form's thread.
std::vector<Described> described(HWND form);

/// Where the windows show something else than the form and its controls hold, a line each. On the form's
/// thread.
std::string differences_in(HWND form);

} // namespace brx::checks
