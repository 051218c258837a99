#pragma once

#include "common/model/collection.h"
#include "forms/environment.h"

#include <cstdint>

namespace brx {

/// Lets the user find an OPC server on a node and add it to the host's collection.
class ServerAdd : private Module {
public:
    explicit ServerAdd(Environment& environment)
        : Module("ServerAdd", environment.errors), environment_(environment) {}

    /// The position of the server added last, from 1.
    std::int16_t ServerIndex = 0;

    /// True when the user added a server; ServerIndex is then the new entry's position.
    bool Show(const ObjectPtr& hlxOPCServers);

private:
    hlxOPCServersPtr ResolvehlxOPCServers(const ObjectPtr& object) const;

    Environment& environment_;
};

} // namespace brx
