#pragma once

#include "host/row.h"

#include <string>
#include <vector>

namespace brx::host {

/// How often pieces or subgroups are taken, and by which item.
struct StoredSampling {
    std::int32_t interval = 0;
    std::int16_t time_unit = 0;
    std::string trigger_item;
    std::int16_t trigger_type = 0;
    Variant trigger_value;
};

struct StoredConfiguration {
    std::int64_t id = 0;
    std::string name;
    bool active = true;
    std::int32_t update_rate = 0; ///< milliseconds
    float dead_band = 0;          ///< percent
    std::int32_t subgroup_size = 0;
    Date sync_date_time;
    StoredSampling subgroup;
    StoredSampling piece;
};

struct StoredTest {
    std::int64_t id = 0;
    std::int32_t characteristic_id = 0; ///< 0 for none
    std::int32_t state = 0;
    std::string item_id;
    std::int32_t client_handle = 0;
    bool item_trigger = false;
    std::int16_t trigger_expression = 0;
    Variant trigger_value;
    double constant = 0;
    std::int16_t save_as = 0;
};

struct StoredDescriptor {
    std::int64_t id = 0;
    std::int32_t type = 0;
    std::string item_name;
    std::string group_name;
};

/// The configurations in the database file, each list in the order in which it was added to. Whatever fails
/// changes nothing.
class ConfigurationStore {
public:
    explicit ConfigurationStore(SqliteFile& file) : file_(file) {}

    std::vector<StoredConfiguration> of_server(std::int64_t server_id);
    /// A new one as the file makes it: with a name of its own, active, without tests.
    StoredConfiguration add(std::int64_t server_id);
    /// With its tests and descriptors.
    void remove(std::int64_t id) { remove_row("configuration", id); }
    Row row(std::int64_t id) { return {file_, "configuration", id}; }

    std::vector<StoredTest> tests_of(std::int64_t configuration_id);
    StoredTest add_test(std::int64_t configuration_id);
    void remove_test(std::int64_t id) { remove_row("test", id); }
    Row test_row(std::int64_t id) { return {file_, "test", id}; }

    std::vector<StoredDescriptor> descriptors_of(std::int64_t configuration_id);
    StoredDescriptor add_descriptor(std::int64_t configuration_id, std::int32_t type);
    void remove_descriptor(std::int64_t id) { remove_row("descriptor", id); }
    Row descriptor_row(std::int64_t id) { return {file_, "descriptor", id}; }

private:
    void remove_row(const char* table, std::int64_t id);

    SqliteFile& file_;
};

} // namespace brx::host
