#pragma once

#include "bench/address_space.h"
#include "bench/opening.h"

namespace brx::bench {

// The least that can be done.

/// The calls by which the dialog learns the leaves of a flat space, the names thrown away.
Opening read_list(const AddressSpace& space);

/// The same of the branches at the root and then of those of the first branch, and a tree view filled with
/// them in the cheapest way there is.
Opening open_tree(const AddressSpace& space);

} // namespace brx::bench
