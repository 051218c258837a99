#include "calls.h"
#include "describing.h"

// Which value one descriptor takes: a text, or an item of the server.

using namespace brx;
using namespace brx::checks;

SCENARIO(DescriptorProperties, ShowsBothTextsAndTheKind) {
    Describing dialog(its, {.type = 1, .item = "Turning", .group = "Lathes"});
    EXPECT_EQ(its.person.title(), "Descriptor Properties - Process");
    EXPECT_EQ(its.person.reads("txtGroup"), "Lathes");
    EXPECT_EQ(its.person.reads("txtItem"), "Turning");
    for (const char* control : {"lblGroup", "txtGroup", "bnGroup", "txtItem", "bnItem", "bnSelect", "bnOK"})
        EXPECT_TRUE(its.person.sees(control).enabled) << control;
    dialog.cancels();
    EXPECT_EQ(dialog.fields(), (DescriptorFields{1, "Turning", "Lathes"}));
}

SCENARIO(DescriptorProperties, LotsSerialNumbersAndCommentsHaveAnItemOnly) {
    for (const std::int32_t type : {3, 7, 8}) {
        its.host.configuration->descriptors->entries.clear();
        Describing dialog(its, {.type = type, .item = "", .group = ""});
        for (const char* control : {"lblGroup", "txtGroup", "bnGroup", "bnSelect"})
            EXPECT_FALSE(its.person.sees(control).enabled) << control << type;
        for (const char* control : {"lblGeneral", "txtItem", "bnItem"})
            EXPECT_TRUE(its.person.sees(control).enabled) << control << type;
        EXPECT_FALSE(its.person.can_press("bnOK"));
        its.person.enters("txtItem", "  ");
        EXPECT_FALSE(its.person.can_press("bnOK"));
        its.person.enters("txtItem", "7");
        EXPECT_TRUE(its.person.can_press("bnOK"));
        dialog.confirms();
        EXPECT_EQ(dialog.fields(), (DescriptorFields{type, "7", ""}));
    }
}

SCENARIO(DescriptorProperties, AGroupThatCannotBeGivenStaysAsItIs) {
    for (const std::int32_t type : {3, 7, 8}) {
        its.host.configuration->descriptors->entries.clear();
        Describing dialog(its, {.type = type, .item = "old", .group = "Castings"});
        EXPECT_EQ(its.person.reads("txtGroup"), "Castings");
        its.person.enters("txtItem", "7");
        dialog.confirms();
        EXPECT_EQ(dialog.fields(), (DescriptorFields{type, "7", "Castings"}));
    }
}

SCENARIO(DescriptorProperties, AnUnknownKindHasBothTextsAndNoRecords) {
    Describing dialog(its, {.type = 9, .item = "a", .group = "b"});
    EXPECT_EQ(its.person.title(), "Descriptor Properties - ");
    its.person.presses("bnSelect");
    its.person.is_at("dlgDescriptorProperties");
    EXPECT_EQ(its.host.calls.count("hlxSelection.Show"), 0);
    EXPECT_TRUE(its.host.records.searches.empty());
    its.person.enters("txtGroup", "");
    EXPECT_FALSE(its.person.can_press("bnOK"));
    its.person.enters("txtGroup", "c");
    EXPECT_TRUE(its.person.can_press("bnOK"));
    its.person.enters("txtItem", "");
    EXPECT_FALSE(its.person.can_press("bnOK"));
    dialog.cancels();
}

SCENARIO(DescriptorProperties, TheOtherKindsNeedBothTexts) {
    for (const std::int32_t type : {0, 1, 2, 4, 5, 6}) {
        its.host.configuration->descriptors->entries.clear();
        Describing dialog(its, {.type = type, .item = "", .group = ""});
        EXPECT_FALSE(its.person.can_press("bnOK"));
        its.person.enters("txtItem", "a");
        EXPECT_FALSE(its.person.can_press("bnOK"));
        its.person.enters("txtGroup", " ");
        EXPECT_FALSE(its.person.can_press("bnOK"));
        its.person.enters("txtGroup", "b");
        EXPECT_TRUE(its.person.can_press("bnOK"));
        its.person.enters("txtItem", "");
        EXPECT_FALSE(its.person.can_press("bnOK"));
        dialog.cancels();
    }
}

SCENARIO(DescriptorProperties, TextsAreTakenAsTyped) {
    Describing dialog(its, {.type = 0, .item = "Wheel", .group = "Castings"});
    its.person.enters("txtItem", " Axle ");
    its.person.enters("txtGroup", "(%Line1.Group");
    dialog.confirms();
    EXPECT_EQ(dialog.fields(), (DescriptorFields{0, " Axle ", "(%Line1.Group"}));
}

