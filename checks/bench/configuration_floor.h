#pragma once

#include "bench/configuration_host.h"
#include "bench/opening.h"

namespace brx::bench {

// The least that can be done: the calls that the configuration dialog has to make, their answers thrown away.

/// The tests and the descriptors are read, and a native table each gets rows with equal texts in the cheapest
/// way that there is.
Opening list_configuration(const Holdings& holdings);

/// What a tick of the status reads.
void read_status(_hlxOPCConfiguration& configuration);

} // namespace brx::bench
