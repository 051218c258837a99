#include "host/server_entry.h"

#include "common/common_tools.h"
#include "common/model/opc_automation.h"
#include "common/trap.h"
#include "host/servers.h"

#include <array>

namespace brx::host {

namespace {

constexpr std::int32_t running = 1;
constexpr std::int32_t test = 5;

std::string state_name(std::int32_t state) {
    static constexpr std::array names = {"Running",   "Failed", "No configuration",
                                         "Suspended", "Test",   "Disconnected"};
    if (state < 1 || state > static_cast<std::int32_t>(names.size())) return "State " + std::to_string(state);
    return names[static_cast<std::size_t>(state - 1)];
}

} // namespace

ServerEntry::ServerEntry(Host& host, Servers& servers, StoredServer stored, std::shared_ptr<OpcSource> source)
    : servers_(&servers),
      stored_(std::move(stored)),
      source_(std::move(source)),
      configurations_(host, *this) {}

ObjectPtr ServerEntry::Parent() { return servers_ ? servers_->self() : nullptr; }

std::string ServerEntry::display_text() const {
    return server_display_text(stored_.node, stored_.program_id);
}

std::string ServerEntry::state_text() const {
    if (!server_) return "Not connected: " + failure_;
    try {
        return state_name(resolve<brx::OPCServer>(server_)->ServerState());
    } catch (const Error& error) {
        return "Does not answer: " + in_one_line(error);
    }
}

void ServerEntry::set_connected(ObjectPtr server) {
    server_ = std::move(server);
    failure_.clear();
    configurations_.fill_groups();
}

bool ServerEntry::connect() {
    disconnect();
    try {
        set_connected(source_->connect(stored_.program_id, stored_.node));
        return true;
    } catch (const Error& error) {
        failure_ = in_one_line(error);
        return false;
    }
}

void ServerEntry::disconnect() noexcept {
    if (!server_) return;
    configurations_.drop_groups();
    source_->disconnect(server_);
    server_ = nullptr;
}

void ServerEntry::set_source(std::shared_ptr<OpcSource> source) {
    disconnect();
    source_ = std::move(source);
}

std::string ServerEntry::obstacle() const {
    std::int32_t state = 0;
    if (server_) attempt([&] { state = resolve<brx::OPCServer>(server_)->ServerState(); });
    return state == running || state == test ? std::string() : state_text();
}

ObjectPtr FreshEntry::OPCServer() {
    if (!server_) server_ = source_->make();
    return server_;
}

} // namespace brx::host
