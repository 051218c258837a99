#include "adding.h"
#include "browsing.h"
#include "configuring.h"
#include "describing.h"
#include "testing.h"
#include "triggering.h"

#include <initializer_list>
#include <string>

// Each dialog from its beginning to its end by a person without a mouse.

using namespace brx;
using namespace brx::checks;

namespace {

void hits(Play& its, std::initializer_list<Key> keys) {
    for (const Key key : keys) its.person.hits(key);
}

/// Goes to the field by its letter and types over what is in it.
void fills(Play& its, char letter, const std::string& text) {
    its.person.uses_accelerator(letter);
    its.person.types(text);
}

/// In the item browser: Enter confirms, once the text box has the item.
void chooses_item(Play& its, const std::string& item) {
    its.person.is_at("dlgItemSelect");
    its.person.uses_accelerator('c'); // shared with the button Cancel, which is not pressed for that
    its.person.types(item);
    its.person.hits(Key::enter);
}

} // namespace

SCENARIO(KeyboardOnly, AServerIsChosen) {
    its.host.servers->has("Matrix");
    its.host.servers->has("Sim", "PC7");
    Showing select(*its.stage, "ServerSelect");
    select.show(its.host.servers);
    EXPECT_TRUE(its.person.has_focus("cboServer"));
    hits(its, {Key::down, Key::down, Key::enter});
    EXPECT_TRUE(select.result());
    EXPECT_EQ(select.ServerIndex(), 2);
}

SCENARIO(KeyboardOnly, AServerIsAddedOnTheWayToChoosingIt) {
    its.host.servers_on("PC7", {"Sim"});
    Showing select(*its.stage, "ServerSelect");
    select.show(its.host.servers);
    hits(its, {Key::tab, Key::space});
    its.person.is_at("dlgServerAdd");
    EXPECT_TRUE(its.person.has_focus("txtNode"));
    its.person.types("PC7");
    its.person.uses_accelerator('b');
    fills(its, 'c', ""); // the button Cancel shares it
    EXPECT_TRUE(its.person.has_focus("lstOPCServers"));
    hits(its, {Key::down, Key::enter});
    its.person.is_at("dlgServerSelect");
    EXPECT_EQ(its.person.lines_of("cboServer"), Lines{"PC7.Sim"});
    hits(its, {Key::back_tab, Key::home});
    its.person.hits(Key::enter);
    EXPECT_TRUE(select.result());
    EXPECT_EQ(select.ServerIndex(), 1);
    EXPECT_EQ(its.host.servers->additions(), (std::vector<Addition>{{"Sim", "PC7", true}}));
}

SCENARIO(KeyboardOnly, TheStatusOfAServerIsReadFieldByField) {
    Showing information(*its.stage, "ServerInformation");
    information.show(its.host.connection);
    its.person.is_at("dlgServerInformation");
    EXPECT_TRUE(its.person.has_focus("bnOK"));
    for (const char* next : {"Start", "Current", "Last", "Version", "Vendor", "bnOK"}) {
        its.person.hits(Key::tab);
        EXPECT_TRUE(its.person.has_focus(next)) << next;
    }
    its.person.hits(Key::enter);
    EXPECT_TRUE(information.result());
}

SCENARIO(KeyboardOnly, AnItemIsFoundInTheTreeAndChosen) {
    a_plant(its);
    Browsing dialog(its);
    its.person.uses_accelerator('a');
    EXPECT_TRUE(its.person.has_focus("TrView"));
    hits(its, {Key::home, Key::right, Key::space}); // Line1, opened, and again its items
    EXPECT_EQ(its.person.lines_of("lstItem"), (Lines{"Running", "Speed"}));
    its.person.hits(Key::down); // to its first branch
    EXPECT_EQ(its.person.reads("TrView"), "Oven");
    its.person.uses_accelerator('b');
    EXPECT_TRUE(its.person.has_focus("lstItem"));
    its.person.hits(Key::down);
    EXPECT_EQ(its.person.reads("txtFullPath"), "Line1.Oven.Temperature");
    its.person.hits(Key::enter);
    EXPECT_TRUE(dialog.result());
    EXPECT_EQ(dialog.ItemID(), "Line1.Oven.Temperature");
}

