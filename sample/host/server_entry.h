#pragma once

#include "common/model/collection.h"
#include "host/configurations.h"
#include "host/opc_source.h"
#include "host/server_store.h"
#include "host/words.h"

#include <memory>

namespace brx::host {

class Servers;

/// One configured server. Taken out of the collection it is no longer connected and has no parent.
class ServerEntry final : public hlxOPCServer, public std::enable_shared_from_this<ServerEntry> {
public:
    ServerEntry(Host& host, Servers& servers, StoredServer stored, std::shared_ptr<OpcSource> source);
    ~ServerEntry() override { disconnect(); }

    std::string ServerName() override { return stored_.program_id; }
    std::string Node() override { return stored_.node; }
    ObjectPtr Parent() override;
    ObjectPtr OPCServer() override { return server_; }

    std::int64_t id() const { return stored_.id; }
    void set_id(std::int64_t id) { stored_.id = id; }
    std::string display_text() const;
    const std::string& last_item() const { return stored_.last_item; }
    void set_last_item(const std::string& item_id) { stored_.last_item = item_id; }
    /// What the server is doing, or why it is not connected, in a few words.
    std::string state_text() const;

    Configurations& configurations() { return configurations_; }
    OpcSource& source() const { return *source_; }
    /// Why nothing can be collected from the server now; "" when it can.
    std::string obstacle() const;

    /// Takes over a connection that has just been made, and makes the configurations' groups on it.
    void set_connected(ObjectPtr server);
    /// True when it is connected afterwards; state_text says why not.
    bool connect();
    void disconnect() noexcept;
    /// Disconnects; the next connection comes from here.
    void set_source(std::shared_ptr<OpcSource> source);
    void leave() { servers_ = nullptr; }

private:
    Servers* servers_; ///< null once taken out
    StoredServer stored_;
    std::shared_ptr<OpcSource> source_;
    ObjectPtr server_;
    std::string failure_ = "not connected yet";
    Configurations configurations_;
};

/// An entry of no collection, through which the servers of a node can be listed.
class FreshEntry final : public hlxOPCServer {
public:
    explicit FreshEntry(std::shared_ptr<OpcSource> source) : source_(std::move(source)) {}

    std::string ServerName() override { return {}; }
    std::string Node() override { return {}; }
    ObjectPtr Parent() override { return nullptr; }
    ObjectPtr OPCServer() override;

private:
    std::shared_ptr<OpcSource> source_;
    ObjectPtr server_;
};

} // namespace brx::host
