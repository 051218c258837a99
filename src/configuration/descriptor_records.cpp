#include "common/model/database.h"
#include "common/model/factory.h"
#include "configuration/dlgDescriptorProperties.h"

// What the descriptor properties dialog asks the database: records by name, groups by id, and a person's
// choice among them.

namespace brx {

void dlgDescriptorProperties::SelectPart() {
    trap("SelectPart", [&] {
        const std::int32_t id = GetPartID(txtItem.text());
        pick(class_name::hlxPartSelection, id, GetPtgpId(txtGroup.text()),
             &dlgDescriptorProperties::GetPtgpName);
    });
}

void dlgDescriptorProperties::SelectProcess() {
    trap("SelectProcess", [&] {
        const std::int32_t id = GetPrcsID(txtItem.text());
        pick(class_name::hlxProcessSelection, id, GetPrgpId(txtGroup.text()),
             &dlgDescriptorProperties::GetPrgpName);
    });
}

void dlgDescriptorProperties::SelectJob() {
    trap("SelectJob", [&] {
        const std::int32_t id = GetJobID(txtItem.text());
        pick(class_name::hlxJobSelection, id, GetJbgpId(txtGroup.text()),
             &dlgDescriptorProperties::GetJbgpName);
    });
}

void dlgDescriptorProperties::SelectShift() {
    trap("SelectShift", [&] {
        const std::int32_t id = GetShftID(txtItem.text());
        pick(class_name::hlxShiftSelection, id, GetShgpId(txtGroup.text()),
             &dlgDescriptorProperties::GetShgpName);
    });
}

/// Descriptors of one name can be in several groups, so the group comes first here.
void dlgDescriptorProperties::SelectDescriptor() {
    trap("SelectDescriptor", [&] {
        const std::int32_t group_id = GetDsgpId(txtGroup.text());
        pick(class_name::hlxDescriptorSelection, GetDescID(txtItem.text(), group_id), group_id,
             &dlgDescriptorProperties::GetDsgpName);
    });
}

/// Lets a person pick a record, starting from this one.
void dlgDescriptorProperties::pick(const char* selection, std::int32_t id, std::int32_t group_id,
                                   GroupName name_of_group) {
    const auto dialog = create<hlxSelection>(environment().objects, selection);
    if (!answered([&] { return dialog->Show(database_, id, group_id); })) return;
    const auto record = resolve<hlxRecord>(dialog->Record());
    const std::string name = record->Name();
    const std::optional<std::string> group = (this->*name_of_group)(record->GroupID());
    if (!group) return;
    txtItem.set_text(name);
    txtGroup.set_text(*group);
}

namespace {

/// The record with the key that `set_key` sets; Nothing when the database has none.
template <class SetKey>
hlxRecordPtr find(ObjectFactory& factory, const char* record_class, const hlxDatabasePtr& database,
                  SetKey&& set_key) {
    auto record = create<hlxRecord>(factory, record_class);
    set_key(*record);
    record->set_SearchFlag(1);
    return record->Load(database) ? record : nullptr;
}

} // namespace

std::int32_t dlgDescriptorProperties::find_id(const char* procedure, const char* record,
                                              const std::string& name, std::optional<std::int32_t> group_id) {
    std::int32_t id = 0;
    trap(procedure, [&] {
        const auto found = find(environment().objects, record, database_, [&](hlxRecord& key) {
            if (group_id) key.set_GroupID(*group_id);
            key.set_Name(name);
        });
        if (found) id = found->ID();
    });
    return id;
}

std::optional<std::string> dlgDescriptorProperties::find_name(const char* procedure, const char* record,
                                                              std::int32_t id) {
    std::optional<std::string> name;
    trap(procedure, [&] {
        const auto found =
            find(environment().objects, record, database_, [&](hlxRecord& key) { key.set_ID(id); });
        name = found ? found->Name() : std::string();
    });
    return name;
}

std::int32_t dlgDescriptorProperties::GetPartID(const std::string& name) {
    return find_id("GetPartID", class_name::hlxPart, name);
}

std::int32_t dlgDescriptorProperties::GetPtgpId(const std::string& name) {
    return find_id("GetPtgpId", class_name::hlxPartGroup, name);
}

std::optional<std::string> dlgDescriptorProperties::GetPtgpName(std::int32_t id) {
    return find_name("GetPtgpName", class_name::hlxPartGroup, id);
}

std::int32_t dlgDescriptorProperties::GetPrcsID(const std::string& name) {
    return find_id("GetPrcsID", class_name::hlxProcess, name);
}

std::int32_t dlgDescriptorProperties::GetPrgpId(const std::string& name) {
    return find_id("GetPrgpId", class_name::hlxProcessGroup, name);
}

std::optional<std::string> dlgDescriptorProperties::GetPrgpName(std::int32_t id) {
    return find_name("GetPrgpName", class_name::hlxProcessGroup, id);
}

std::int32_t dlgDescriptorProperties::GetJobID(const std::string& name) {
    return find_id("GetJobID", class_name::hlxJob, name);
}

std::int32_t dlgDescriptorProperties::GetJbgpId(const std::string& name) {
    return find_id("GetJbgpId", class_name::hlxJobGroup, name);
}

std::optional<std::string> dlgDescriptorProperties::GetJbgpName(std::int32_t id) {
    return find_name("GetJbgpName", class_name::hlxJobGroup, id);
}

std::int32_t dlgDescriptorProperties::GetShftID(const std::string& name) {
    return find_id("GetShftID", class_name::hlxShift, name);
}

std::int32_t dlgDescriptorProperties::GetShgpId(const std::string& name) {
    return find_id("GetShgpId", class_name::hlxShiftGroup, name);
}

std::optional<std::string> dlgDescriptorProperties::GetShgpName(std::int32_t id) {
    return find_name("GetShgpName", class_name::hlxShiftGroup, id);
}

std::int32_t dlgDescriptorProperties::GetDescID(const std::string& name, std::int32_t group_id) {
    return find_id("GetDescID", class_name::hlxDescriptor, name, group_id);
}

std::int32_t dlgDescriptorProperties::GetDsgpId(const std::string& name) {
    return find_id("GetDsgpId", class_name::hlxDescriptorGroup, name);
}

std::optional<std::string> dlgDescriptorProperties::GetDsgpName(std::int32_t id) {
    return find_name("GetDsgpName", class_name::hlxDescriptorGroup, id);
}

} // namespace brx
