#pragma once

#include "common/model/collection.h"
#include "host/fake_opc_server.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace brx::checks {

/// One configured server of the fake host.
class FakeServer : public hlxOPCServer, public Recorded {
public:
    FakeServer(CallLog& calls, std::string server_name, std::string node)
        : Recorded(calls, "hlxOPCServer"), server_name_(std::move(server_name)), node_(std::move(node)) {}

    /// Its connection; null when it is not connected.
    std::shared_ptr<Object> connection;
    /// The collection that it belongs to.
    std::weak_ptr<Object> parent;

    std::string ServerName() override { return read("ServerName", server_name_); }
    std::string Node() override { return read("Node", node_); }
    ObjectPtr Parent() override { return read("Parent", parent.lock()); }
    ObjectPtr OPCServer() override { return read("OPCServer", connection); }

private:
    std::string server_name_;
    std::string node_;
};

/// What one call of Add was given.
struct Addition {
    std::string server_name;
    std::string node;
    bool connect = false;
    bool operator==(const Addition&) const = default;
};

/// The fake host's collection of servers.
class FakeServers : public hlxOPCServers, public Recorded {
public:
    explicit FakeServers(CallLog& calls) : Recorded(calls, "hlxOPCServers") {}

    /// The application object that it belongs to.
    ObjectPtr application;

    /// Configures a server without a connection.
    std::shared_ptr<FakeServer> has(const std::string& server_name, const std::string& node = "");
    /// Configures a server with a connection to `connection_name` (the server's own name by default).
    std::shared_ptr<FakeServer> has_connected(const std::string& server_name, const std::string& node = "");

    /// Runs at the end of each successful Add.
    std::function<void()> after_adding = [] {};

    /// Add fails with this text from now on; "" makes it succeed again.
    void refuses(const std::string& last_error) { last_error_ = last_error; }
    /// Pretends to hold so many entries.
    void claims_count(std::int32_t count) { claimed_count_ = count; }

    const std::vector<std::shared_ptr<FakeServer>>& entries() const { return entries_; }
    const std::vector<Addition>& additions() const { return additions_; }

    /// What is wrong with the collection after a story: entries that no Add and no scenario put there. "" for
    /// nothing.
    std::string damage() const;

    ObjectPtr Parent() override;
    hlxOPCServerPtr Add(const std::string& server_name, const std::string& node, bool connect) override;
    std::string LastError() override;
    hlxOPCServerPtr Item(const Variant& index) override;
    std::int32_t Count() override;

private:
    std::vector<std::shared_ptr<FakeServer>> entries_;
    std::vector<Addition> additions_;
    std::string last_error_;
    std::size_t configured_ = 0;
    std::size_t added_ = 0;
    std::int32_t claimed_count_ = -1;
};

} // namespace brx::checks
