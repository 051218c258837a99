#pragma once

#include "plant/address_space.h"
#include "plant/clock.h"
#include "plant/description.h"

#include <map>
#include <memory>
#include <string>

namespace brx::plant {

class Server;

/// A server on a node, as whoever connects to it meets it.
struct ServerOnNode {
    const ServerDescription* server = nullptr;
    std::string node; ///< "" for the local computer however it was spelt
    Date started;
    std::uint64_t seed = 0; ///< sets the values of one node's server apart from another's
};

/// Simulated computers with simulated OPC servers. One thread.
class Plant : public std::enable_shared_from_this<Plant> {
public:
    /// The description and everything it refers to must outlive the plant.
    Plant(std::span<const NodeDescription> nodes, std::shared_ptr<Clock> clock);
    Plant(const Plant&) = delete;
    Plant& operator=(const Plant&) = delete;

    /// A new automation server, not connected.
    std::shared_ptr<Server> make_server();

    /// The program identifiers on a node, from 1; takes as long as the node takes. Node names are compared
    /// without regard to case. Fails like the platform does for a node that is not there or refuses.
    StringArray servers_on(const std::string& node);

    /// Fails like the platform does when the node or the server cannot be reached.
    ServerOnNode reach(const std::string& program_id, const std::string& node);

    AddressSpacePtr address_space(const ServerDescription& server);
    Clock& clock() { return *clock_; }

private:
    const NodeDescription& answering_node(const std::string& name);

    std::span<const NodeDescription> nodes_;
    std::shared_ptr<Clock> clock_;
    Date switched_on_;
    std::map<const ServerDescription*, AddressSpacePtr> spaces_;
};

} // namespace brx::plant
