#pragma once

#include "common/model/object.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace brx::host {

/// What an item says of itself. What has never said anything is empty and of quality 0.
struct Observation {
    Variant value;
    std::int32_t quality = 0;
    Date time; ///< UTC; in 1601 of a server that tells none
    bool operator==(const Observation&) const = default;
};

/// The items of a group as a server shows them. Every call can fail with the server's reason.
class GroupAccess {
public:
    GroupAccess() = default;
    GroupAccess(const GroupAccess&) = delete;
    GroupAccess& operator=(const GroupAccess&) = delete;
    virtual ~GroupAccess() = default;

    /// Makes the group active, and has the server tell what changes: at most so often in milliseconds, and by
    /// more than so many percent of an item's range.
    virtual void subscribe(std::int32_t update_rate, float dead_band) = 0;
    virtual bool is_subscribed() = 0;
    /// What is known of an item here, without asking the server.
    virtual Observation known(const std::string& item_id) = 0;
    /// What the server finds out now.
    virtual Observation ask(const std::string& item_id) = 0;
    /// How far an item's values can lie apart; none when that is not known.
    virtual std::optional<double> range_of(const std::string& item_id) {
        static_cast<void>(item_id);
        return std::nullopt;
    }
};

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
    /// A group of such a connection.
    virtual std::unique_ptr<GroupAccess> access(const ObjectPtr& group) = 0;
    /// Seconds that pass, since whenever.
    virtual double seconds() = 0;
    /// Drops the connection of one that `connect` gave.
    virtual void disconnect(const ObjectPtr& server) noexcept = 0;
};

} // namespace brx::host