SCENARIO(DescriptorProperties, ABrowsedItemIsWrittenAsAReference) {
    Describing dialog(its, {.type = 0, .item = "Wheel", .group = "Castings"});
    dialog.browses("bnItem", "Line1.Speed");
    EXPECT_EQ(its.person.reads("txtItem"), "(%Line1.Speed)");
    EXPECT_EQ(its.person.reads("txtGroup"), "Castings");
    dialog.browses("bnGroup", "Line1.Force");
    EXPECT_EQ(its.person.reads("txtGroup"), "(%Line1.Force)");
    EXPECT_EQ(its.host.group->items->ids(), (Lines{"Line1.Speed", "Line1.Force"}));
    EXPECT_EQ(its.host.group->items->client_handles, (std::vector<LongArray>{{{0}}, {{0}}}));
    EXPECT_EQ(its.host.group->items->requested_types,
              (std::vector<std::optional<ShortArray>>{ShortArray{{0}}, ShortArray{{0}}}));
    dialog.confirms();
    EXPECT_EQ(dialog.fields(), (DescriptorFields{0, "(%Line1.Speed)", "(%Line1.Force)"}));
}

SCENARIO(DescriptorProperties, BothButtonsStartFromTheGroupsReference) {
    Describing dialog(its, {.type = 0, .item = "(%Line1.Speed)", .group = " (%Line1.Force) "});
    for (const char* button : {"bnGroup", "bnItem"}) {
        its.person.presses(button);
        EXPECT_EQ(its.person.reads("txtFullPath"), "Line1.Force") << button;
        its.person.presses("bnCancel");
    }
    its.person.enters("txtGroup", " (%Line1.Force");
    its.person.presses("bnItem");
    EXPECT_EQ(its.person.reads("txtFullPath"), "(%Line1.Force"); // a reference that does not end
    its.person.presses("bnCancel");
    its.person.enters("txtGroup", " Line1.Force) ");
    its.person.presses("bnItem");
    EXPECT_EQ(its.person.reads("txtFullPath"), "Line1.Force)");
    its.person.presses("bnCancel");
    its.person.enters("txtGroup", "x(%Line1.Speed)y(%Other)");
    its.person.presses("bnItem");
    EXPECT_EQ(its.person.reads("txtFullPath"), "Line1.Speed");
    its.person.presses("bnCancel");
    its.person.enters("txtGroup", "a)b(%Line1.Speed)");
    its.person.presses("bnItem");
    EXPECT_EQ(its.person.reads("txtFullPath"), "Line1.Speed"); // only a bracket behind it ends a reference
    its.person.presses("bnCancel");
    its.person.enters("txtGroup", "(%)");
    its.person.presses("bnItem");
    EXPECT_EQ(its.person.reads("txtFullPath"), ""); // to nothing
    its.person.presses("bnCancel");
    dialog.cancels();
}

SCENARIO(DescriptorProperties, ACancelledBrowserChangesNothing) {
    Describing dialog(its, {.type = 0, .item = "Wheel", .group = "Castings"});
    its.person.presses("bnItem");
    its.person.presses("bnCancel");
    EXPECT_EQ(its.person.reads("txtItem"), "Wheel");
    EXPECT_EQ(its.host.group->items->ids(), Lines());
    dialog.cancels();
}

SCENARIO(DescriptorProperties, AnItemThatTheGroupHasIsNotAddedAgain) {
    its.host.group->items->has("Line1.Speed");
    its.host.group->items->has("Line1.Force"); // which is asked for its identifier all the same
    Describing dialog(its, {.type = 7, .item = "", .group = ""});
    its.person.presses("bnItem");
    its.person.enters("txtFullPath", "Line1.Speed");
    CallsMade calls(its);
    its.person.presses("bnOK");
    EXPECT_EQ(calls.since_then(), Lines({"OPCGroup.OPCItems", "OPCItems.Validate", // the browser asks first
                                         "OPCGroup.OPCItems", "OPCItems.Count", "OPCItems.Item",
                                         "OPCItem.ItemID", "OPCItems.Item", "OPCItem.ItemID"}));
    EXPECT_EQ(its.person.reads("txtItem"), "(%Line1.Speed)");
    EXPECT_EQ(its.host.group->items->ids(), (Lines{"Line1.Speed", "Line1.Force"}));
    dialog.confirms();
}

