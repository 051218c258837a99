#include "calls.h"
#include "listing.h"

// The descriptors of a configuration.

using namespace brx;
using namespace brx::checks;

namespace {

using Fields = std::vector<DescriptorFields>;

} // namespace

SCENARIO(DescriptorsTab, ListsTheDescriptorsInTheirOrder) {
    ListingDescriptors dialog(its);
    EXPECT_EQ(its.person.lines_of("lvwDescriptors"), three_rows);
    EXPECT_EQ(its.person.sees("lvwDescriptors").selected, -1);
    dialog.leaves();
}

SCENARIO(DescriptorsTab, ANewDescriptorGetsItsKindAndItsNames) {
    Configuring dialog(its);
    dialog.turns_to_descriptors();
    its.person.presses("bnAddDesc");
    its.person.is_at("dlgDescriptorType");
    its.person.picks("List1", "Lot");
    its.person.presses("bnOK");
    its.person.is_at("dlgDescriptorProperties");
    EXPECT_EQ(its.person.title(), "Descriptor Properties - Lot");
    EXPECT_EQ(its.person.reads("txtItem"), "");
    its.person.enters("txtItem", "L-7");
    its.person.presses("bnOK");
    its.person.is_at("dlgConfiguration");
    EXPECT_EQ(its.person.lines_of("lvwDescriptors"), (Lines{"Lot |  | L-7"}));
    EXPECT_EQ(its.host.configuration->descriptors->fields(), (Fields{{3, "L-7", ""}}));
    EXPECT_EQ(its.person.sees("lvwDescriptors").selected, 0);
    dialog.leaves();
}

SCENARIO(DescriptorsTab, CancellingEitherDialogAddsNothing) {
    ListingDescriptors dialog(its);
    const Fields before = its.host.configuration->descriptors->fields();
    its.person.presses("bnAddDesc");
    its.person.presses("bnCancel");
    its.person.is_at("dlgConfiguration");
    EXPECT_EQ(its.host.calls.count("hlxOPCDescriptors.Add"), 0);
    its.person.presses("bnAddDesc");
    its.person.presses("bnOK");
    its.person.is_at("dlgDescriptorProperties");
    EXPECT_EQ(its.host.configuration->descriptors->entries.size(), 4U);
    its.person.presses("bnCancel");
    its.person.is_at("dlgConfiguration");
    EXPECT_EQ(its.host.configuration->descriptors->fields(), before);
    EXPECT_EQ(its.person.lines_of("lvwDescriptors"), three_rows);
    dialog.leaves();
}

SCENARIO(DescriptorsTab, AfterAnOkTheDialogsStartAfresh) {
    Configuring dialog(its);
    dialog.turns_to_descriptors();
    its.person.presses("bnAddDesc");
    its.person.picks("List1", "Lot");
    its.person.presses("bnOK");
    its.person.enters("txtItem", "L-7");
    its.person.presses("bnOK");
    its.person.presses("bnAddDesc");
    its.person.closes_the_window();
    EXPECT_EQ(its.host.configuration->descriptors->entries.size(), 1U);
    its.person.presses("bnAddDesc");
    its.person.picks("List1", "Serial Number");
    its.person.presses("bnOK");
    EXPECT_EQ(its.person.title(), "Descriptor Properties - Serial Number");
    EXPECT_EQ(its.person.reads("txtItem"), "");
    its.person.closes_the_window();
    EXPECT_EQ(its.host.configuration->descriptors->fields(), (Fields{{3, "L-7", ""}}));
    EXPECT_EQ(its.person.lines_of("lvwDescriptors"), (Lines{"Lot |  | L-7"}));
    dialog.leaves();
}

SCENARIO(DescriptorsTab, EditChangesTheNamesAndTheRow) {
    ListingDescriptors dialog(its);
    its.person.picks("lvwDescriptors", three_rows[2]);
    its.person.presses("bnEditDesc");
    its.person.is_at("dlgDescriptorProperties");
    EXPECT_EQ(its.person.reads("txtGroup"), "Colours");
    EXPECT_EQ(its.person.reads("txtItem"), "Red");
    its.person.enters("txtItem", "Blue");
    its.person.enters("txtGroup", "Paints");
    its.person.presses("bnOK");
    EXPECT_EQ(its.person.line_of("lvwDescriptors", 2), "User Defined (Subgroup) | Paints | Blue");
    EXPECT_EQ(its.host.configuration->descriptors->entries[2]->fields,
              (DescriptorFields{5, "Blue", "Paints"}));
    EXPECT_EQ(its.person.sees("lvwDescriptors").selected, 2);
    dialog.leaves();
}

SCENARIO(DescriptorsTab, ADoubleClickEditsAndACancelledEditChangesNothing) {
    ListingDescriptors dialog(its);
    const Fields before = its.host.configuration->descriptors->fields();
    its.person.double_clicks("lvwDescriptors", three_rows[0]);
    its.person.is_at("dlgDescriptorProperties");
    EXPECT_EQ(its.person.title(), "Descriptor Properties - Part");
    its.person.enters("txtItem", "Axle");
    its.person.presses("bnCancel");
    EXPECT_EQ(its.person.lines_of("lvwDescriptors"), three_rows);
    EXPECT_EQ(its.host.configuration->descriptors->fields(), before);
    dialog.leaves();
}

SCENARIO(DescriptorsTab, WithoutASelectedRowEditAndRemoveDoNothing) {
    ListingDescriptors dialog(its);
    its.person.presses("bnEditDesc");
    its.person.is_at("dlgConfiguration");
    its.person.presses("bnRemoveDesc");
    EXPECT_EQ(its.person.lines_of("lvwDescriptors"), three_rows);
    EXPECT_EQ(its.host.configuration->descriptors->entries.size(), 3U);
    dialog.leaves();
}

