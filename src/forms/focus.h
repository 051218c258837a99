#pragma once

#include "forms/text_box.h"

namespace brx::hlxFocus {

/// Puts the focus into a text box and selects its whole text.
inline void select_text(TextBox& box) {
    box.set_focus();
    box.select_all();
}

} // namespace brx::hlxFocus
