#include "host/server_store.h"

namespace brx::host {

std::vector<StoredServer> ServerStore::all() {
    std::vector<StoredServer> servers;
    Statement select(file_, "SELECT id, program_id, node, last_item FROM server ORDER BY id");
    while (select.step())
        servers.push_back({select.number(0), select.text(1), select.text(2), select.text(3)});
    return servers;
}

std::int64_t ServerStore::add(const std::string& program_id, const std::string& node) {
    Statement(file_, "INSERT INTO server (program_id, node) VALUES (?1, ?2)")
        .bind(1, program_id)
        .bind(2, node)
        .step();
    return file_.last_row_id();
}

void ServerStore::remove(std::int64_t id) {
    Statement(file_, "DELETE FROM server WHERE id = ?1").bind(1, id).step();
}

void ServerStore::set_last_item(std::int64_t id, const std::string& item_id) {
    Statement(file_, "UPDATE server SET last_item = ?1 WHERE id = ?2").bind(1, item_id).bind(2, id).step();
}

std::string SettingStore::get(const std::string& name) {
    Statement select(file_, "SELECT value FROM setting WHERE name = ?1");
    select.bind(1, name);
    return select.step() ? select.text(0) : std::string();
}

void SettingStore::set(const std::string& name, const std::string& value) {
    Statement(file_, "INSERT INTO setting (name, value) VALUES (?1, ?2)"
                     " ON CONFLICT (name) DO UPDATE SET value = excluded.value")
        .bind(1, name)
        .bind(2, value)
        .step();
}

} // namespace brx::host
