#include "scenario.h"
#include "stories/browsing.h"
#include "stories/configuring.h"
#include "stories/testing.h"

// Each story is played once for every call that it makes to the host, and in that call a person stops the
// work.

using namespace brx;
using namespace brx::checks;

TEST(StoppedWork, WhileAServerIsAdded) {
    const int stops = play_with_stops([](Play& its) {
        its.host.servers->has_connected("Matrix");
        its.host.servers->has_connected("Sim");
        Showing select(*its.stage, "ServerSelect");
        select.show(its.host.servers);
        its.person.presses("bnServer");
        its.person.picks("lstOPCServers", "Line.Server.2");
        its.person.presses("bnOK");
        its.person.presses("bnOK");
    });
    EXPECT_GE(stops, 30);
}

TEST(StoppedWork, WhileAServerIsWatched) {
    const int stops = play_with_stops([](Play& its) {
        Showing information(*its.stage, "ServerInformation");
        information.show(std::make_shared<FakeOPCServer>(its.host.calls));
        its.person.waits_for_ticks(2);
        its.person.presses("bnOK");
    });
    EXPECT_GE(stops, 15);
}

TEST(StoppedWork, WhileAnItemIsBrowsed) {
    const int stops = play_with_stops([](Play& its) {
        a_plant(its);
        Browsing browser(its, "Line2.Count");
        its.person.expands("TrView", "Line1");
        its.person.clicks_node("TrView", "Oven");
        its.person.picks("lstItem", "Temperature");
        its.person.presses("bnOK");
    });
    EXPECT_GE(stops, 40);
}

TEST(StoppedWork, WhileATestIsConfigured) {
    const int stops = play_with_stops([](Play& its) {
        Testing testing(its, its.host.has_test(0, ""));
        testing.picks_characteristic(7, "Length");
        testing.picks_item("Line1.Speed");
        its.person.ticks("chkItemTrigger");
        its.person.presses("bnOK");
    });
    EXPECT_GE(stops, 60);
}

TEST(StoppedWork, WhileTestsOfAConfigurationAreEditedAndRemoved) {
    const int stops = play_with_stops([](Play& its) {
        a_filled_configuration(its);
        its.host.has_test(8, "Width")->fields.item_id = "Line1.Force";
        Configuring dialog(its);
        its.person.picks("lvwTest", its.person.line_of("lvwTest", 0));
        its.person.presses("cmdEdit");
        its.person.presses("bnOK");
        its.person.picks("lvwTest", its.person.line_of("lvwTest", 1));
        its.person.presses("bnRemove");
        its.person.waits_for_ticks(1);
        dialog.closes();
    });
    EXPECT_GE(stops, 130);
}

TEST(StoppedWork, WhileATriggerAndADescriptorAreSet) {
    const int stops = play_with_stops([](Play& its) {
        a_filled_configuration(its);
        its.host.browser->root.has("Line1", {"Speed", "Force", "Count"});
        its.host.group->items->answers["Line1.Count"] = 0;
        Configuring dialog(its);
        dialog.turns_to_sampling();
        its.person.presses("cmdSubgroupTrigger");
        its.person.presses("bnItem");
        its.person.enters("txtFullPath", "Line1.Count");
        its.person.presses("bnOK");
        its.person.enters("txtValue", "3");
        its.person.presses("bnOK");
        dialog.turns_to_descriptors();
        its.person.presses("bnAddDesc");
        its.person.picks("List1", "Lot");
        its.person.presses("bnOK");
        its.person.enters("txtItem", "12");
        its.person.presses("bnOK");
        its.person.picks("lvwDescriptors", its.person.line_of("lvwDescriptors", 0));
        its.person.presses("bnRemoveDesc");
        dialog.closes();
    });
    EXPECT_GE(stops, 120);
}
