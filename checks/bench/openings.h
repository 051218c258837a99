#pragma once

#include "bench/opening.h"

#include <string>
#include <vector>

namespace brx::bench {

/// What a window is made of, to be made again as the system makes it from a dialog template.
struct Template {
    struct Part {
        std::wstring window_class;
        std::wstring text;
        DWORD style = 0;
        DWORD ex_style = 0;
        RECT place{};
    };
    Part window;
    std::vector<Part> controls;
};

/// From `Show`, or from the press of the button that opens it, to the dialog that waits for input. Throws
/// when it does not open.
Opening open_dialog(const std::string& name);

/// What the open dialog is made of.
Template template_of(const std::string& name);

/// The same for a bare dialog with such controls, from the call that makes it.
Opening open_template(const Template& made);

} // namespace brx::bench
