#pragma once

#include "common/model/opc_automation.h"
#include "forms/list_control.h"

#include <cstdint>
#include <string>

namespace brx {

// What both dialogs do with the items of the configuration's OPC group.

/// Goes through the items in their order until `visit` says false.
template <class Visit> void for_each_item(OPCItems& items, Visit&& visit) {
    const std::int32_t count = items.Count();
    for (std::int32_t i = 1; i <= count; ++i)
        if (!visit(the(items.Item(i)))) return;
}

/// Whether the group has exactly this item already.
inline bool holds_item(OPCItems& items, const std::string& item_id) {
    bool found = false;
    for_each_item(items, [&](OPCItem& item) {
        found = item.ItemID() == item_id;
        return !found;
    });
    return found;
}

/// The VARTYPE code of the item's value as its server keeps it.
inline std::int16_t canonical_data_type(OPCItems& items, const std::string& item_id) {
    return the(items.Item(item_id)).CanonicalDataType();
}

/// Selects the first line with exactly this text; nothing changes when there is none.
inline void select_text(ListControl& list, const std::string& text) {
    for (int line = 0; line < list.count(); ++line)
        if (list.text(line) == text) return list.select(line);
}

} // namespace brx
