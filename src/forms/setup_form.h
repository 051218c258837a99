#pragma once

#include "forms/form.h"

#include <cstdint>

namespace brx {

/// What every dialog does as it loads: F1 opens the host's help file at the dialog's topic. Steps that fail
/// are skipped in silence.
void SetupForm(Form& form, std::int16_t help_topic);

} // namespace brx
