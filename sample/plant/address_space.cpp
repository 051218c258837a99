#include "plant/address_space.h"

#include "common/values/text.h"

#include <algorithm>

namespace brx::plant {

namespace {

std::string joined(const std::string& parent_id, const std::string& name) {
    return parent_id.empty() ? name : parent_id + "." + name;
}

Branch& branch_made(Branch& parent, const std::string& name) {
    const auto known = std::ranges::find(parent.branches, name, &Branch::name);
    return known != parent.branches.end() ? *known : AddressSpace::add_branch(parent, name);
}

} // namespace

AddressSpace::AddressSpace(const ServerDescription& server) {
    for (const ItemDescription& item : server.items) {
        if (server.browsing != Browsing::hierarchical) {
            add_leaf(root_, item.place, item.signal, {}, item.trouble);
            continue;
        }
        const std::vector<std::string> names = split(item.place, "/");
        Branch* branch = &root_;
        for (std::size_t i = 0; i + 1 < names.size(); ++i) branch = &branch_made(*branch, names[i]);
        add_leaf(*branch, names.back(), item.signal, {}, item.trouble);
    }
    if (server.fill) server.fill(*this);
}

Branch& AddressSpace::add_branch(Branch& parent, const std::string& name, const std::string& id) {
    Branch& added = parent.branches.emplace_back();
    added.name = name;
    added.id = id.empty() ? joined(parent.id, name) : id;
    return added;
}

void AddressSpace::add_leaf(Branch& branch, const std::string& name, const Signal& signal,
                            const std::string& id, Trouble trouble) {
    const Leaf& leaf =
        branch.leaves.emplace_back(Leaf{name, id.empty() ? joined(branch.id, name) : id, signal, trouble});
    by_id_.emplace(leaf.id, &leaf);
}

const Leaf* AddressSpace::find(std::string_view id) const {
    const auto found = by_id_.find(id);
    return found == by_id_.end() ? nullptr : found->second;
}

const Branch* branch_below(const Branch& branch, std::string_view name) {
    const auto found = std::ranges::find(branch.branches, name, &Branch::name);
    return found == branch.branches.end() ? nullptr : &*found;
}

} // namespace brx::plant
