#pragma once

#include "host/sqlite.h"

#include <string>
#include <vector>

namespace brx::host {

struct StoredServer {
    std::int64_t id = 0;
    std::string program_id;
    std::string node;      ///< "" for the local computer
    std::string last_item; ///< the item that was last chosen of it; "" for none
};

/// The configured servers in the database file. Whatever fails changes nothing.
class ServerStore {
public:
    explicit ServerStore(SqliteFile& file) : file_(file) {}

    /// In the order in which they were added.
    std::vector<StoredServer> all();
    /// Gives the new server's number.
    std::int64_t add(const std::string& program_id, const std::string& node);
    void remove(std::int64_t id);
    void set_last_item(std::int64_t id, const std::string& item_id);

private:
    SqliteFile& file_;
};

/// Texts that the program remembers by name.
class SettingStore {
public:
    explicit SettingStore(SqliteFile& file) : file_(file) {}

    /// "" for a setting that was never made.
    std::string get(const std::string& name);
    void set(const std::string& name, const std::string& value);

private:
    SqliteFile& file_;
};

} // namespace brx::host
