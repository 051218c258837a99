#pragma once

#include "host/fake_database.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace brx::checks {

/// What the database keeps of a part, process, job, shift or descriptor, or of a group of these.
struct RecordFields {
    std::int32_t id = 0;
    std::string name;
    std::int32_t group_id = 0;
    bool operator==(const RecordFields&) const = default;
};

/// How one record was looked for.
struct Search {
    std::string record_class;
    std::string name;
    std::int32_t id = 0;
    std::int32_t group_id = -1; ///< -1 when none was given
    bool operator==(const Search&) const = default;
};

/// The database's records by their class, and every search in them.
struct Records {
    std::map<std::string, std::vector<RecordFields>> by_class;
    std::vector<Search> searches;
};

/// A look-up of one record.
class FakeRecord : public hlxRecord, public Recorded {
public:
    FakeRecord(CallLog& calls, Records& records, std::string record_class)
        : Recorded(calls, "hlxRecord"), records_(records), search_{std::move(record_class), "", 0, -1} {}
    /// A record that was found already.
    FakeRecord(CallLog& calls, Records& records, RecordFields found)
        : Recorded(calls, "hlxRecord"), records_(records), found_(std::move(found)) {}

    std::int32_t ID() override { return read("ID", found_.id); }
    void set_ID(std::int32_t value) override { write("ID", search_.id, value); }
    std::string Name() override { return read("Name", found_.name); }
    void set_Name(const std::string& value) override { write("Name", search_.name, value); }
    std::int32_t GroupID() override { return read("GroupID", found_.group_id); }
    void set_GroupID(std::int32_t value) override { write("GroupID", search_.group_id, value); }
    void set_SearchFlag(std::int16_t value) override { write("SearchFlag", flag_, value); }
    bool Load(const hlxDatabasePtr& database) override {
        note("Load");
        records_.searches.push_back(search_);
        if (flag_ != 1 || !is_the_hosts_database(database)) return false;
        for (const RecordFields& each : records_.by_class[search_.record_class]) {
            if (search_.name.empty() ? each.id != search_.id : each.name != search_.name) continue;
            if (search_.group_id >= 0 && each.group_id != search_.group_id) continue;
            found_ = each;
            return answered(true);
        }
        return false;
    }

private:
    Records& records_;
    Search search_;
    RecordFields found_;
    std::int16_t flag_ = 0;
};

} // namespace brx::checks
