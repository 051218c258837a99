#pragma once

#include "common/model/opc_automation.h"

#include <cstdint>
#include <exception>
#include <string>

namespace brx {

// What dialogs do with the items of a configuration's OPC group.

/// Goes through all the items in their order.
template <class Visit> void for_each_item(OPCItems& items, Visit&& visit) {
    const std::int32_t count = items.Count();
    for (std::int32_t i = 1; i <= count; ++i) visit(the(items.Item(i)));
}

/// Whether the group has exactly this item already. A host sees every item asked, also behind the one found.
inline bool holds_item(OPCItems& items, const std::string& item_id) {
    bool found = false;
    for_each_item(items, [&](OPCItem& item) {
        if (item.ItemID() == item_id) found = true;
    });
    return found;
}

/// The VARTYPE code of the item's value as its server keeps it.
inline std::int16_t canonical_data_type(OPCItems& items, const std::string& item_id) {
    return the(items.Item(item_id)).CanonicalDataType();
}

/// Tells that this server refuses an item, in its own words for the error. Where it fails to give them, the
/// refusal is told without, and its failure goes on from here.
template <class Tell>
void tell_refusal(const ObjectPtr& server, std::int32_t error, const std::string& item_id, Tell&& tell) {
    std::string why;
    std::exception_ptr failure;
    try {
        why = resolve<OPCServer>(server)->GetErrorString(error);
    } catch (...) {
        failure = std::current_exception();
    }
    tell("UNABLE TO ADD ITEM!\r\n\r\n" + why + "\r\n\r\nItem: " + item_id);
    if (failure) std::rethrow_exception(failure);
}

} // namespace brx
