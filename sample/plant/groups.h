#pragma once

#include "plant/items.h"

namespace brx::plant {

class Server;

/// A group of a simulated server. Once it is removed, every member fails.
class Group final : public OPCGroup, public std::enable_shared_from_this<Group> {
public:
    Group(Server& server, std::string name, std::int32_t server_handle);

    OPCServerPtr Parent() override;
    std::string Name() override;
    OPCItemsPtr OPCItems() override;

    std::int32_t ServerHandle() const { return server_handle_; }
    /// The items with the members that only the host uses.
    std::shared_ptr<Items> items();
    /// The server; fails when the group has been removed.
    Server& server() const;
    void remove();

private:
    Server* server_; ///< null once removed
    std::string name_;
    std::int32_t server_handle_;
    Items items_;
};

/// The groups of a simulated server, in the order in which they were added.
class Groups final : public OPCGroups {
public:
    explicit Groups(Server& server) : server_(&server) {}

    std::int32_t Count() override { return static_cast<std::int32_t>(groups_.size()); }
    OPCGroupPtr Item(const Variant& item_specifier) override;
    /// Fails when the name is taken.
    OPCGroupPtr Add(const std::optional<std::string>& name) override { return make(name.value_or("")); }
    void RemoveAll() override;
    void Remove(const Variant& item_specifier) override;

    /// The same as Add, with the members that only the host uses; a name is made up for "".
    std::shared_ptr<Group> make(const std::string& name);
    /// Called as the server goes.
    void leave_server();

private:
    Server* server_;
    std::vector<std::shared_ptr<Group>> groups_;
};

} // namespace brx::plant
