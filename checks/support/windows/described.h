#pragma once

#include "forms/reading.h"

#include <windows.h>

#include <string>
#include <vector>

namespace brx::checks {

/// What a form or one of its controls holds, as the form's window tells it in answer to "brx.Describe".
struct Described {
    std::string name;
    std::string kind;
    Reading held;
};

/// The whole answer; "" when there is none.
std::wstring answer_of(HWND form, int most_lines);

/// The form first, then its controls.
std::vector<Described> described(HWND form, int most_lines);

/// Where the windows show something else than the form and its controls hold, a line each. On the form's
/// thread.
std::string differences_in(HWND form);

} // namespace brx::checks
