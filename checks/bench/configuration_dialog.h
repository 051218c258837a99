#pragma once

#include "bench/configuration_host.h"
#include "bench/opening.h"
#include "bench/series.h"

#include <cstddef>

namespace brx::bench {

/// The component's dialog, shown as a host shows it, and closed as soon as it has nothing more to do. Throws
/// when its lists lack anything.
Opening open_configuration(const Holdings& holdings);

/// What unchanged ticks of the status cost, and the bare reads of the same things, in turn.
struct Ticks {
    Series reads;
    Series ticks;
    std::size_t messages = 0; ///< that the table got meanwhile
    bool painted = false;     ///< whether anything of the dialog had to be drawn again
    bool complete = false;    ///< all of them read the status, with the table in view
};

/// The same dialog with its status in view ticks so often in each run.
Ticks tick_configuration(const Holdings& holdings, int runs, int ticks_in_a_run);

} // namespace brx::bench
