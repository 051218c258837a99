#include "apart/main_stories.h"

#include "stories/configuring.h"

namespace brx::checks {

namespace {

/// A test of an item that the server's group has, so that the configuration can be closed.
void a_configured_test(Play& its) {
    const auto test = its.host.has_test(7, "Length");
    test->fields.item_id = test->fields.item_text = "Filler.Speed";
}

/// In the item browser, which the dialog in front opens.
void types_the_weight(Person& person) {
    person.presses("bnItem");
    person.is_at("dlgItemSelect");
    person.enters("txtFullPath", "Filler.Head 1.Weight");
    person.presses("bnOK");
}

} // namespace

void chooses_a_server(ApartPlay& play) {
    Play& its = play.its;
    its.host.servers->has_connected("Matrix")->connection = play.connection();
    Showing select(*its.stage, "ServerSelect");
    select.show(its.host.servers);
    its.person.is_at("dlgServerSelect");
    its.person.presses("bnServer");
    its.person.is_at("dlgServerAdd");
    EXPECT_EQ(its.person.lines_of("lstOPCServers"),
              (Lines{"Simulation.Packing.1", "Simulation.Metering.1", "Simulation.Terminal.1"}));
    its.person.enters("txtNode", "LINE1");
    its.person.presses("cmdRefreshList");
    its.person.picks("lstOPCServers", "Simulation.Filling.1");
    its.person.presses("bnOK");
    its.person.is_at("dlgServerSelect");
    its.person.presses("bnOK");
    EXPECT_TRUE(select.result());
    EXPECT_EQ(select.ServerIndex(), 2);
    EXPECT_EQ(its.host.servers->additions(),
              (std::vector<Addition>{{"Simulation.Filling.1", "LINE1", true}}));
}

void looks_at_a_server(ApartPlay& play) {
    Play& its = play.its;
    Showing information(*its.stage, "ServerInformation");
    information.show(play.connection());
    its.person.is_at("dlgServerInformation");
    EXPECT_EQ(its.person.title(), "Simulation.Packing.1");
    EXPECT_EQ(its.person.reads("Version"), "3.0");
    EXPECT_EQ(its.person.reads("Vendor"), "Simulated packing line");
    // What is told once need not be waited for.
    if (its.host.reports.empty()) its.person.waits_for_ticks(1);
    its.person.presses("bnOK");
    EXPECT_TRUE(information.result());
}

void browses_for_an_item(ApartPlay& play) {
    Play& its = play.its;
    Showing select(*its.stage, "LeafSelect");
    select.show(play.connection(), play.group());
    its.person.is_at("dlgItemSelect");
    its.person.expands("TrView", "Filler");
    its.person.clicks_node("TrView", "Head 1");
    its.person.picks("lstItem", "Weight");
    its.person.presses("bnOK");
    EXPECT_TRUE(select.result());
    EXPECT_EQ(select.ItemID(), "Filler.Head 1.Weight");
}

void sets_up_a_test(ApartPlay& play) {
    Play& its = play.its;
    const auto test = its.host.has_test(0, "");
    Showing edit(*its.stage, "TestConfiguration");
    edit.show(test);
    its.person.is_at("dlgOPCTest");
    its.host.picker->picks = std::make_shared<FakeTestData>(its.host.calls, 7, 1, "Length");
    its.person.presses("bnTest");
    its.host.picker->picks = nullptr;
    types_the_weight(its.person);
    its.person.ticks("chkItemTrigger");
    its.person.picks("cboExpression", " > ");
    its.person.enters("txtValue", "12");
    its.person.presses("bnOK");
    EXPECT_TRUE(edit.result());
    EXPECT_EQ(test->fields.item_id, "Filler.Head 1.Weight");
    EXPECT_EQ(test->fields.value, Variant(12.0F)) << "The server told that it is a Single.";
}

void sets_a_trigger(ApartPlay& play) {
    Play& its = play.its;
    a_configured_test(its);
    Configuring dialog(its);
    dialog.turns_to_sampling();
    its.person.presses("cmdSubgroupTrigger");
    types_the_weight(its.person);
    its.person.is_at("dlgEvaluation");
    its.person.picks("cboExpression", " >= ");
    its.person.enters("txtValue", "500");
    its.person.presses("bnOK");
    its.person.is_at("dlgConfiguration");
    dialog.closes();
    EXPECT_EQ(dialog.fields().subgroup_trigger_item, "Filler.Head 1.Weight");
    EXPECT_EQ(dialog.fields().subgroup_trigger_value, Variant(500.0F));
}

void adds_a_descriptor(ApartPlay& play) {
    Play& its = play.its;
    a_configured_test(its);
    Configuring dialog(its);
    dialog.turns_to_descriptors();
    its.person.presses("bnAddDesc");
    its.person.picks("List1", "Lot");
    its.person.presses("bnOK");
    its.person.is_at("dlgDescriptorProperties");
    types_the_weight(its.person);
    its.person.is_at("dlgDescriptorProperties");
    its.person.presses("bnOK");
    its.person.is_at("dlgConfiguration");
    dialog.closes();
    EXPECT_EQ(its.host.configuration->descriptors->entries.at(0)->fields.item, "(%Filler.Head 1.Weight)");
}

void watches_a_server(ApartPlay& play) {
    Play& its = play.its;
    a_configured_test(its);
    Configuring dialog(its);
    dialog.turns_to("&4. Server Information");
    // Twelve rows and one for each group. A slow server is read in parts, and the timer rests between them.
    Lines rows;
    for (int parts = 0; parts < 8 && rows.size() < 13 && its.host.reports.empty(); ++parts) {
        if (parts > 0) its.stage->start([&] { its.stage->pass(std::chrono::milliseconds(600)); });
        its.person.waits_for_ticks(1);
        rows = its.person.lines_of("lvwServerInfo");
    }
    ASSERT_EQ(rows.size(), 13U);
    EXPECT_EQ(rows.back(), "Group  | Dialogs");
    dialog.closes();
}

const std::vector<MainStory>& main_stories() {
    static const std::vector<MainStory> all = {
        {"ChoosesAServer", chooses_a_server, 1'200},     {"LooksAtAServer", looks_at_a_server, 170},
        {"BrowsesForAnItem", browses_for_an_item, 100},  {"SetsUpATest", sets_up_a_test, 100},
        {"SetsATrigger", sets_a_trigger, 100},           {"AddsADescriptor", adds_a_descriptor, 100},
        {"WatchesAServer", watches_a_server, 150, true},
    };
    return all;
}

} // namespace brx::checks
