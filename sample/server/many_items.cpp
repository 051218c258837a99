#include "server/many_items.h"

#include "plant/address_space.h"
#include "plant/signals.h"

#include <string>
#include <vector>

namespace brx::server {

namespace {

unsigned wanted = 0;

void fill(plant::AddressSpace& space) {
    for (unsigned i = 1; i <= wanted; ++i)
        space.add_leaf(space.root(), "Tag " + std::to_string(i), plant::measured(0, 1));
}

} // namespace

std::span<const plant::NodeDescription> plant_with(unsigned items) {
    static std::vector<plant::NodeDescription> nodes;
    static std::vector<plant::ServerDescription> local;
    wanted = items;
    const auto usual = plant::sample_plant();
    if (items == 0) return usual;
    nodes.assign(usual.begin(), usual.end());
    local.assign(nodes[0].servers.begin(), nodes[0].servers.end());
    local.push_back({.program_id = "Simulation.Many.1",
                     .vendor = "Simulated archive",
                     .browsing = plant::Browsing::flat,
                     .fill = fill});
    nodes[0].servers = local;
    return nodes;
}

} // namespace brx::server
