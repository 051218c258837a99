#include "host/fake_host.h"

namespace brx::checks {

FakeHost::FakeHost()
    : servers(std::make_shared<FakeServers>(calls)),
      enumerator(std::make_shared<FakeOPCServer>(calls)),
      fresh_connection(enumerator),
      connection(std::make_shared<FakeOPCServer>(calls)),
      browser(std::make_shared<FakeBrowser>(calls)),
      group(std::make_shared<FakeOPCGroup>(calls)),
      help_service(std::make_shared<FakeHelpService>(calls)) {
    connection->server_name = "Matrix";
    connection->server_node = "PC7";
    connection->browser = browser;
    group->server = connection;
    local_servers({"Plant.Simulation.1", "Line.Server.2"});
}

void FakeHost::Show(ErrorLibrary library, const ErrorReport& report) noexcept {
    reports.push_back({library, report});
    all_reports.push_back({library, report});
}

ObjectPtr FakeHost::create(const std::string& name) {
    if (name == class_name::hlxHelp && help_service) return help_service;
    if (name == class_name::hlxMessage && message_service) return message_service;
    if (name == class_name::hlxOPCServer && can_create_entries) {
        calls.note("create hlxOPCServer");
        const auto entry = std::make_shared<FakeServer>(calls, "", "");
        entry->connection = fresh_connection;
        created_.push_back(entry);
        return entry;
    }
    throw Error(error::cannot_create_object);
}

std::string FakeHost::still_held() const {
    std::string held;
    if (servers.use_count() > 1) held += "The servers collection is still referred to. ";
    for (const auto& entry : servers->entries())
        if (entry.use_count() > 1) held += "A server entry is still referred to. ";
    if (enumerator.use_count() > 2) held += "The enumerating server is still referred to. ";
    if (connection.use_count() > 1) held += "The browsed server is still referred to. ";
    if (browser.use_count() > 2) held += "The browser is still referred to. ";
    if (group.use_count() > 1) held += "The group is still referred to. ";
    if (group->items.use_count() > 1) held += "The group's items are still referred to. ";
    for (const auto& created : created_)
        if (!created.expired()) held += "A created server entry is still referred to. ";
    return held;
}

} // namespace brx::checks
