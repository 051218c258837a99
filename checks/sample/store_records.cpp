#include "sample/store_stage.h"

#include "host/records.h"

#include <gmock/gmock.h>

namespace brx::host {

namespace {

using testing::ElementsAre;

class StoreRecords : public StoreCheck {
protected:
    /// The look-up as a dialog makes it; the id, or 0 when nothing is found.
    std::int32_t id_of(RecordKind kind, Record::Level level, const std::string& name,
                       std::int32_t group_id = 0) {
        Record record(kind, level);
        record.set_Name(name);
        record.set_GroupID(group_id);
        record.set_SearchFlag(1);
        return record.Load(host->database()) ? record.ID() : 0;
    }
    static std::vector<std::string> names(const std::vector<StoredRecord>& records) {
        std::vector<std::string> all;
        for (const StoredRecord& each : records) all.push_back(each.name);
        return all;
    }

    std::shared_ptr<Host> host = opened();
};

TEST_F(StoreRecords, EveryKindHasSampleGroupsWithRecords) {
    for (const RecordKind kind : {RecordKind::characteristic, RecordKind::part, RecordKind::process,
                                  RecordKind::job, RecordKind::shift, RecordKind::descriptor}) {
        RecordStore store = host->records(kind);
        EXPECT_GE(store.groups().size(), 2U);
        for (const StoredRecord& group : store.groups()) EXPECT_GE(store.records_of(group.id).size(), 2U);
    }
    EXPECT_THAT(names(host->records(RecordKind::part).groups()), ElementsAre("Bottles", "Closures"));
    EXPECT_THAT(names(host->records(RecordKind::part).records_of(12)),
                ElementsAre("Crown cork 26 mm", "Screw cap 28 mm"));
}

TEST_F(StoreRecords, AreFoundByNameWithinTheirKind) {
    EXPECT_EQ(id_of(RecordKind::part, Record::Level::record, "bottle 0.5 L"), 201);
    EXPECT_EQ(id_of(RecordKind::part, Record::Level::group, "Bottles"), 11);
    EXPECT_EQ(id_of(RecordKind::process, Record::Level::record, "Bottle 0.5 l"), 0);
    EXPECT_EQ(id_of(RecordKind::process, Record::Level::group, "Bottles"), 0);
    EXPECT_EQ(id_of(RecordKind::part, Record::Level::record, "' OR 1 = 1 --"), 0);
}

TEST_F(StoreRecords, ADescriptorIsFoundWithinAGroup) {
    EXPECT_EQ(id_of(RecordKind::descriptor, Record::Level::record, "Hourly", 52), 612);
    EXPECT_EQ(id_of(RecordKind::descriptor, Record::Level::record, "Hourly", 51), 0);
    EXPECT_EQ(id_of(RecordKind::descriptor, Record::Level::record, "Hourly"), 612);
}

TEST_F(StoreRecords, AreFoundByIdWhenThereIsNoName) {
    Record record(RecordKind::shift, Record::Level::record);
    record.set_ID(503);
    record.set_SearchFlag(1);
    EXPECT_TRUE(record.Load(host->database()));
    EXPECT_EQ(record.Name(), "Night shift");
    EXPECT_EQ(record.GroupID(), 41);
    Record group(RecordKind::shift, Record::Level::group);
    group.set_ID(41);
    group.set_SearchFlag(1);
    EXPECT_TRUE(group.Load(host->database()));
    EXPECT_EQ(group.Name(), "Weekdays");
    EXPECT_EQ(group.GroupID(), 0);
}

TEST_F(StoreRecords, WhatIsNotFoundChangesNothing) {
    Record record(RecordKind::shift, Record::Level::record);
    record.set_ID(201); // a part
    record.set_SearchFlag(1);
    EXPECT_FALSE(record.Load(host->database()));
    EXPECT_EQ(record.ID(), 201);
    EXPECT_EQ(record.Name(), "");
}

TEST_F(StoreRecords, NothingIsLookedUpWithoutTheFlag) {
    Record record(RecordKind::shift, Record::Level::record);
    record.set_ID(503);
    EXPECT_FALSE(record.Load(host->database()));
}

TEST_F(StoreRecords, NeedADatabaseOfTheHosts) {
    struct Foreign : hlxDatabase {};
    Record record(RecordKind::shift, Record::Level::record);
    EXPECT_EQ(error_of([&] { record.Load(nullptr); }), error::object_not_set);
    EXPECT_EQ(error_of([&] { record.Load(std::make_shared<Foreign>()); }), error::type_mismatch);
}

TEST_F(StoreRecords, ACharacteristicByItselfIsLoadedButNotSaved) {
    TestData data(host->database(), {});
    data.set_ID(131);
    EXPECT_TRUE(data.Load(host->database()));
    EXPECT_EQ(data.Name(), "Bore diameter");
    EXPECT_EQ(data.GroupID(), 4);
    EXPECT_EQ(error_of([&] { data.Save(host->database()); }), error::invalid_procedure_call);
    EXPECT_EQ(error_of([&] { data.Load(nullptr); }), error::object_not_set);
    data.set_ID(201);
    EXPECT_FALSE(data.Load(host->database()));
}

} // namespace

} // namespace brx::host
