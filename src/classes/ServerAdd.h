#pragma once

#include "classes/dialog_class.h"
#include "common/model/collection.h"

#include <cstdint>

namespace brx {

/// Lets the user find an OPC server on a node and add it to the host's collection.
class ServerAdd : private DialogClass {
public:
    explicit ServerAdd(Environment& environment) : DialogClass("ServerAdd", environment) {}

    /// The position of the server added last, from 1.
    std::int16_t ServerIndex = 0;

    /// True when the user added a server; ServerIndex is then the new entry's position.
    bool Show(const ObjectPtr& hlxOPCServers);

private:
    hlxOPCServersPtr ResolvehlxOPCServers(const ObjectPtr& object) const;
};

} // namespace brx
