#pragma once

#include "host/sqlite.h"

#include <optional>
#include <string>
#include <vector>

namespace brx::host {

/// What the database has named records of. The numbers are in the file.
enum class RecordKind { characteristic, part, process, job, shift, descriptor };

struct StoredRecord {
    std::int32_t id = 0;
    std::string name;
    std::int32_t group_id = 0; ///< 0 for a group
};

/// The named records, which lie in groups of their kind. Names are compared without regard to letter case.
class RecordStore {
public:
    RecordStore(SqliteFile& file, RecordKind kind) : file_(file), kind_(kind) {}

    /// By name.
    std::vector<StoredRecord> groups();
    std::vector<StoredRecord> records_of(std::int32_t group_id);

    std::optional<StoredRecord> group(std::int32_t id);
    std::optional<StoredRecord> group(const std::string& name);
    std::optional<StoredRecord> record(std::int32_t id);
    /// In one group, or with 0 the first in any.
    std::optional<StoredRecord> record(const std::string& name, std::int32_t group_id);

private:
    SqliteFile& file_;
    RecordKind kind_;
};

} // namespace brx::host
