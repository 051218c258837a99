#include "host/servers.h"

#include "common/common_tools.h"
#include "common/values/text.h"
#include "host/host.h"
#include "host/positions.h"

namespace brx::host {

Servers::Servers(Host& host, SqliteFile& file, std::shared_ptr<OpcSource> source)
    : host_(host), store_(file), source_(std::move(source)) {
    for (StoredServer& stored : store_.all()) {
        entries_.push_back(entry_for(std::move(stored)));
        entries_.back()->configurations().load();
    }
}

Servers::~Servers() {
    for (const auto& entry : entries_) entry->leave();
}

std::shared_ptr<Servers> Servers::self() { return host_.servers(); }

ObjectPtr Servers::Parent() { return host_.shared_from_this(); }

std::shared_ptr<ServerEntry> Servers::entry_for(StoredServer stored) {
    return std::make_shared<ServerEntry>(host_, *this, std::move(stored), source_);
}

hlxOPCServerPtr Servers::Add(const std::string& server_name, const std::string& node, bool connect) {
    const std::string wanted_node = trim(node);
    const std::string text = server_display_text(wanted_node, server_name);
    last_error_.clear();
    try {
        if (trim(server_name).empty()) throw Error(error::invalid_procedure_call, "The server has no name.");
        ObjectPtr server = connect ? source_->connect(server_name, wanted_node) : nullptr;
        auto entry = entry_for({0, server_name, wanted_node, ""});
        if (server) entry->set_connected(std::move(server));
        entries_.reserve(entries_.size() + 1); // nothing may fail once it is stored
        entry->set_id(store_.add(server_name, wanted_node));
        entries_.push_back(entry);
        host_.log().add("Added " + text + ".");
        return host_.kept(entry);
    } catch (const Error& error) {
        last_error_ = in_one_line(error);
        host_.log().add("Could not add " + text + ": " + last_error_);
        return nullptr;
    }
}

hlxOPCServerPtr Servers::Item(const Variant& index) {
    return host_.kept(entries_[index_of(entries_, position_in(index))]);
}

ServerEntry& Servers::at(std::int32_t position) { return *entries_[index_of(entries_, position)]; }

std::int32_t Servers::find(const std::string& display_text) const {
    for (std::size_t i = 0; i < entries_.size(); ++i)
        if (equal_ignoring_case(entries_[i]->display_text(), display_text))
            return static_cast<std::int32_t>(i + 1);
    return 0;
}

bool Servers::connect(std::int32_t position) {
    ServerEntry& entry = at(position);
    const bool connected = entry.connect();
    host_.log().add(entry.display_text() + ": " + (connected ? "Connected." : entry.state_text()));
    return connected;
}

void Servers::connect_all() {
    for (std::int32_t position = 1; position <= Count(); ++position) connect(position);
}

void Servers::remove(std::int32_t position) {
    const std::size_t index = index_of(entries_, position);
    const std::shared_ptr<ServerEntry> entry = entries_[index];
    store_.remove(entry->id());
    erase_at(entries_, index);
    entry->leave();
    entry->disconnect();
    host_.log().add("Removed " + entry->display_text() + ".");
}

void Servers::collect(Date now) {
    for (const auto& entry : entries_) entry->configurations().collect(now);
}

void Servers::set_last_item(std::int32_t position, const std::string& item_id) {
    ServerEntry& entry = at(position);
    store_.set_last_item(entry.id(), item_id);
    entry.set_last_item(item_id);
}

void Servers::set_source(std::shared_ptr<OpcSource> source) {
    source_ = std::move(source);
    for (const auto& entry : entries_) entry->set_source(source_);
    connect_all();
}

} // namespace brx::host
