#pragma once

#include "common/model/database.h"
#include "host/log.h"
#include "host/record_store.h"
#include "host/schema.h"
#include "host/servers.h"
#include "host/subgroup_store.h"
#include "plant/keep.h"

#include <functional>

namespace brx::host {

/// The connection to the host's database file.
class DatabaseConnection final : public hlxDatabase {
public:
    explicit DatabaseConnection(const std::string& path) : file_(open_database(path)) {}
    SqliteFile& file() { return *file_; }

private:
    std::unique_ptr<SqliteFile> file_;
};

/// The application object: everything that the host keeps in one database file. Each of its parts that is
/// held keeps the whole alive.
class Host final : public hlxApplication, public std::enable_shared_from_this<Host> {
public:
    /// Opens the database file; nothing is connected yet. Fails with a text for the user.
    static std::shared_ptr<Host> open(const std::string& path, std::shared_ptr<OpcSource> source, Log& log);
    Host(const std::string& path, std::shared_ptr<OpcSource> source, Log& log);

    ObjectPtr Database() override { return shown_ ? shown_(database()) : database(); }
    /// What the outside gets to see of the database connection; the connection itself at first.
    using ShownDatabase = std::function<ObjectPtr(std::shared_ptr<DatabaseConnection>)>;
    void show_database_as(ShownDatabase shown) { shown_ = std::move(shown); }

    std::shared_ptr<DatabaseConnection> database() { return {shared_from_this(), &database_}; }
    std::shared_ptr<Servers> servers() { return {shared_from_this(), &servers_}; }
    /// A part of the host as whoever holds it keeps the host alive.
    template <class Part> std::shared_ptr<Part> kept(std::shared_ptr<Part> part) {
        return keep_with(shared_from_this(), std::move(part));
    }

    RecordStore records(RecordKind kind) { return {database_.file(), kind}; }
    ConfigurationStore configurations() { return ConfigurationStore(database_.file()); }
    SubgroupStore subgroups() { return SubgroupStore(database_.file()); }
    SettingStore settings() { return SettingStore(database_.file()); }
    Log& log() { return log_; }

private:
    Log& log_;
    DatabaseConnection database_;
    Servers servers_;
    ShownDatabase shown_;
};

} // namespace brx::host
