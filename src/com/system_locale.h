#pragma once

#include "common/values/locale.h"

#include <cstdint>

namespace brx {

/// The regional settings of the user, with what he changed of them.
Locale system_locale();

/// The settings of a locale by its identifier. What the system cannot tell stays as in US English.
Locale system_locale(std::uint32_t identifier);

} // namespace brx
