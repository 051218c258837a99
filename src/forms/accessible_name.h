#pragma once

#include "forms/form.h"

#include <string>

namespace brx {

/// What a screen reader calls a control that the focus can be on: by its own words, by its caption, or by the
/// label or the frame just before it in the tab order. "" where it has none of these.
std::string accessible_name_of(const Control& control);

} // namespace brx
