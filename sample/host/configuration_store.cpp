#include "host/configuration_store.h"

namespace brx::host {

namespace {

constexpr const char* configuration_columns =
    "SELECT id, name, active, update_rate, dead_band, subgroup_size, sync_date_time,"
    " subgroup_interval, subgroup_time_unit, subgroup_trigger_item, subgroup_trigger_type,"
    " subgroup_trigger_value_type, subgroup_trigger_value,"
    " piece_interval, piece_time_unit, piece_trigger_item, piece_trigger_type, piece_trigger_value_type,"
    " piece_trigger_value FROM configuration ";

template <class Integer> Integer integer(const Statement& row, int column) {
    return static_cast<Integer>(row.number(column));
}

/// From six columns in a row.
StoredSampling sampling_from(const Statement& row, int first) {
    return {.interval = integer<std::int32_t>(row, first),
            .time_unit = integer<std::int16_t>(row, first + 1),
            .trigger_item = row.text(first + 2),
            .trigger_type = integer<std::int16_t>(row, first + 3),
            .trigger_value = value_from(row, first + 4, first + 5)};
}

StoredConfiguration configuration_from(const Statement& row) {
    return {.id = row.number(0),
            .name = row.text(1),
            .active = row.number(2) != 0,
            .update_rate = integer<std::int32_t>(row, 3),
            .dead_band = static_cast<float>(row.real(4)),
            .subgroup_size = integer<std::int32_t>(row, 5),
            .sync_date_time = {row.real(6)},
            .subgroup = sampling_from(row, 7),
            .piece = sampling_from(row, 13)};
}

} // namespace

std::vector<StoredConfiguration> ConfigurationStore::of_server(std::int64_t server_id) {
    std::vector<StoredConfiguration> found;
    Statement select(file_,
                     (std::string(configuration_columns) + "WHERE server_id = ?1 ORDER BY id").c_str());
    select.bind(1, server_id);
    while (select.step()) found.push_back(configuration_from(select));
    return found;
}

/// Intervals count from the beginning of the day.
StoredConfiguration ConfigurationStore::add(std::int64_t server_id) {
    Transaction transaction(file_);
    Statement(file_, "INSERT INTO configuration (server_id, sync_date_time)"
                     " VALUES (?1, julianday('now', 'localtime', 'start of day') - 2415018.5)")
        .bind(1, server_id)
        .step();
    const std::int64_t id = file_.last_row_id();
    row(id).write({{"name", "Configuration " + std::to_string(id)}});
    transaction.commit();
    Statement select(file_, (std::string(configuration_columns) + "WHERE id = ?1").c_str());
    if (!select.bind(1, id).step()) throw failed_database("The configuration has been removed.");
    return configuration_from(select);
}

std::vector<StoredTest> ConfigurationStore::tests_of(std::int64_t configuration_id) {
    std::vector<StoredTest> found;
    Statement row(file_, "SELECT id, characteristic_id, state, item_id, client_handle, item_trigger,"
                         " trigger_expression, trigger_value_type, trigger_value, constant_value, save_as"
                         " FROM test WHERE configuration_id = ?1 ORDER BY id");
    row.bind(1, configuration_id);
    while (row.step())
        found.push_back({.id = row.number(0),
                         .characteristic_id = integer<std::int32_t>(row, 1),
                         .state = integer<std::int32_t>(row, 2),
                         .item_id = row.text(3),
                         .client_handle = integer<std::int32_t>(row, 4),
                         .item_trigger = row.number(5) != 0,
                         .trigger_expression = integer<std::int16_t>(row, 6),
                         .trigger_value = value_from(row, 7, 8),
                         .constant = row.real(9),
                         .save_as = integer<std::int16_t>(row, 10)});
    return found;
}

StoredTest ConfigurationStore::add_test(std::int64_t configuration_id) {
    Statement(file_, "INSERT INTO test (configuration_id) VALUES (?1)").bind(1, configuration_id).step();
    StoredTest added;
    added.id = file_.last_row_id();
    return added;
}

std::vector<StoredDescriptor> ConfigurationStore::descriptors_of(std::int64_t configuration_id) {
    std::vector<StoredDescriptor> found;
    Statement row(file_, "SELECT id, type, item_name, group_name FROM descriptor"
                         " WHERE configuration_id = ?1 ORDER BY id");
    row.bind(1, configuration_id);
    while (row.step())
        found.push_back({row.number(0), integer<std::int32_t>(row, 1), row.text(2), row.text(3)});
    return found;
}

StoredDescriptor ConfigurationStore::add_descriptor(std::int64_t configuration_id, std::int32_t type) {
    Statement(file_, "INSERT INTO descriptor (configuration_id, type) VALUES (?1, ?2)")
        .bind(1, configuration_id)
        .bind(2, std::int64_t{type})
        .step();
    return {file_.last_row_id(), type, "", ""};
}

void ConfigurationStore::remove_row(const char* table, std::int64_t id) {
    Statement(file_, (std::string("DELETE FROM ") + table + " WHERE id = ?1").c_str()).bind(1, id).step();
}

} // namespace brx::host
