#pragma once

#include "bench/address_space.h"
#include "bench/opening.h"

namespace brx::bench {

/// The component's dialog, shown as a host shows it, and closed as soon as it has nothing more to do. Before
/// that the first branch is opened where there is one. Throws when the dialog does not show the space.
Opening open_item_browser(const AddressSpace& space);

} // namespace brx::bench
