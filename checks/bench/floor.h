#pragma once

#include "bench/address_space.h"
#include "bench/opening.h"

namespace brx::bench {

// The least that can be done: the calls that the dialog has to make, the names thrown away; then the native
// control filled with the same names in the cheapest way there is.

/// The leaves of a flat space in a list box.
Opening open_list(const AddressSpace& space);

/// The branches at the root in a tree view, and then those of the first branch.
Opening open_tree(const AddressSpace& space);

} // namespace brx::bench
