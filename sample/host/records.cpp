#include "host/records.h"

#include "host/host.h"

namespace brx::host {

std::shared_ptr<DatabaseConnection> same_connection(const hlxDatabasePtr& database) {
    if (!database) throw Error(error::object_not_set);
    return resolve<DatabaseConnection>(database);
}

std::optional<StoredRecord> Record::find(RecordStore& store) const {
    const bool by_name = !fields_.name.empty();
    if (level_ == Level::group) return by_name ? store.group(fields_.name) : store.group(fields_.id);
    return by_name ? store.record(fields_.name, fields_.group_id) : store.record(fields_.id);
}

bool Record::Load(const hlxDatabasePtr& database) {
    const auto connection = connection_of_(database);
    RecordStore store(connection->file(), kind_);
    auto found = search_flag_ == 1 ? find(store) : std::nullopt;
    if (!found) return false;
    fields_ = std::move(*found);
    return true;
}

bool TestData::Load(const hlxDatabasePtr& database) {
    if (!database) throw Error(error::object_not_set);
    auto found = RecordStore(connection_->file(), RecordKind::characteristic).record(fields_.id);
    if (!found) return false;
    fields_ = std::move(*found);
    return true;
}

void TestData::Save(const hlxDatabasePtr& database) {
    if (!database) throw Error(error::object_not_set);
    if (!save_) throw Error(error::invalid_procedure_call, "The characteristic belongs to no test.");
    save_(fields_.id);
}

} // namespace brx::host