SCENARIO(KeyboardOnly, ATestIsBoundToACharacteristicAndAnItem) {
    its.host.picker->picks = std::make_shared<FakeTestData>(its.host.calls, 8, 1, "Width");
    const auto test = its.host.has_test(0, "");
    Testing dialog(its, test);
    its.person.uses_accelerator('a');
    hits(its, {Key::tab, Key::space}); // the host's picker
    EXPECT_EQ(its.person.reads("txtTest"), "Width");
    its.person.uses_accelerator('b');
    hits(its, {Key::tab, Key::space});
    chooses_item(its, "Line1.Speed");
    its.person.is_at("dlgOPCTest");
    its.person.uses_accelerator('c'); // again both
    EXPECT_TRUE(its.person.has_focus("cboSaveAs"));
    its.person.hits(Key::end);
    fills(its, 'd', "2.5");
    its.person.uses_accelerator('e');
    its.person.uses_accelerator('f');
    hits(its, {Key::home, Key::down});
    fills(its, 'g', "12");
    its.person.hits(Key::enter);
    EXPECT_TRUE(dialog.result());
    EXPECT_EQ(dialog.fields().item_id, "Line1.Speed");
    EXPECT_EQ(dialog.fields().expression, 1);
    EXPECT_TRUE(dialog.fields().item_trigger);
    EXPECT_EQ(dialog.fields().constant, 2.5);
}

SCENARIO(KeyboardOnly, ATriggerIsSet) {
    a_trigger(its, "Short", 1, std::int16_t{5});
    Configuring dialog(its);
    its.person.uses_accelerator('2');
    its.person.uses_accelerator('e');
    hits(its, {Key::tab, Key::space});
    its.person.is_at("dlgEvaluation");
    its.person.uses_accelerator('b');
    its.person.hits(Key::down);
    fills(its, 'c', "17"); // Cancel shares it
    its.person.hits(Key::enter);
    its.person.is_at("dlgConfiguration");
    its.person.hits(Key::enter); // the button of dots has the focus: its dialog again
    its.person.is_at("dlgEvaluation");
    its.person.hits(Key::escape);
    hits(its, {Key::tab, Key::enter});
    its.person.is_at("");
    EXPECT_EQ(dialog.fields().subgroup_trigger_type, 2);
    EXPECT_EQ(dialog.fields().subgroup_trigger_value, Variant(std::int16_t{17}));
}

SCENARIO(KeyboardOnly, ADescriptorIsAddedAndTakenAway) {
    Configuring dialog(its);
    its.person.uses_accelerator('3');
    its.person.uses_accelerator('b');
    its.person.is_at("dlgDescriptorType");
    EXPECT_TRUE(its.person.has_focus("List1"));
    hits(its, {Key::home, Key::enter}); // a part
    its.person.is_at("dlgDescriptorProperties");
    its.person.types("Castings");
    fills(its, 'b', "Wheel");
    its.person.hits(Key::enter);
    its.person.is_at("dlgConfiguration");
    EXPECT_EQ(its.person.lines_of("lvwDescriptors"), Lines{"Part | Castings | Wheel"});
    its.person.uses_accelerator('a');
    hits(its, {Key::home, Key::enter});
    its.person.is_at("dlgDescriptorProperties");
    its.person.hits(Key::escape);
    its.person.uses_accelerator('d');
    EXPECT_EQ(its.person.lines_of("lvwDescriptors"), Lines());
    dialog.leaves();
}

SCENARIO(KeyboardOnly, AConfigurationIsFilledInOnAllItsTabs) {
    a_filled_configuration(its);
    Configuring dialog(its);
    its.person.types("Line 9");
    fills(its, 'b', "2500");
    fills(its, 'c', "1"); // Close shares it
    its.person.uses_accelerator('d');
    fills(its, 'e', "4");
    its.person.uses_accelerator('f');
    hits(its, {Key::home, Key::enter});
    its.person.is_at("dlgOPCTest");
    its.person.hits(Key::escape);
    its.person.uses_accelerator('2');
    fills(its, 'c', "45");
    its.person.uses_accelerator('d');
    its.person.hits(Key::home);
    its.person.uses_accelerator('4');
    EXPECT_TRUE(its.person.has_focus("lvwServerInfo"));
    hits(its, {Key::tab, Key::enter});
    its.person.is_at("");
    EXPECT_EQ(dialog.fields().name, "Line 9");
    EXPECT_EQ(dialog.fields().update_rate, 2500);
    EXPECT_FALSE(dialog.fields().active);
    EXPECT_EQ(dialog.fields().subgroup_size, 4);
    EXPECT_EQ(dialog.fields().subgroup_interval, 45);
    EXPECT_EQ(dialog.fields().subgroup_time_unit, 0);
}