SCENARIO(DescriptorsTab, TheSelectionGoesToTheRowThatTookTheRemovedOnesPlace) {
    ListingDescriptors dialog(its);
    its.person.picks("lvwDescriptors", three_rows[1]);
    its.person.presses("bnRemoveDesc");
    EXPECT_EQ(its.person.lines_of("lvwDescriptors"), (Lines{three_rows[0], three_rows[2]}));
    EXPECT_EQ(its.person.sees("lvwDescriptors").selected, 1);
    its.person.presses("bnRemoveDesc"); // the last one now
    EXPECT_EQ(its.person.sees("lvwDescriptors").selected, 0);
    EXPECT_EQ(its.host.configuration->descriptors->fields(), (Fields{{0, "Wheel", "Castings"}}));
    its.person.presses("bnRemoveDesc"); // the only one
    EXPECT_EQ(its.person.lines_of("lvwDescriptors"), Lines());
    EXPECT_EQ(its.person.sees("lvwDescriptors").selected, -1);
    dialog.leaves();
}

SCENARIO(DescriptorsTab, RemovingTheLastOfThreeSelectsTheNewLastOne) {
    ListingDescriptors dialog(its);
    its.person.picks("lvwDescriptors", three_rows[2]);
    its.person.presses("bnRemoveDesc");
    EXPECT_EQ(its.person.sees("lvwDescriptors").selected, 1);
    dialog.leaves();
}

SCENARIO(DescriptorsTab, WithoutADatabaseANewDescriptorCanStillBeTyped) {
    its.host.application->database = nullptr;
    Configuring dialog(its);
    dialog.turns_to_descriptors();
    its.person.presses("bnAddDesc");
    its.person.picks("List1", "Shift");
    its.person.presses("bnOK");
    its.person.is_at("dlgDescriptorProperties");
    its.expect_report(error::type_mismatch, "CommonTools.ResolveDatabase");
    its.person.enters("txtGroup", "Days");
    its.person.enters("txtItem", "Early");
    its.person.presses("bnOK");
    EXPECT_EQ(its.host.configuration->descriptors->fields(), (Fields{{4, "Early", "Days"}}));
    dialog.leaves();
}

SCENARIO(DescriptorsTab, ADescriptorThatNobodyCouldFinishIsTakenBack) {
    its.host.servers->application = nullptr;
    Configuring dialog(its);
    dialog.turns_to_descriptors();
    its.person.presses("bnAddDesc");
    its.person.presses("bnOK");
    its.person.is_at("dlgConfiguration");
    its.expect_report(error::object_not_set, "dlgConfiguration.bnAddDesc_Click");
    EXPECT_EQ(its.host.configuration->descriptors->entries.size(), 0U);
    dialog.leaves();
}

SCENARIO(DescriptorsTab, ACancelledDescriptorIsFoundWhereverTheHostPutIt) {
    its.host.configuration->descriptors->adds_in_front = true;
    ListingDescriptors dialog(its);
    const Fields before = its.host.configuration->descriptors->fields();
    its.person.presses("bnAddDesc");
    its.person.picks("List1", "Job");
    its.person.presses("bnOK");
    its.person.is_at("dlgDescriptorProperties");
    EXPECT_EQ(its.host.configuration->descriptors->fields()[0], (DescriptorFields{2, "", ""}));
    its.person.presses("bnCancel");
    EXPECT_EQ(its.host.configuration->descriptors->fields(), before);
    EXPECT_EQ(its.person.lines_of("lvwDescriptors"), three_rows);
    dialog.leaves();
}

SCENARIO(DescriptorsTab, ARowShowsWhatTheDescriptorKeptOfTheNames) {
    its.host.configuration->descriptors->trims_names = true;
    Configuring dialog(its);
    dialog.turns_to_descriptors();
    its.person.presses("bnAddDesc");
    its.person.picks("List1", "Part");
    its.person.presses("bnOK");
    its.person.enters("txtGroup", " Castings ");
    its.person.enters("txtItem", " Wheel ");
    its.person.presses("bnOK");
    EXPECT_EQ(its.person.lines_of("lvwDescriptors"), Lines{"Part | Castings | Wheel"});
    its.person.double_clicks("lvwDescriptors", "Part | Castings | Wheel");
    its.person.enters("txtGroup", "  Forgings");
    its.person.enters("txtItem", "Axle  ");
    its.person.presses("bnOK");
    EXPECT_EQ(its.person.lines_of("lvwDescriptors"), Lines{"Part | Forgings | Axle"});
    dialog.leaves();
}

SCENARIO(DescriptorsTab, AnEditCallsTheHostInTheOrderThatItKnows) {
    ListingDescriptors dialog(its);
    its.person.picks("lvwDescriptors", three_rows[0]);
    CallsMade made(its);
    its.person.presses("bnEditDesc");
    its.person.presses("bnOK");
    Calls calls = made.since_then();
    std::erase_if(calls, [](const std::string& member) {
        return !member.starts_with("hlxOPCDescriptor") && member != "hlxApplication.Database";
    });
    EXPECT_EQ(calls,
              (Lines{"hlxOPCDescriptors.Item", "hlxApplication.Database",
                     // shown
                     "hlxOPCDescriptor.Type", "hlxOPCDescriptor.ItemName", "hlxOPCDescriptor.GroupName",
                     // written
                     "hlxOPCDescriptor.ItemName=", "hlxOPCDescriptor.GroupName=",
                     // listed
                     "hlxOPCDescriptor.Type", "hlxOPCDescriptor.GroupName", "hlxOPCDescriptor.ItemName"}));
    dialog.leaves();
}
