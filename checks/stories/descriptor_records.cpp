#include "describing.h"

// The part, process, job, shift or label that a descriptor names, picked from the database.

using namespace brx;
using namespace brx::checks;

namespace {

struct KindOfRecord {
    std::int32_t type;
    const char* record;
    const char* group;
    const char* selection;
};

const std::vector<KindOfRecord> kinds_of_records = {
    {0, class_name::hlxPart, class_name::hlxPartGroup, class_name::hlxPartSelection},
    {1, class_name::hlxProcess, class_name::hlxProcessGroup, class_name::hlxProcessSelection},
    {2, class_name::hlxJob, class_name::hlxJobGroup, class_name::hlxJobSelection},
    {4, class_name::hlxShift, class_name::hlxShiftGroup, class_name::hlxShiftSelection},
    {5, class_name::hlxDescriptor, class_name::hlxDescriptorGroup, class_name::hlxDescriptorSelection},
    {6, class_name::hlxDescriptor, class_name::hlxDescriptorGroup, class_name::hlxDescriptorSelection}};

} // namespace

SCENARIO(DescriptorRecords, EachKindIsPickedFromItsOwnRecords) {
    for (const KindOfRecord& kind : kinds_of_records) {
        its.host.configuration->descriptors->entries.clear();
        Records& records = its.host.records;
        records.by_class = {{kind.record, {{.id = 11, .name = "Wheel", .group_id = 2}}},
                            {kind.group, {{.id = 2, .name = "Castings"}, {.id = 3, .name = "Forgings"}}}};
        records.searches.clear();
        FakePicker& picker = *its.host.pickers.at(kind.selection);
        picker.shown_with.clear();
        picker.shown_with_groups.clear();
        picker.picks = std::make_shared<FakeRecord>(its.host.calls, records,
                                                    RecordFields{.id = 12, .name = "Axle", .group_id = 3});

        Describing dialog(its, {.type = kind.type, .item = "Wheel", .group = "Castings"});
        its.person.presses("bnSelect");
        EXPECT_EQ(its.person.reads("txtItem"), "Axle");
        EXPECT_EQ(its.person.reads("txtGroup"), "Forgings");
        EXPECT_TRUE(picker.shows_the_hosts_database);
        EXPECT_EQ(picker.shown_with, std::vector<std::int32_t>{11});
        EXPECT_EQ(picker.shown_with_groups, std::vector<std::int32_t>{2});
        const Search item = {kind.record, "Wheel", 0, kind.type >= 5 ? 2 : -1};
        const Search group = {kind.group, "Castings", 0, -1};
        const Search picked_group = {kind.group, "", 3, -1};
        EXPECT_EQ(records.searches, kind.type >= 5 ? (std::vector<Search>{group, item, picked_group})
                                                   : (std::vector<Search>{item, group, picked_group}));
        dialog.confirms();
        EXPECT_EQ(dialog.fields(), (DescriptorFields{kind.type, "Axle", "Forgings"}));
        picker.picks = nullptr;
    }
}

SCENARIO(DescriptorRecords, UnknownNamesAreNoChoiceAndACancelledPickChangesNothing) {
    Describing dialog(its, {.type = 0, .item = "Nobody knows", .group = "this"});
    its.person.presses("bnSelect");
    const FakePicker& picker = *its.host.pickers.at(class_name::hlxPartSelection);
    EXPECT_EQ(picker.shown_with, std::vector<std::int32_t>{0});
    EXPECT_EQ(picker.shown_with_groups, std::vector<std::int32_t>{0});
    EXPECT_EQ(its.person.reads("txtItem"), "Nobody knows");
    EXPECT_EQ(its.person.reads("txtGroup"), "this");
    dialog.cancels();
}

SCENARIO(DescriptorRecords, APickedRecordOfAnUnknownGroupEmptiesTheGroup) {
    FakePicker& picker = *its.host.pickers.at(class_name::hlxPartSelection);
    picker.picks = std::make_shared<FakeRecord>(its.host.calls, its.host.records,
                                                RecordFields{.id = 12, .name = "Axle", .group_id = 9});
    Describing dialog(its, {.type = 0, .item = "Wheel", .group = "Castings"});
    its.person.presses("bnSelect");
    EXPECT_EQ(its.person.reads("txtItem"), "Axle");
    EXPECT_EQ(its.person.reads("txtGroup"), "");
    EXPECT_FALSE(its.person.can_press("bnOK"));
    dialog.cancels();
    picker.picks = nullptr;
}

SCENARIO(DescriptorRecords, AGroupThatCannotBeLookedUpChangesNothing) {
    FakePicker& picker = *its.host.pickers.at(class_name::hlxPartSelection);
    picker.picks = std::make_shared<FakeRecord>(its.host.calls, its.host.records,
                                                RecordFields{.id = 12, .name = "Axle", .group_id = 9});
    Describing dialog(its, {.type = 0, .item = "Wheel", .group = "Castings"});
    its.host.calls.fail_on("hlxRecord.ID="); // groups are looked up by their ids
    its.person.presses("bnSelect");
    its.expect_report(CallLog::failure_number, "dlgDescriptorProperties.GetPtgpName");
    EXPECT_EQ(its.person.reads("txtItem"), "Wheel");
    EXPECT_EQ(its.person.reads("txtGroup"), "Castings");
    dialog.cancels();
    picker.picks = nullptr;
}
