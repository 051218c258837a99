#include "server/many_items.h"

#include "plant/address_space.h"
#include "plant/signals.h"

#include <string>
#include <vector>

namespace brx::server {

namespace {

constexpr unsigned in_a_branch = 1000;
unsigned wanted = 0;

void fill(plant::AddressSpace& space) {
    plant::Branch* area = nullptr;
    for (unsigned i = 0; i < wanted; ++i) {
        if (i % in_a_branch == 0)
            area =
                &plant::AddressSpace::add_branch(space.root(), "Area " + std::to_string(i / in_a_branch + 1));
        space.add_leaf(*area, "Tag " + std::to_string(i % in_a_branch + 1), plant::measured(0, 1));
    }
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
    local.push_back({.program_id = "Simulation.Many.1", .vendor = "Simulated archive", .fill = fill});
    nodes[0].servers = local;
    return nodes;
}

} // namespace brx::server
