#include "configuring.h"

// Which value one descriptor takes: an item, a name kept in the database, or a plain text.

using namespace brx;
using namespace brx::checks;

namespace {

/// The properties of the configuration's only descriptor.
class Describing {
public:
    Describing(Play& its, const DescriptorFields& fields) : its_(its), around_(prepared(its, fields)) {
        around_.turns_to_descriptors();
        its.person.double_clicks("lvwDescriptors", its.person.line_of("lvwDescriptors", 0));
        its.person.is_at("dlgDescriptorProperties");
    }

    DescriptorFields fields() const { return its_.host.configuration->descriptors->entries[0]->fields; }
    void confirms() { leaves_by("bnOK"); }
    void cancels() { leaves_by("bnCancel"); }
    /// Chooses an item with one of the two browse buttons.
    void browses(const std::string& button, const std::string& item) {
        its_.person.presses(button);
        its_.person.is_at("dlgItemSelect");
        its_.person.enters("txtFullPath", item);
        its_.person.presses("bnOK");
    }

private:
    static Play& prepared(Play& its, const DescriptorFields& fields) {
        its.host.browser->root.has("Line1", {"Speed", "Force"});
        for (const char* item : {"Line1.Speed", "Line1.Force"}) its.host.group->items->answers[item] = 0;
        its.host.configuration->descriptors->has(fields);
        return its;
    }
    void leaves_by(const std::string& button) {
        its_.person.presses(button);
        its_.person.is_at("dlgConfiguration");
        around_.leaves();
    }

    Play& its_;
    Configuring around_;
};

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
    Describing dialog(its, {.type = 7, .item = "", .group = ""});
    dialog.browses("bnItem", "Line1.Speed");
    EXPECT_EQ(its.person.reads("txtItem"), "(%Line1.Speed)");
    EXPECT_EQ(its.host.group->items->ids(), Lines{"Line1.Speed"});
    EXPECT_EQ(its.host.calls.count("OPCItems.AddItems"), 0);
    dialog.confirms();
}

SCENARIO(DescriptorProperties, ItemsDifferByTheCaseOfTheirLetters) {
    its.host.group->items->has("LINE1.SPEED");
    Describing dialog(its, {.type = 7, .item = "", .group = ""});
    dialog.browses("bnItem", "Line1.Speed");
    EXPECT_EQ(its.host.group->items->ids(), (Lines{"LINE1.SPEED", "Line1.Speed"}));
    dialog.cancels();
}

SCENARIO(DescriptorProperties, AnItemThatTheServerRefusesIsToldAndTheTextStays) {
    Describing dialog(its, {.type = 7, .item = "old", .group = ""});
    its.person.presses("bnItem");
    its.person.enters("txtFullPath", "Line1.Speed");
    its.host.group->items->claimed_errors = LongArray{{0}}; // valid when asked, refused when added
    its.host.group->items->answers["Line1.Speed"] = FakeOPCItems::unknown_item;
    its.person.presses("bnOK");
    its.person.answers({.text = "UNABLE TO ADD ITEM!\r\n\r\nThe item is not known to the server.\r\n\r\n"
                                "Item: Line1.Speed",
                        .style = message::critical,
                        .title = component_name});
    EXPECT_EQ(its.host.connection->error_codes, std::vector<std::int32_t>{FakeOPCItems::unknown_item});
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

SCENARIO(DescriptorProperties, EachKindIsPickedFromItsOwnRecords) {
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

SCENARIO(DescriptorProperties, UnknownNamesAreNoChoiceAndACancelledPickChangesNothing) {
    Describing dialog(its, {.type = 0, .item = "Nobody knows", .group = "this"});
    its.person.presses("bnSelect");
    const FakePicker& picker = *its.host.pickers.at(class_name::hlxPartSelection);
    EXPECT_EQ(picker.shown_with, std::vector<std::int32_t>{0});
    EXPECT_EQ(picker.shown_with_groups, std::vector<std::int32_t>{0});
    EXPECT_EQ(its.person.reads("txtItem"), "Nobody knows");
    EXPECT_EQ(its.person.reads("txtGroup"), "this");
    dialog.cancels();
}

SCENARIO(DescriptorProperties, APickedRecordOfAnUnknownGroupEmptiesTheGroup) {
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

SCENARIO(DescriptorProperties, AcceleratorsLeadToTheBoxes) {
    Describing dialog(its, {.type = 0, .item = "Wheel", .group = "Castings"});
    EXPECT_TRUE(its.person.has_focus("txtGroup"));
    its.person.uses_accelerator('b');
    EXPECT_TRUE(its.person.has_focus("txtItem"));
    its.person.uses_accelerator('a');
    EXPECT_TRUE(its.person.has_focus("txtGroup"));
    dialog.cancels();
}

SCENARIO(DescriptorProperties, AGroupThatCannotBeLookedUpChangesNothing) {
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
