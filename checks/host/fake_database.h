#pragma once

#include "common/model/database.h"
#include "host/recorded.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace brx::checks {

class FakeDatabase : public hlxDatabase {};

/// Whether a call was given the very database that the host gave out. Each stage has its own way to tell.
bool is_the_hosts_database(const hlxDatabasePtr& database);

/// The record of a test characteristic.
class FakeTestData : public hlxTestData, public Recorded {
public:
    FakeTestData(CallLog& calls, std::int32_t of_id, std::int32_t of_group, std::string named)
        : Recorded(calls, "hlxTestData"), id(of_id), group_id(of_group), name(std::move(named)) {}

    std::int32_t id;
    std::int32_t group_id;
    std::string name;
    /// Where the name of an id is found as the record is saved; null when it stays as it is.
    const std::map<std::int32_t, std::string>* names = nullptr;
    std::int16_t flag = 9;
    std::int16_t mode = 9;
    /// The ids that were saved, each with flag and mode as they were then.
    struct Saving {
        std::int32_t id;
        std::int16_t flag;
        std::int16_t mode;
        bool in_the_hosts_database;
        bool operator==(const Saving&) const = default;
    };
    std::vector<Saving> savings;

    std::int32_t ID() override { return read("ID", id); }
    void set_ID(std::int32_t value) override { write("ID", id, value); }
    std::int32_t GroupID() override { return read("GroupID", group_id); }
    std::string Name() override { return read("Name", name); }
    void set_Flag(std::int16_t value) override { write("Flag", flag, value); }
    void set_Mode(std::int16_t value) override { write("Mode", mode, value); }
    bool Load(const hlxDatabasePtr&) override { return read("Load", true); }
    void Save(const hlxDatabasePtr& database) override {
        note("Save");
        if (names && names->contains(id)) name = names->at(id);
        savings.push_back({id, flag, mode, is_the_hosts_database(database)});
    }
};

/// A look-up by id, of a test group.
class FakeTestGroup : public hlxRecord, public Recorded {
public:
    FakeTestGroup(CallLog& calls, const std::map<std::int32_t, std::string>& names)
        : Recorded(calls, "hlxRecord"), names_(names) {}

    std::int32_t ID() override { return id_; }
    void set_ID(std::int32_t value) override { write("ID", id_, value); }
    std::string Name() override { return read("Name", name_); }
    void set_Name(const std::string&) override { throw Error(error::internal, "A group is looked up by id"); }
    std::int32_t GroupID() override { return 0; }
    void set_GroupID(std::int32_t) override { throw Error(error::internal, "A group is in no group"); }
    void set_SearchFlag(std::int16_t value) override { write("SearchFlag", flag_, value); }
    bool Load(const hlxDatabasePtr& database) override {
        note("Load");
        const auto found = names_.find(id_);
        if (flag_ != 1 || !is_the_hosts_database(database) || found == names_.end()) return false;
        name_ = found->second;
        return answered(true);
    }

private:
    const std::map<std::int32_t, std::string>& names_;
    std::int32_t id_ = 0;
    std::int16_t flag_ = 0;
    std::string name_;
};

/// The picker of characteristics: it picks what the story says without asking anybody.
class FakePicker : public hlxSelection, public Recorded {
public:
    explicit FakePicker(CallLog& calls) : Recorded(calls, "hlxSelection") {}

    /// What will be picked; Nothing when the person cancels.
    ObjectPtr picks;
    /// The ids that it was shown with.
    std::vector<std::int32_t> shown_with;
    std::vector<std::int32_t> shown_with_groups;
    bool shows_the_hosts_database = false;

    bool Show(const hlxDatabasePtr& connection, std::int32_t id, std::int32_t group_id) override {
        note("Show");
        shown_with.push_back(id);
        shown_with_groups.push_back(group_id);
        shows_the_hosts_database = is_the_hosts_database(connection);
        return answered(picks != nullptr);
    }
    ObjectPtr Record() override { return read("Record", picks); }
};

} // namespace brx::checks
