#pragma once

#include "classes/dialog_class.h"
#include "common/common_tools.h"

#include <string>
#include <utility>

namespace brx {

/// Lets a person choose one item of a connected OPC server.
class LeafSelect : private DialogClass {
public:
    explicit LeafSelect(Environment& environment)
        : DialogClass("LeafSelect", environment), tools_(environment.errors) {}

    /// The item identifier: to start with, and after a confirmed `Show` the chosen one; "" at first.
    const std::string& ItemID() const { return item_id_; }
    void set_ItemID(std::string item_id) { item_id_ = std::move(item_id); }

    /// True when the person confirmed an item. The group must belong to the server; it says whether the item
    /// can be had.
    bool Show(const ObjectPtr& OPCServer, const ObjectPtr& OPCGroup);

private:
    CommonTools tools_;
    std::string item_id_;
};

} // namespace brx
