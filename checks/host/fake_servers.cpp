#include "host/fake_servers.h"

namespace brx::checks {

std::shared_ptr<FakeServer> FakeServers::has(const std::string& server_name, const std::string& node) {
    ++configured_;
    entries_.push_back(std::make_shared<FakeServer>(calls_, server_name, node));
    return entries_.back();
}

std::shared_ptr<FakeServer> FakeServers::has_connected(const std::string& server_name,
                                                       const std::string& node) {
    const auto entry = has(server_name, node);
    const auto connection = std::make_shared<FakeOPCServer>(calls_);
    connection->server_name = server_name;
    connection->server_node = node;
    entry->connection = connection;
    return entry;
}

ObjectPtr FakeServers::Parent() { return read("Parent", application); }

hlxOPCServerPtr FakeServers::Add(const std::string& server_name, const std::string& node, bool connect) {
    note("Add");
    additions_.push_back({server_name, node, connect});
    if (!last_error_.empty()) return nullptr;
    ++added_;
    const auto entry = has_connected(server_name, node);
    --configured_;
    after_adding();
    return answered(hlxOPCServerPtr(entry));
}

std::string FakeServers::damage() const {
    return entries_.size() == configured_ + added_ ? "" : "The collection has entries that nobody put there.";
}

std::string FakeServers::LastError() { return read("LastError", last_error_); }

hlxOPCServerPtr FakeServers::Item(const Variant& index) {
    note("Item");
    const auto* position = std::get_if<std::int32_t>(&index);
    if (!position || *position < 1 || *position > static_cast<std::int32_t>(entries_.size()))
        throw Error(error::subscript_out_of_range, error_text(error::subscript_out_of_range), "FakeHost");
    return answered(hlxOPCServerPtr(entries_[static_cast<std::size_t>(*position - 1)]));
}

std::int32_t FakeServers::Count() {
    note("Count");
    return answered(claimed_count_ >= 0 ? claimed_count_ : static_cast<std::int32_t>(entries_.size()));
}

} // namespace brx::checks
