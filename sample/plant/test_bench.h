#pragma once

#include "plant/description.h"

namespace brx::plant {

/// Servers whose address spaces and browsers are what an item browser has to stand: a server for each.
std::span<const ServerDescription> test_bench();

} // namespace brx::plant
