#include "configuring.h"

// The way from a test or a descriptor to the host's database, one owner after another missing or of another
// kind.

using namespace brx;
using namespace brx::checks;

namespace {

using Tell = std::function<void(std::int32_t number)>;

/// Breaks the way at one owner after another, from the far end; `tell` looks for the report of each.
void break_the_way(Play& its, const Tell& tell) {
    FakeConfiguration& configuration = *its.host.configuration;
    const auto entry = std::dynamic_pointer_cast<FakeServer>(configuration.server->entry);
    const auto of_another_kind = std::make_shared<FakeOPCGroup>(its.host.calls);
    its.host.servers->application = of_another_kind;
    tell(error::type_mismatch);
    its.host.servers->application = nullptr;
    tell(error::object_not_set);
    entry->parent = of_another_kind;
    tell(error::type_mismatch);
    entry->parent.reset();
    tell(error::object_not_set);
    configuration.server->entry = nullptr;
    tell(error::object_not_set);
    configuration.server = nullptr;
    tell(error::object_not_set);
}

} // namespace

SCENARIO(TestConfiguration, EveryOwnerOnTheWayToTheDatabaseIsNeeded) {
    const auto test = its.host.has_test(7, "Length");
    Showing edit(*its.stage, "TestConfiguration");
    const auto tell = [&](std::int32_t number) {
        edit.show(test);
        EXPECT_FALSE(edit.result());
        its.expect_report(number, "TestConfiguration.Show");
    };
    break_the_way(its, tell);
    its.host.configuration->tests->parent.reset();
    tell(error::object_not_set);
}

SCENARIO(DescriptorsTab, EveryOwnerOnTheWayToTheDatabaseIsNeeded) {
    its.host.configuration->descriptors->has({.type = 0, .item = "Wheel", .group = "Castings"});
    Configuring dialog(its);
    dialog.turns_to_descriptors();
    break_the_way(its, [&](std::int32_t number) {
        its.person.double_clicks("lvwDescriptors", "Part | Castings | Wheel");
        its.person.is_at("dlgConfiguration");
        its.expect_report(number, "dlgConfiguration.bnEditDesc_Click");
    });
    dialog.leaves();
}
