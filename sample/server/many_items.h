#pragma once

#include "plant/description.h"

#include <span>

namespace brx::server {

/// The sample plant; its local computer has a server more when so many items are wanted.
std::span<const plant::NodeDescription> plant_with(unsigned items);

} // namespace brx::server
