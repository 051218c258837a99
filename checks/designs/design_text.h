#pragma once

#include "forms/form.h"

#include <string>

namespace brx::checks {

/// What a form is designed with, for a person to read: the form, then a line for each control in the order of
/// their creation. Whatever a control has as every other one of its kind is left out.
std::string design_text(const Form& form);

} // namespace brx::checks
