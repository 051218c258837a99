#pragma once

#include "collect/series.h"
#include "host/sqlite.h"

#include <map>
#include <string>
#include <vector>

namespace brx::host {

/// A complete subgroup of a test.
struct StoredSubgroup {
    std::int64_t test_id = 0;
    std::int64_t characteristic_id = 0; ///< 0 for none
    std::string item_id;
    Date completed; ///< local time
    std::vector<double> pieces;
    std::vector<collect::Label> labels;
    bool operator==(const StoredSubgroup&) const = default;
};

/// The complete subgroups in the database file.
class SubgroupStore {
public:
    explicit SubgroupStore(SqliteFile& file) : file_(file) {}

    /// Once this has returned, the file has the subgroup whatever becomes of the program; otherwise nothing
    /// of it.
    void add(const StoredSubgroup& subgroup);
    /// How many there are of each test of a configuration that has any.
    std::map<std::int64_t, std::int64_t> counts(std::int64_t configuration_id);
    /// The oldest first.
    std::vector<StoredSubgroup> of_test(std::int64_t test_id);

private:
    SqliteFile& file_;
};

} // namespace brx::host
