#include "plant/server.h"

#include "plant/browser.h"
#include "plant/groups.h"
#include "plant/keep.h"
#include "plant/opc_errors.h"

#include <cmath>

namespace brx::plant {

namespace {

/// The first of January 1601: the platform's date for "never".
constexpr Date never{-109205};

} // namespace

const AddressSpacePtr& Connection::space() {
    if (!space_) space_ = plant_->address_space(*place_.server);
    return space_;
}

Server::Server(std::shared_ptr<Plant> plant)
    : plant_(std::move(plant)), groups_(std::make_shared<Groups>(*this)) {}

Server::~Server() { groups_->leave_server(); }

void Server::Connect(const std::string& program_id, const std::string& node) {
    Disconnect();
    connection_ = std::make_shared<Connection>(plant_, plant_->reach(program_id, node));
}

void Server::Disconnect() {
    groups_->RemoveAll();
    connection_ = nullptr;
}

Connection& Server::connection() const {
    if (!connection_) throw failure(com_error::unspecified);
    return *connection_;
}

Date Server::StartTime() { return connection().place().started; }

Date Server::CurrentTime() {
    static_cast<void>(connection());
    return clock().now();
}

Date Server::LastUpdateTime() {
    const double period = description().update_seconds;
    if (period <= 0) return never;
    return {std::floor(clock().now().days * seconds_per_day / period) * period / seconds_per_day};
}

std::int16_t Server::MajorVersion() { return description().major; }
std::int16_t Server::MinorVersion() { return description().minor; }
std::int16_t Server::BuildNumber() { return description().build; }
std::string Server::VendorInfo() { return description().vendor; }
std::int32_t Server::ServerState() { return connection_ ? description().state : server_state::disconnected; }
std::string Server::ServerName() { return connection_ ? description().program_id : ""; }
std::string Server::ServerNode() { return connection_ ? connection_->place().node : ""; }
std::int32_t Server::Bandwidth() { return description().bandwidth; }

std::shared_ptr<Groups> Server::groups() { return keep_with(shared_from_this(), groups_); }
OPCGroupsPtr Server::OPCGroups() { return groups(); }

Variant Server::GetOPCServers(const std::optional<std::string>& node) {
    return plant_->servers_on(node.value_or(""));
}

OPCBrowserPtr Server::CreateBrowser() {
    if (description().browsing == Browsing::none) throw failure(com_error::unspecified);
    return std::make_shared<Browser>(shared_from_this(), connection_);
}

std::string Server::GetErrorString(std::int32_t error_code) {
    std::string text = failure_text(static_cast<std::uint32_t>(error_code));
    if (text.empty()) throw failure(connection_ ? com_error::unspecified : com_error::no_interface);
    return text;
}

} // namespace brx::plant
