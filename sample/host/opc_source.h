#pragma once

#include "common/model/object.h"

#include <optional>
#include <string>

namespace brx::host {

/// Where the host's OPC automation servers come from.
class OpcSource {
public:
    OpcSource() = default;
    OpcSource(const OpcSource&) = delete;
    OpcSource& operator=(const OpcSource&) = delete;
    virtual ~OpcSource() = default;

    /// An automation server that is not connected: it can list the servers of a node.
    virtual ObjectPtr make() = 0;
    /// A connected one. Fails with the reason why it could not be connected.
    virtual ObjectPtr connect(const std::string& program_id, const std::string& node) = 0;
    /// The value that an item of such a connection has now; none when it is not good.
    virtual std::optional<Variant> value_of(const ObjectPtr& item) = 0;
    /// How far an item's values can lie apart; none when that is not known.
    virtual std::optional<double> range_of(const ObjectPtr& item) {
        static_cast<void>(item);
        return std::nullopt;
    }
    /// Drops the connection of one that `connect` gave.
    virtual void disconnect(const ObjectPtr& server) noexcept = 0;
};

} // namespace brx::host
