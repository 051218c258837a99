#pragma once

#include "win32/com_ptr.h"

#include <windows.h>

#include <oleacc.h>

#include <string>

namespace brx::checks {

// What a screen reader says of a control, in any process.

/// What its IAccessible is asked for says so.
com_ptr<IAccessible> accessible_of(HWND control);
struct Spoken {
    std::string name;
    long role = 0;
    long state = 0;
    std::string action; ///< what its default action is called
};
Spoken spoken_of(HWND control);

/// What a control is called. Of lists that drop down and dates that is the label just before them, as
/// Windows has it; other systems know that of text boxes only.
std::string spoken_name_of(HWND control);

} // namespace brx::checks
