#include "plant/browser.h"

#include "plant/opc_errors.h"

#include <algorithm>

namespace brx::plant {

namespace {

constexpr std::int32_t hierarchical = 1;
constexpr std::int32_t flat = 2;

} // namespace

Browser::Browser(std::shared_ptr<Server> server, const std::shared_ptr<Connection>& connection)
    : server_(std::move(server)), connection_(connection), space_(connection->space) {}

std::shared_ptr<Connection> Browser::connection() const {
    auto connection = connection_.lock();
    if (!connection) throw failure(com_error::unspecified);
    return connection;
}

bool Browser::is_flat() const { return connection()->place.server->browsing != Browsing::hierarchical; }

std::int32_t Browser::Organization() { return is_flat() ? flat : hierarchical; }

std::int32_t Browser::Count() { return static_cast<std::int32_t>(list_.size()); }

std::string Browser::Item(std::int32_t index) {
    if (index < 1 || index > Count()) throw failure(com_error::invalid_argument);
    return *list_[static_cast<std::size_t>(index - 1)];
}

void Browser::ShowBranches() {
    list_.clear();
    const auto current = connection();
    // Some flat servers answer with what they have, whatever they are asked for.
    if (current->place.server->browsing == Browsing::flat) list_all_below(*current->position);
    for (const Branch& branch : current->position->branches) list_.push_back(&branch.name);
}

void Browser::ShowLeafs(bool flattened) {
    list_.clear();
    const Branch& here = *connection()->position;
    if (flattened || is_flat()) return list_all_below(here);
    for (const Leaf& leaf : here.leaves) list_.push_back(&leaf.name);
}

void Browser::list_all_below(const Branch& branch) {
    for (const Leaf& leaf : branch.leaves) list_.push_back(&leaf.id);
    for (const Branch& below : branch.branches) list_all_below(below);
}

void Browser::MoveToRoot() {
    list_.clear();
    const auto current = connection();
    current->position = &current->space->root();
}

void Browser::MoveTo(const StringArray& branches) {
    MoveToRoot();
    const auto current = connection();
    for (const std::string& name : branches.elements) {
        if (name.empty()) continue;
        const Branch* next = branch_below(*current->position, name);
        if (!next) throw failure(com_error::invalid_argument);
        current->position = next;
    }
}

std::string Browser::GetItemID(const std::string& leaf) {
    const auto current = connection();
    const Branch& here = *current->position;
    const auto below = std::ranges::find(here.leaves, leaf, &Leaf::name);
    if (below != here.leaves.end()) return below->id;
    if (const Branch* branch = branch_below(here, leaf)) return branch->id;
    if (const Leaf* item = current->space->find(leaf)) return item->id;
    throw failure(opc_error::unknown_item_id);
}

} // namespace brx::plant
