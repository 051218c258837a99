#pragma once

#include "plant/description.h"

#include <deque>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

namespace brx::plant {

struct Leaf {
    std::string name;
    std::string id;
    Signal signal;
    Trouble trouble = Trouble::none;
};

struct Branch {
    std::string name;
    std::string id; ///< "" for the root
    std::deque<Branch> branches;
    std::deque<Leaf> leaves;
};

/// The items of a server, as a tree and by identifier. Never changes once it is built.
class AddressSpace {
public:
    explicit AddressSpace(const ServerDescription& server);
    AddressSpace(const AddressSpace&) = delete;
    AddressSpace& operator=(const AddressSpace&) = delete;

    const Branch& root() const { return root_; }
    /// The item with exactly this identifier; null when there is none.
    const Leaf* find(std::string_view id) const;

    // What builds it. An identifier that is not given is the place joined with full stops; of two items with
    // one identifier the first is found by it.
    Branch& root() { return root_; }
    /// Adds a branch even where there is one of this name.
    static Branch& add_branch(Branch& parent, const std::string& name, const std::string& id = {});
    void add_leaf(Branch& branch, const std::string& name, const Signal& signal, const std::string& id = {},
                  Trouble trouble = Trouble::none);

private:
    Branch root_;
    std::unordered_map<std::string_view, const Leaf*> by_id_;
};
using AddressSpacePtr = std::shared_ptr<const AddressSpace>;

/// The branch with this name right below; null when there is none.
const Branch* branch_below(const Branch& branch, std::string_view name);

} // namespace brx::plant
