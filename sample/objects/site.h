#pragma once

#include "host/log.h"
#include "host/opc_source.h"

#include <memory>

namespace brx::host {

/// What all objects of the sample host in this process have in common.
struct Site {
    Log log;
    std::shared_ptr<OpcSource> plant;
    std::shared_ptr<OpcSource> wrapper;
    std::shared_ptr<OpcSource> source; ///< the one of the two that is used
};

Site& site();

} // namespace brx::host
