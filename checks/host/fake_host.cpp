#include "host/fake_host.h"

#include <set>

namespace brx::checks {

FakeHost::FakeHost()
    : servers(std::make_shared<FakeServers>(calls)),
      enumerator(std::make_shared<FakeOPCServer>(calls)),
      fresh_connection(enumerator),
      connection(std::make_shared<FakeOPCServer>(calls)),
      browser(std::make_shared<FakeBrowser>(calls)),
      group(std::make_shared<FakeOPCGroup>(calls)),
      help_service(std::make_shared<FakeHelpService>(calls)) {
    connection->server_name = "Matrix";
    connection->server_node = "PC7";
    connection->browser = browser;
    group->server = connection;
    set_up_configuration();
    local_servers({"Plant.Simulation.1", "Line.Server.2"});
}

void FakeHost::set_up_configuration() {
    configuration = std::make_shared<FakeConfiguration>(calls);
    application = std::make_shared<FakeApplication>(calls);
    database = std::make_shared<FakeDatabase>();
    picker = std::make_shared<FakePicker>(calls);
    const auto entry = std::make_shared<FakeServer>(calls, "Matrix", "PC7");
    entry->connection = connection;
    entry->parent = servers;
    servers->application = application;
    application->database = database;
    configuration->server = std::make_shared<FakeServerHolder>(calls);
    configuration->server->entry = entry;
    configuration->group = group;
    configuration->tests = std::make_shared<FakeTests>(calls);
    configuration->tests->parent = configuration;
    configuration->tests->characteristics = {{7, "Length"}, {8, "Width"}, {9, "Mass"}};
    configuration->descriptors = std::make_shared<FakeDescriptors>(calls);
    groups = std::make_shared<FakeOPCGroups>(calls);
    connection->groups = groups;
    for (const char* selection :
         {class_name::hlxPartSelection, class_name::hlxProcessSelection, class_name::hlxJobSelection,
          class_name::hlxShiftSelection, class_name::hlxDescriptorSelection})
        pickers[selection] = std::make_shared<FakePicker>(calls);
    test_groups = {{1, "Dimensions"}, {2, "Weights"}};
}

std::shared_ptr<FakeTest> FakeHost::has_test(std::int32_t id, const std::string& name,
                                             std::int32_t group_id) {
    const auto test = configuration->tests->has(id, name, group_id);
    test->fields.characteristic = name;
    return test;
}

void FakeHost::Show(ErrorLibrary library, const ErrorReport& report,
                    const std::function<void()>& otherwise) noexcept {
    all_reports.push_back({library, report});
    if (error_classes.at(library) != ErrorClass::works) return otherwise();
    reports.push_back({library, report});
}

ObjectPtr FakeHost::create(const std::string& name) {
    const ObjectPtr made = make(name);
    if (!made) throw Error(error::cannot_create_object);
    calls.note("create " + name.substr(name.find('.') + 1));
    return made;
}

/// Nothing of a class that the host does not have.
ObjectPtr FakeHost::make(const std::string& name) {
    if (name == class_name::hlxHelp) return help_service;
    if (name == class_name::hlxMessage) return message_service;
    if (name == class_name::hlxTestSelection) return picker;
    if (const auto found = pickers.find(name); found != pickers.end()) return found->second;
    if (name == class_name::hlxOPCServer && can_create_entries) {
        const auto entry = std::make_shared<FakeServer>(calls, "", "");
        entry->connection = fresh_connection;
        return remembered(entry);
    }
    if (name == class_name::hlxTestGroup)
        return remembered(std::make_shared<FakeTestGroup>(calls, test_groups));
    static const std::set<std::string> record_classes = {
        class_name::hlxPart,           class_name::hlxPartGroup,  class_name::hlxProcess,
        class_name::hlxProcessGroup,   class_name::hlxJob,        class_name::hlxJobGroup,
        class_name::hlxShift,          class_name::hlxShiftGroup, class_name::hlxDescriptor,
        class_name::hlxDescriptorGroup};
    if (record_classes.contains(name)) return remembered(std::make_shared<FakeRecord>(calls, records, name));
    return nullptr;
}

ObjectPtr FakeHost::remembered(const ObjectPtr& fresh) {
    std::erase_if(created_, [](const auto& created) { return created.expired(); });
    created_.push_back(fresh);
    return fresh;
}

std::string FakeHost::still_held() const {
    std::string held;
    if (servers.use_count() > 1) held += "The servers collection is still referred to. ";
    for (const auto& entry : servers->entries())
        if (entry.use_count() > (entry == configuration->server->entry ? 2 : 1))
            held += "A server entry is still referred to. ";
    if (enumerator.use_count() > 2) held += "The enumerating server is still referred to. ";
    if (connection.use_count() > 2) held += "The browsed server is still referred to. ";
    if (browser.use_count() > 2) held += "The browser is still referred to. ";
    if (group.use_count() > 2) held += "The group is still referred to. ";
    if (group->items.use_count() > 1) held += "The group's items are still referred to. ";
    if (configuration.use_count() > 1) held += "The configuration is still referred to. ";
    if (configuration->tests.use_count() > 1) held += "The tests are still referred to. ";
    for (const auto& test : configuration->tests->entries) {
        // A story may hold on to a test and its record.
        if (test.use_count() > 2) held += "A test is still referred to. ";
        if (test->data.use_count() > 2) held += "A test's record is still referred to. ";
    }
    if (database.use_count() > 2) held += "The database is still referred to. ";
    if (configuration->descriptors.use_count() > 1) held += "The descriptors are still referred to. ";
    for (const auto& descriptor : configuration->descriptors->entries)
        if (descriptor.use_count() > 1) held += "A descriptor is still referred to. ";
    if (groups.use_count() > 2) held += "The groups are still referred to. ";
    for (const auto& [name, selection] : pickers)
        if (selection.use_count() > 1) held += "A selection dialog is still referred to. ";
    if (picker.use_count() > 1) held += "The picker is still referred to. ";
    for (const auto& created : created_)
        if (!created.expired()) held += "A created server entry is still referred to. ";
    return held;
}

} // namespace brx::checks
