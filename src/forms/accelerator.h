#pragma once

#include "forms/form.h"
#include "forms/tab_strip.h"

namespace brx {

/// What Alt and a letter or digit mean on a form now. Only what shows and takes input answers.
struct Accelerator {
    Control* control = nullptr; ///< of several the next one after the focus; null for none
    bool alone = false;         ///< whether no other control has the same; only then it is also pressed
};

/// `character` is an ASCII letter in either case, or a digit.
Accelerator accelerator_of(const Form& form, char character);

/// Where its accelerator takes the focus: itself, or the next control when it is a label or a frame.
Control* focus_for(Control& control);

/// The tab with this accelerator, 0 for none.
int tab_with(const TabStrip& strip, char character);

} // namespace brx
