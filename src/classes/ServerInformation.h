#pragma once

#include "classes/dialog_class.h"
#include "common/common_tools.h"

namespace brx {

/// Shows the status of a connected OPC server.
class ServerInformation : private DialogClass {
public:
    explicit ServerInformation(Environment& environment)
        : DialogClass("ServerInformation", environment), tools_(environment.errors) {}

    /// True once the dialog has closed; false when there was no server to show.
    bool Show(const ObjectPtr& OPCServer);

private:
    CommonTools tools_;
};

} // namespace brx
