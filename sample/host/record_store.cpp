#include "host/record_store.h"

namespace brx::host {

namespace {

/// What the statements below select, in this order.
constexpr const char* group_columns = "SELECT id, name, 0 FROM record_group WHERE kind = ?1 ";
constexpr const char* record_columns =
    "SELECT record.id, record.name, group_id FROM record JOIN record_group ON record_group.id = group_id"
    " WHERE kind = ?1 ";

class Query {
public:
    Query(SqliteFile& file, RecordKind kind, const std::string& text) : select_(file, text.c_str()) {
        select_.bind(1, static_cast<std::int64_t>(kind));
    }
    template <class Value> Query& with(int parameter, const Value& value) {
        select_.bind(parameter, value);
        return *this;
    }
    std::optional<StoredRecord> next() {
        if (!select_.step()) return std::nullopt;
        return StoredRecord{static_cast<std::int32_t>(select_.number(0)), select_.text(1),
                            static_cast<std::int32_t>(select_.number(2))};
    }
    std::vector<StoredRecord> all() {
        std::vector<StoredRecord> found;
        while (auto each = next()) found.push_back(std::move(*each));
        return found;
    }

private:
    Statement select_;
};

} // namespace

std::vector<StoredRecord> RecordStore::groups() {
    return Query(file_, kind_, std::string(group_columns) + "ORDER BY name").all();
}

std::vector<StoredRecord> RecordStore::records_of(std::int32_t group_id) {
    return Query(file_, kind_, std::string(record_columns) + "AND group_id = ?2 ORDER BY record.name")
        .with(2, std::int64_t{group_id})
        .all();
}

std::optional<StoredRecord> RecordStore::group(std::int32_t id) {
    return Query(file_, kind_, std::string(group_columns) + "AND id = ?2").with(2, std::int64_t{id}).next();
}

std::optional<StoredRecord> RecordStore::group(const std::string& name) {
    return Query(file_, kind_, std::string(group_columns) + "AND name = ?2").with(2, name).next();
}

std::optional<StoredRecord> RecordStore::record(std::int32_t id) {
    return Query(file_, kind_, std::string(record_columns) + "AND record.id = ?2")
        .with(2, std::int64_t{id})
        .next();
}

std::optional<StoredRecord> RecordStore::record(const std::string& name, std::int32_t group_id) {
    return Query(file_, kind_,
                 std::string(record_columns) +
                     "AND record.name = ?2 AND (?3 = 0 OR group_id = ?3) ORDER BY record.id")
        .with(2, name)
        .with(3, std::int64_t{group_id})
        .next();
}

} // namespace brx::host
