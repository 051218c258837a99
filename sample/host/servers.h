#pragma once

#include "host/server_entry.h"

#include <vector>

namespace brx::host {

class Host;
class Log;

/// The configured servers, kept in the database file. Part of a Host.
class Servers final : public hlxOPCServers {
public:
    Servers(Host& host, SqliteFile& file, std::shared_ptr<OpcSource> source);
    ~Servers() override;

    ObjectPtr Parent() override;
    /// Connects first when asked, and stores only what could be connected.
    hlxOPCServerPtr Add(const std::string& server_name, const std::string& node, bool connect) override;
    std::string LastError() override { return last_error_; }
    hlxOPCServerPtr Item(const Variant& index) override;
    std::int32_t Count() override { return static_cast<std::int32_t>(entries_.size()); }

    /// The entry at a position from 1; error 9 for any other.
    ServerEntry& at(std::int32_t position);
    /// The position of the server with this display text, in any letter case; 0 for none.
    std::int32_t find(const std::string& display_text) const;
    /// Connects again. False when that failed: the entry's state_text says why.
    bool connect(std::int32_t position);
    void connect_all();
    void remove(std::int32_t position);
    /// Collects in all configurations that run, with the local time. To be called several times a second.
    void collect(Date now);
    /// Remembers the item that was chosen of a server, for the next time.
    void set_last_item(std::int32_t position, const std::string& item_id);
    /// From now on servers come from here; those that are there are connected again.
    void set_source(std::shared_ptr<OpcSource> source);

    /// This collection, which keeps its host alive.
    std::shared_ptr<Servers> self();

private:
    std::shared_ptr<ServerEntry> entry_for(StoredServer stored);

    Host& host_;
    ServerStore store_;
    std::shared_ptr<OpcSource> source_;
    std::vector<std::shared_ptr<ServerEntry>> entries_;
    std::string last_error_;
};

} // namespace brx::host
