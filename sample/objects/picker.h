#pragma once

#include "host/record_store.h"

#include <optional>

namespace brx::host {

/// Shows the groups of a kind and the records in them, over the window that is in front, with the record `id`
/// or else the group `group_id` selected (0 for none), and waits. What the person picked; none when he
/// cancelled.
std::optional<StoredRecord> pick_record(RecordKind kind, RecordStore store, std::int32_t id,
                                        std::int32_t group_id);

} // namespace brx::host
