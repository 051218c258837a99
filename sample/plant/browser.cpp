#include "plant/browser.h"

#include "plant/opc_errors.h"

#include <algorithm>

namespace brx::plant {

namespace {

constexpr std::int32_t hierarchical = 1;
constexpr std::int32_t flat = 2;

} // namespace

Browser::Browser(std::shared_ptr<Server> server, const std::shared_ptr<Connection>& connection)
    : server_(std::move(server)),
      connection_(connection),
      description_(*connection->place().server),
      space_(connection->space()) {}

void Browser::answer() {
    const BrowserManners& manners = description_.browser;
    if (manners.answers_after.count() > 0) server_->clock().wait(manners.answers_after);
    if (manners.fails_every > 0 && ++calls_ % manners.fails_every == 0) throw failure(com_error::unspecified);
}

std::shared_ptr<Connection> Browser::connection() const {
    auto connection = connection_.lock();
    if (!connection) throw failure(com_error::unspecified);
    return connection;
}

std::int32_t Browser::Organization() {
    answer();
    static_cast<void>(connection());
    return description_.browsing == Browsing::hierarchical ? hierarchical : flat;
}

std::int32_t Browser::Count() {
    answer();
    return static_cast<std::int32_t>(list_.size());
}

std::string Browser::Item(std::int32_t index) {
    answer();
    if (index < 1 || static_cast<std::size_t>(index) > list_.size())
        throw failure(com_error::invalid_argument);
    const std::string* const name = list_[static_cast<std::size_t>(index - 1)];
    const int drops_every = description_.browser.drops_every;
    if (drops_every > 0 && ++names_read_ % drops_every == 0) list_.pop_back();
    return *name;
}

void Browser::ShowBranches() {
    answer();
    list_.clear();
    const Branch& here = connection()->position();
    // Some flat servers answer with what they have, whatever they are asked for.
    if (description_.browsing == Browsing::flat) list_all_below(here);
    for (const Branch& branch : here.branches) list_.push_back(&branch.name);
}

void Browser::ShowLeafs(bool flattened) {
    answer();
    list_.clear();
    const Branch& here = connection()->position();
    if (flattened || description_.browsing != Browsing::hierarchical) return list_all_below(here);
    for (const Leaf& leaf : here.leaves) list_.push_back(&leaf.name);
}

void Browser::list_all_below(const Branch& branch) {
    for (const Leaf& leaf : branch.leaves) list_.push_back(&leaf.id);
    for (const Branch& below : branch.branches) list_all_below(below);
}

void Browser::MoveToRoot() {
    answer();
    list_.clear();
    connection()->move_to(space_->root());
}

void Browser::MoveTo(const StringArray& branches) {
    answer();
    list_.clear();
    const auto current = connection();
    current->move_to(space_->root());
    for (const std::string& name : branches.elements) {
        if (name.empty()) continue;
        const Branch* next = branch_below(current->position(), name);
        if (!next) throw failure(com_error::invalid_argument);
        current->move_to(*next);
    }
}

std::string Browser::GetItemID(const std::string& leaf) {
    answer();
    const Branch& here = connection()->position();
    const auto below = std::ranges::find(here.leaves, leaf, &Leaf::name);
    if (below != here.leaves.end()) return below->id;
    if (const Branch* branch = branch_below(here, leaf)) return branch->id;
    if (const Leaf* item = space_->find(leaf)) return item->id;
    throw failure(opc_error::unknown_item_id);
}

} // namespace brx::plant
