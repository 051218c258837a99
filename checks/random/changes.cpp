#include "random/changes.h"

#include "host/fake_host.h"
#include "random/values.h"

#include <array>
#include <limits>
#include <map>

namespace brx::checks {

namespace {

/// A host, and what the change is about.
struct About {
    FakeHost& host;
    int number; ///< from 0
    const std::string& text;

    FakeTests& tests() const { return *host.configuration->tests; }
    FakeDescriptors& descriptors() const { return *host.configuration->descriptors; }
    FakeOPCItems& items() const { return *host.group->items; }
    bool odd() const { return number % 2 == 1; }
    /// A whole number of some range.
    int of(int end) const { return number % end; }
};

using Change = void (*)(const About& its);

template <class Entries> void drop_one(Entries& entries, int number) {
    if (!entries.empty()) entries.erase(entries.begin() + number % static_cast<int>(entries.size()));
}

void a_test_comes(const About& its) {
    const auto test = its.host.has_test(7 + its.of(4), its.of(3) ? "Length" : its.text, its.of(3));
    if (its.of(4) == 0) return;
    test->fields.item_id = test->fields.item_text = its.of(3) == 0 ? its.text : "Line1.Speed";
    test->fields.state = its.of(4) - 1;
    test->fields.client_handle = 55;
    test->fields.item_trigger = its.odd();
    test->fields.expression = static_cast<std::int16_t>(its.of(9) - 1);
    test->fields.value = value_at(its.number);
    test->fields.constant = its.number / 2.0;
    test->fields.save_as = static_cast<std::int16_t>(its.of(6) - 1);
}

void a_branch_comes(const About& its) {
    FakeBranch* where = &its.host.browser->root;
    for (int depth = its.of(3); depth > 0 && !where->branches.empty(); --depth)
        where = &where->branches.back();
    where->has(its.text,
               its.odd() ? std::vector<std::string>{"Speed", "Force", its.text} : std::vector<std::string>{});
}

void a_branch_is_renamed(const About& its) {
    if (!its.host.browser->root.branches.empty()) its.host.browser->root.branches.front().name = its.text;
}

void the_leaves_change(const About& its) {
    FakeBranch& root = its.host.browser->root;
    std::vector<std::string>& leaves = root.branches.empty() ? root.leaves : root.branches.front().leaves;
    leaves.assign(static_cast<std::size_t>(its.of(40)), its.text);
}

void a_browser_member_breaks(const About& its) {
    static constexpr auto members = std::to_array<const char*>(
        {"Organization", "Count", "Item", "ShowBranches", "ShowLeafs", "MoveToRoot", "MoveTo", "GetItemID"});
    its.host.browser->failing = {members[static_cast<std::size_t>(its.number) % members.size()]};
    its.host.browser->failure = error_at(its.number).number();
}

void an_item_comes(const About& its) {
    static constexpr auto types = std::to_array<std::int16_t>({0, 2, 3, 4, 5, 7, 8, 11, 8192, 17});
    its.items().data_types[its.text] = types[static_cast<std::size_t>(its.number) % types.size()];
    its.items().answers[its.text] = 0;
    if (its.of(3) != 0) its.items().has(its.text);
}

LongArray handles(const About& its) {
    return {std::vector<std::int32_t>(static_cast<std::size_t>(its.of(3)), its.of(5)), its.of(4)};
}

/// Nobody picks anything, a record, a record of another kind, or an object that is none.
ObjectPtr picked(const About& its) {
    FakeHost& host = its.host;
    switch (its.of(5)) {
    case 0:
        return nullptr;
    case 1:
        return host.application;
    case 2:
        return std::make_shared<FakeTestData>(host.calls, its.of(11), its.of(3), its.text);
    default:
        return std::make_shared<FakeRecord>(host.calls, host.records,
                                            RecordFields{its.of(7), its.text, its.of(3)});
    }
}

void the_records_change(const About& its) {
    for (const char* name :
         {class_name::hlxPart, class_name::hlxProcess, class_name::hlxJob, class_name::hlxShift,
          class_name::hlxDescriptor, class_name::hlxPartGroup, class_name::hlxProcessGroup,
          class_name::hlxJobGroup, class_name::hlxShiftGroup, class_name::hlxDescriptorGroup})
        its.host.records.by_class[name].push_back({its.of(5), its.text, its.of(3)});
}

void the_configuration_is_another(const About& its) {
    ConfigurationFields& fields = its.host.configuration->fields;
    fields.name = its.text;
    fields.subgroup_size = its.number;
    fields.subgroup_interval = fields.piece_interval = its.number - 10;
    fields.subgroup_time_unit = fields.piece_time_unit = static_cast<std::int16_t>(its.of(11) - 2);
    fields.subgroup_trigger_item = its.odd() ? its.text : "";
    fields.piece_trigger_item = its.of(3) ? "Line1.Speed" : its.text;
    fields.subgroup_trigger_type = static_cast<std::int16_t>(its.of(9) - 1);
    fields.piece_trigger_type = static_cast<std::int16_t>(its.of(8));
    fields.subgroup_trigger_value = value_at(its.number);
    fields.piece_trigger_value = value_at(its.number / 3);
    fields.sync_date_time = Date{its.of(4) == 0 ? -700'000.0 : 46'000.0 + its.number};
    fields.dead_band = static_cast<float>(its.number) / 7;
    fields.update_rate = its.of(10) == 9 ? std::numeric_limits<std::int32_t>::max() : its.number * 10 - 5;
    fields.active = its.odd();
}

const std::map<std::string, Change>& all_changes() {
    static const std::map<std::string, Change> all = {
        {"a test comes", a_test_comes},
        {"a test goes", [](const About& its) { drop_one(its.tests().entries, its.number); }},
        {"all tests go", [](const About& its) { its.tests().entries.clear(); }},
        {"tests cannot be removed", [](const About& its) { its.tests().keeps_all = its.odd(); }},
        {"tests go and fail", [](const About& its) { its.tests().drops_and_fails = its.odd(); }},
        {"tests come and fail", [](const About& its) { its.tests().adds_and_fails = its.odd(); }},
        {"adding a test gives nothing", [](const About& its) { its.tests().gives_nothing = its.odd(); }},
        {"a descriptor comes",
         [](const About& its) {
             its.descriptors().has(
                 {.type = its.of(8) - 1, .item = its.text, .group = its.odd() ? its.text : ""});
         }},
        {"a descriptor goes", [](const About& its) { drop_one(its.descriptors().entries, its.number); }},
        {"descriptors cannot be removed", [](const About& its) { its.descriptors().keeps_all = its.odd(); }},
        {"descriptors go and fail", [](const About& its) { its.descriptors().drops_and_fails = its.odd(); }},
        {"descriptors come and fail", [](const About& its) { its.descriptors().adds_and_fails = its.odd(); }},
        {"adding a descriptor gives nothing",
         [](const About& its) { its.descriptors().gives_nothing = its.odd(); }},
        {"descriptors come in front", [](const About& its) { its.descriptors().adds_in_front = its.odd(); }},
        {"descriptors lose blanks", [](const About& its) { its.descriptors().trims_names = its.odd(); }},
        {"a server comes", [](const About& its) { its.host.servers->has(its.text, its.odd() ? "PC7" : ""); }},
        {"a connected server comes",
         [](const About& its) { its.host.servers->has_connected(its.text, its.odd() ? "PC7" : ""); }},
        {"servers are refused",
         [](const About& its) { its.host.servers->refuses(its.odd() ? its.text : ""); }},
        {"the servers claim a count",
         [](const About& its) { its.host.servers->claims_count(its.of(9) - 2); }},
        {"a node has servers",
         [](const About& its) {
             its.host.enumerator->registered[its.odd() ? "" : its.text] =
                 its.of(3) ? Variant(StringArray{{its.text, "Line.Server.2"}, its.of(2)})
                           : value_at(its.number);
         }},
        {"fresh entries have no connection",
         [](const About& its) {
             its.host.fresh_connection = its.odd() ? nullptr : ObjectPtr(its.host.enumerator);
         }},
        {"no entries can be created", [](const About& its) { its.host.can_create_entries = !its.odd(); }},
        {"a branch comes", a_branch_comes},
        {"a branch is renamed", a_branch_is_renamed},
        {"the leaves change", the_leaves_change},
        {"the address space is empty", [](const About& its) { its.host.browser->loses_everything(); }},
        {"the organization changes", [](const About& its) { its.host.browser->organization = its.of(4); }},
        {"the browser claims a count",
         [](const About& its) {
             its.host.browser->claimed_count.reset();
             if (its.odd()) its.host.browser->claimed_count = its.of(60) - 10;
         }},
        {"a member of the browser breaks", a_browser_member_breaks},
        {"the browser works again", [](const About& its) { its.host.browser->failing.clear(); }},
        {"the server cannot be browsed",
         [](const About& its) { its.host.connection->can_browse = !its.odd(); }},
        {"an item comes", an_item_comes},
        {"an item is refused", [](const About& its) { its.items().answers[its.text] = -1 - its.number; }},
        {"all items go", [](const About& its) { its.items().forget_all(); }},
        {"Validate claims errors",
         [](const About& its) {
             its.items().claimed_errors.reset();
             if (its.odd()) its.items().claimed_errors = its.of(3) == 0 ? handles(its) : LongArray{{0}};
         }},
        {"AddItems claims handles",
         [](const About& its) {
             its.items().claimed_handles.reset();
             if (its.odd()) its.items().claimed_handles = handles(its);
         }},
        {"a group comes", [](const About& its) { its.host.groups->has(its.text); }},
        {"the groups go", [](const About& its) { its.host.groups->entries.clear(); }},
        {"a characteristic is picked", [](const About& its) { its.host.picker->picks = picked(its); }},
        {"a record is picked",
         [](const About& its) {
             for (const auto& [name, picker] : its.host.pickers) picker->picks = picked(its);
         }},
        {"the records change", the_records_change},
        {"the configuration is another", the_configuration_is_another},
        {"the configuration has no server",
         [](const About& its) { static_cast<void>(its.host.configuration->server->entry = nullptr); }},
        {"an error library changes",
         [](const About& its) {
             its.host.error_classes[its.of(2) ? ErrorLibrary::hlxER01 : ErrorLibrary::brxError6] =
                 static_cast<ErrorClass>(its.of(3));
         }},
        {"the message service changes",
         [](const About& its) {
             its.host.message_service =
                 its.odd() ? std::make_shared<FakeMessageService>(its.host.calls) : nullptr;
         }},
        {"the help is elsewhere", [](const About& its) { its.host.help_service->path = its.text; }},
    };
    return all;
}

} // namespace

std::vector<std::string> changes_of_a_host() {
    std::vector<std::string> names;
    for (const auto& [name, change] : all_changes()) names.push_back(name);
    return names;
}

void change(FakeHost& host, const std::string& what, int number, const std::string& text) {
    const auto found = all_changes().find(what);
    if (found != all_changes().end()) found->second({host, number < 0 ? -number : number, text});
}

} // namespace brx::checks
