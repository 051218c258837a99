#pragma once

#include "common/model/database.h"
#include "host/record_store.h"

#include <functional>
#include <memory>

namespace brx::host {

class DatabaseConnection;

/// Finds our own connection behind what a dialog hands back. Error 13 when it is somebody else's, 91 for
/// Nothing.
using ConnectionOf = std::function<std::shared_ptr<DatabaseConnection>(const hlxDatabasePtr&)>;
std::shared_ptr<DatabaseConnection> same_connection(const hlxDatabasePtr& database);

/// Looks up a record of a kind, or a group of such records.
class Record final : public hlxRecord {
public:
    enum class Level { record, group };

    Record(RecordKind kind, Level level, ConnectionOf connection_of = same_connection)
        : kind_(kind), level_(level), connection_of_(std::move(connection_of)) {}
    /// One that is found already.
    Record(RecordKind kind, Level level, StoredRecord found, ConnectionOf connection_of = same_connection)
        : Record(kind, level, std::move(connection_of)) {
        fields_ = std::move(found);
    }

    std::int32_t ID() override { return fields_.id; }
    void set_ID(std::int32_t value) override { fields_.id = value; }
    std::string Name() override { return fields_.name; }
    void set_Name(const std::string& value) override { fields_.name = value; }
    std::int32_t GroupID() override { return fields_.group_id; }
    void set_GroupID(std::int32_t value) override { fields_.group_id = value; }
    void set_SearchFlag(std::int16_t value) override { search_flag_ = value; }
    bool Load(const hlxDatabasePtr& database) override;

private:
    std::optional<StoredRecord> find(RecordStore& store) const;

    RecordKind kind_;
    Level level_;
    ConnectionOf connection_of_;
    StoredRecord fields_;
    std::int16_t search_flag_ = 0;
};

/// The record of a characteristic of one database, by itself or as a test's.
class TestData final : public hlxTestData {
public:
    /// What saving does with the id; a characteristic by itself has nothing to save.
    using SaveId = std::function<void(std::int32_t id)>;

    TestData(std::shared_ptr<DatabaseConnection> connection, StoredRecord fields, SaveId save = nullptr)
        : connection_(std::move(connection)), fields_(std::move(fields)), save_(std::move(save)) {}

    std::int32_t ID() override { return fields_.id; }
    void set_ID(std::int32_t value) override { fields_.id = value; }
    std::int32_t GroupID() override { return fields_.group_id; }
    std::string Name() override { return fields_.name; }
    // There is one way only to find and to save a characteristic.
    void set_Flag(std::int16_t) override {}
    void set_Mode(std::int16_t) override {}
    bool Load(const hlxDatabasePtr& database) override;
    void Save(const hlxDatabasePtr& database) override;

private:
    std::shared_ptr<DatabaseConnection> connection_;
    StoredRecord fields_;
    SaveId save_;
};

} // namespace brx::host
