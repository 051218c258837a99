#pragma once

#include "classes/dialog_class.h"
#include "common/model/collection.h"

#include <cstdint>

namespace brx {

/// Lets the user choose one of the host's configured OPC servers.
class ServerSelect : private DialogClass {
public:
    explicit ServerSelect(Environment& environment) : DialogClass("ServerSelect", environment) {}

    /// The position of the server chosen last, from 1. Shows start without a choice whatever stands here.
    std::int16_t ServerIndex = 0;

    /// True when the user chose a server; ServerIndex is then its position.
    bool Show(const ObjectPtr& hlxOPCServers);

private:
    hlxOPCServersPtr ResolvehlxOPCServers(const ObjectPtr& object) const;
};

} // namespace brx
