#pragma once

#include "common/common_tools.h"
#include "forms/environment.h"

namespace brx {

/// Shows the status of a connected OPC server.
class ServerInformation : private Module {
public:
    explicit ServerInformation(Environment& environment)
        : Module("ServerInformation", environment.errors),
          environment_(environment),
          tools_(environment.errors) {}

    /// True once the dialog has closed; false when there was no server to show.
    bool Show(const ObjectPtr& OPCServer);

private:
    Environment& environment_;
    CommonTools tools_;
};

} // namespace brx
