#pragma once

#include "common/model/opc_automation.h"
#include "plant/plant.h"

namespace brx::plant {

class Groups;

/// What one connection has in common: the position of its browsers and its items' handles.
class Connection {
public:
    Connection(std::shared_ptr<Plant> plant, ServerOnNode place)
        : plant_(std::move(plant)), place_(std::move(place)) {}

    const ServerOnNode& place() const { return place_; }
    /// Built with the first use, for a large one takes its time.
    const AddressSpacePtr& space();
    /// Where all browsers of the connection stand.
    const Branch& position() { return position_ ? *position_ : space()->root(); }
    void move_to(const Branch& branch) { position_ = &branch; }
    /// For groups and items alike.
    std::int32_t new_handle() { return next_handle_++; }

private:
    std::shared_ptr<Plant> plant_;
    ServerOnNode place_;
    AddressSpacePtr space_;
    const Branch* position_ = nullptr; ///< null for the root
    std::int32_t next_handle_ = 1;
};

/// A simulated OPC automation server. Not connected it can list the servers of a node; what needs a
/// connection fails as "Unspecified error".
class Server final : public OPCServer, public std::enable_shared_from_this<Server> {
public:
    explicit Server(std::shared_ptr<Plant> plant);
    ~Server() override;

    /// Drops any earlier connection first.
    void Connect(const std::string& program_id, const std::string& node);
    /// Drops the connection with all its groups; quiet when there is none.
    void Disconnect();

    Date StartTime() override;
    Date CurrentTime() override;
    Date LastUpdateTime() override;
    std::int16_t MajorVersion() override;
    std::int16_t MinorVersion() override;
    std::int16_t BuildNumber() override;
    std::string VendorInfo() override;
    std::int32_t ServerState() override;
    std::string ServerName() override;
    std::string ServerNode() override;
    std::string ClientName() override { return client_name_; }
    void set_ClientName(const std::string& name) { client_name_ = name; }
    std::int32_t Bandwidth() override;
    OPCGroupsPtr OPCGroups() override;
    Variant GetOPCServers(const std::optional<std::string>& node) override;
    OPCBrowserPtr CreateBrowser() override;
    std::string GetErrorString(std::int32_t error_code) override;

    /// The connection; fails without one.
    Connection& connection() const;
    /// The groups with the members that only the host uses.
    std::shared_ptr<Groups> groups();
    Clock& clock() const { return plant_->clock(); }

private:
    const ServerDescription& description() const { return *connection().place().server; }

    std::shared_ptr<Plant> plant_;
    std::shared_ptr<Connection> connection_;
    std::shared_ptr<Groups> groups_;
    std::string client_name_;
};

} // namespace brx::plant
