#include "plant/plant.h"

#include "common/values/text.h"
#include "plant/opc_errors.h"
#include "plant/server.h"

#include <algorithm>

namespace brx::plant {

namespace {

/// How long the platform looks for a computer that is not there.
constexpr std::chrono::milliseconds lost_call{600};

constexpr double hours_per_day = 24;

bool is_local(const std::string& node) {
    return node.empty() || node == "127.0.0.1" || equal_ignoring_case(node, "localhost");
}

} // namespace

Plant::Plant(std::span<const NodeDescription> nodes, std::shared_ptr<Clock> clock)
    : nodes_(nodes), clock_(std::move(clock)), switched_on_(clock_->now()) {}

std::shared_ptr<Server> Plant::make_server() { return std::make_shared<Server>(shared_from_this()); }

const NodeDescription& Plant::answering_node(const std::string& name) {
    const std::string wanted = is_local(name) ? "" : name;
    const auto node = std::ranges::find_if(nodes_, [&](const NodeDescription& candidate) {
        return equal_ignoring_case(candidate.name, wanted);
    });
    if (node == nodes_.end()) {
        clock_->wait(lost_call);
        throw failure(com_error::node_unavailable);
    }
    clock_->wait(node->answers_after);
    if (node->refusal != 0) throw failure(node->refusal);
    return *node;
}

StringArray Plant::servers_on(const std::string& node) {
    StringArray program_ids;
    for (const ServerDescription& server : answering_node(node).servers)
        program_ids.elements.emplace_back(server.program_id);
    return program_ids;
}

ServerOnNode Plant::reach(const std::string& program_id, const std::string& node) {
    const NodeDescription& computer = answering_node(node);
    const auto server = std::ranges::find_if(computer.servers, [&](const ServerDescription& candidate) {
        return equal_ignoring_case(candidate.program_id, program_id);
    });
    if (server == computer.servers.end()) throw failure(com_error::unspecified);
    if (server->connection_failure != 0) throw failure(server->connection_failure);
    return {.server = &*server,
            .node = computer.name,
            .started = {switched_on_.days - server->hours_up / hours_per_day},
            .seed = seed_of(computer.name) ^ seed_of(server->program_id)};
}

AddressSpacePtr Plant::address_space(const ServerDescription& server) {
    AddressSpacePtr& space = spaces_[&server];
    if (!space) space = std::make_shared<AddressSpace>(server);
    return space;
}

} // namespace brx::plant
