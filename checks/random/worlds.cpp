#include "random/worlds.h"

#include "host/fake_host.h"

namespace brx::checks {

namespace {

void fill_address_space(FakeHost& host) {
    FakeBranch& root = host.browser->root;
    root.leaves = {"Version"};
    FakeBranch& line = root.has("Line1", {"Speed", "Force", "Running"});
    line.has("Oven", {"Temperature", "Door"});
    root.has("Line2", {"Count"});
    FakeOPCItems& items = *host.group->items;
    items.data_types = {{"Short", 2}, {"Count", 3}, {"Single", 4}, {"Flag", 11}, {"Text", 8}};
    for (const char* item : {"Line1.Speed", "Line1.Force", "Line1.Running", "Line1.Oven.Door", "Line2.Count"})
        items.answers[item] = 0;
    for (const char* item : {"Line1.Speed", "Line1.Force", "Short", "Count", "Single", "Flag", "Text"})
        items.has(item);
}

void fill_configuration(FakeHost& host) {
    const auto other = host.has_test(8, "Width");
    other->fields.item_id = other->fields.item_text = "Line1.Force";
    const auto bound = host.has_test(7, "Length");
    bound->fields.item_id = bound->fields.item_text = "Line1.Speed";
    bound->fields.client_handle = 101;
    bound->fields.item_trigger = true;
    bound->fields.expression = 2;
    bound->fields.value = std::int16_t{12};
    host.configuration->descriptors->has({.type = 0, .item = "Wheel", .group = "Castings"});
    host.configuration->descriptors->has({.type = 2, .item = "(%Line1.Speed)", .group = ""});
    ConfigurationFields& fields = host.configuration->fields;
    fields.name = "Line 1";
    fields.sync_date_time = Date{46347.5625};
    fields.subgroup_trigger_item = "Short";
    fields.subgroup_trigger_type = 1;
    fields.subgroup_trigger_value = std::int16_t{5};
}

void fill_database(FakeHost& host) {
    int id = 0;
    for (const char* name : {class_name::hlxPart, class_name::hlxProcess, class_name::hlxJob,
                             class_name::hlxShift, class_name::hlxDescriptor})
        host.records.by_class[name] = {{++id, "Wheel", 1}, {++id, "Axle", 2}};
    for (const char* name : {class_name::hlxPartGroup, class_name::hlxProcessGroup, class_name::hlxJobGroup,
                             class_name::hlxShiftGroup, class_name::hlxDescriptorGroup})
        host.records.by_class[name] = {{1, "Castings", 0}, {2, "Turned parts", 0}};
    host.picker->picks = std::make_shared<FakeTestData>(host.calls, 9, 2, "Mass");
    for (const auto& [name, picker] : host.pickers)
        picker->picks = std::make_shared<FakeRecord>(host.calls, host.records, RecordFields{1, "Wheel", 1});
}

} // namespace

void fill(FakeHost& host) {
    host.servers->has("Sim", "PC9");
    host.servers->has_connected("Matrix", "PC7");
    host.servers_on("PC7", {"Plant.Simulation.1"});
    host.groups->has("Group1");
    host.groups->has("Group2");
    fill_address_space(host);
    fill_configuration(host);
    fill_database(host);
}

} // namespace brx::checks
