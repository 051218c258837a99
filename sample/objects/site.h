#pragma once

#include "host/error_tally.h"
#include "host/log.h"
#include "host/opc_source.h"

#include <memory>

namespace brx::host {

/// What all objects of the sample host in this process have in common.
struct Site {
    Site();
    Site(const Site&) = delete;
    Site& operator=(const Site&) = delete;
    ~Site() = default;

    Log log;
    ErrorTally errors{log};
    std::shared_ptr<OpcSource> plant;
    std::shared_ptr<OpcSource> wrapper;
    std::shared_ptr<OpcSource> source; ///< the one of the two that is used
};

Site& site();

/// Seconds that pass, since the computer was started.
double seconds();

} // namespace brx::host