SCENARIO(DescriptorProperties, ItemsDifferByTheCaseOfTheirLetters) {
    its.host.group->items->has("LINE1.SPEED");
    Describing dialog(its, {.type = 7, .item = "", .group = ""});
    dialog.browses("bnItem", "Line1.Speed");
    EXPECT_EQ(its.host.group->items->ids(), (Lines{"LINE1.SPEED", "Line1.Speed"}));
    dialog.cancels();
}

namespace {

/// Chooses an item that is valid when it is asked for, and refused with this code when it is to be added.
void browses_a_refused_item(Play& its, std::int32_t code) {
    its.host.group->items->claimed_errors = LongArray{{0}};
    its.host.group->items->answers["Line1.Speed"] = code;
    its.person.presses("bnItem");
    its.person.enters("txtFullPath", "Line1.Speed");
}

void is_told_of_the_refusal(Play& its) {
    its.person.answers({.text = "UNABLE TO ADD ITEM!\r\n\r\nThe item is not known to the server.\r\n\r\n"
                                "Item: Line1.Speed",
                        .style = message::critical,
                        .title = component_name});
    EXPECT_EQ(its.person.reads("txtItem"), "old");
}

} // namespace

SCENARIO(DescriptorProperties, AnItemThatTheServerRefusesIsToldAndTheTextStays) {
    Describing dialog(its, {.type = 7, .item = "old", .group = ""});
    for (const std::int32_t code : {FakeOPCItems::unknown_item, 1}) {
        browses_a_refused_item(its, code);
        its.person.presses("bnOK");
        is_told_of_the_refusal(its);
    }
    EXPECT_EQ(its.host.connection->error_codes, (std::vector<std::int32_t>{FakeOPCItems::unknown_item, 1}));
    dialog.cancels();
}

SCENARIO(DescriptorProperties, ARefusalIsToldThoughTheConnectionWentMeanwhile) {
    Describing dialog(its, {.type = 7, .item = "old", .group = ""});
    browses_a_refused_item(its, FakeOPCItems::unknown_item);
    an_unconnected_server(its, "Matrix");
    CallsMade calls(its);
    its.person.presses("bnOK");
    is_told_of_the_refusal(its);
    EXPECT_EQ(calls.since_then(), Lines({"OPCGroup.OPCItems", "OPCItems.Validate", // the browser asks first
                                         "OPCGroup.OPCItems", "OPCItems.Count", "OPCItems.AddItems",
                                         "OPCServer.GetErrorString"}));
    dialog.cancels();
}

SCENARIO(DescriptorProperties, ARefusalThatTheServerHasNoTextForIsToldAndThenReported) {
    Describing dialog(its, {.type = 7, .item = "old", .group = ""});
    browses_a_refused_item(its, FakeOPCItems::unknown_item);
    its.host.calls.fail_on("OPCServer.GetErrorString");
    its.person.presses("bnOK");
    EXPECT_TRUE(its.host.reports.empty());
    its.person.answers({.text = "UNABLE TO ADD ITEM!\r\n\r\n\r\n\r\nItem: Line1.Speed",
                        .style = message::critical,
                        .title = component_name});
    its.expect_report(CallLog::failure_number, "dlgDescriptorProperties.AddOPCItem");
    its.host.calls.fail_on("");
    its.person.is_at("dlgDescriptorProperties");
    EXPECT_EQ(its.person.reads("txtItem"), "old");
    dialog.cancels();
}

SCENARIO(DescriptorProperties, WithoutAConnectionNoItemCanBeBrowsed) {
    an_unconnected_server(its, "Plant.Simulation.1");
    Describing dialog(its, {.type = 7, .item = "old", .group = ""});
    its.person.presses("bnItem");
    its.person.answers({.text = "Server is disconnected or does not exist.",
                        .style = message::exclamation,
                        .title = "Server Error"});
    its.person.is_at("dlgDescriptorProperties");
    EXPECT_EQ(its.person.reads("txtItem"), "old");
    dialog.cancels();
}

SCENARIO(DescriptorProperties, WithoutAGroupNoItemCanBeBrowsed) {
    its.host.configuration->group = nullptr;
    Describing dialog(its, {.type = 7, .item = "old", .group = ""});
    its.person.presses("bnItem");
    its.person.answers({.text = "Server is disconnected or does not exist.",
                        .style = message::exclamation,
                        .title = "Server Error"});
    its.expect_report(error::type_mismatch, "CommonTools.ResolveOPCGroup");
    EXPECT_EQ(its.person.reads("txtItem"), "old");
    dialog.cancels();
}
