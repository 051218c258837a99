#include "listing.h"

// Descriptors that cannot be read or written, and descriptors that the host does not let go of: the rows of
// the list and the host's descriptors agree all the same.

using namespace brx;
using namespace brx::checks;

namespace {

using Fields = std::vector<DescriptorFields>;

void expect_descriptors_out_of_reach(Play& its) {
    expect_out_of_reach(its, "lvwDescriptors", "bnEditDesc", "bnRemoveDesc");
}

/// The row leads to the descriptor of this kind.
void expect_to_lead_to(Play& its, const std::string& row, const std::string& kind) {
    its.person.picks("lvwDescriptors", row);
    its.person.presses("bnEditDesc");
    EXPECT_EQ(its.person.title(), "Descriptor Properties - " + kind);
    its.person.presses("bnCancel");
}

} // namespace

SCENARIO(DescriptorsTab, ACancelledDescriptorThatTheHostKeepsIsListed) {
    its.host.configuration->descriptors->keeps_all = true;
    ListingDescriptors dialog(its);
    its.person.presses("bnAddDesc");
    its.person.picks("List1", "Job");
    its.person.presses("bnOK");
    its.person.presses("bnCancel");
    its.expect_report(error::invalid_procedure_call, "dlgConfiguration.bnAddDesc_Click");
    EXPECT_EQ(its.person.lines_of("lvwDescriptors").size(), 4U);
    EXPECT_EQ(its.person.line_of("lvwDescriptors", 3), "Job |  | ");
    EXPECT_EQ(its.host.calls.count("hlxOPCDescriptors.Remove"), 1);
    its.person.picks("lvwDescriptors", three_rows[0]);
    its.person.presses("bnRemoveDesc");
    its.expect_report(error::invalid_procedure_call, "dlgConfiguration.bnRemoveDesc_Click");
    EXPECT_EQ(its.person.lines_of("lvwDescriptors").size(), 4U);
    dialog.leaves();
}

SCENARIO(DescriptorsTab, NamesThatTheHostDoesNotTakeAreWrittenBackTogether) {
    ListingDescriptors dialog(its);
    const Fields before = its.host.configuration->descriptors->fields();
    its.person.double_clicks("lvwDescriptors", three_rows[0]);
    its.host.configuration->descriptors->entries[0]->fields.item = "Not what the dialog got";
    its.person.enters("txtItem", "Axle");
    its.person.enters("txtGroup", "Forgings");
    its.host.calls.fail_on("hlxOPCDescriptor.GroupName=");
    its.person.presses("bnOK");
    its.expect_report(CallLog::failure_number, "dlgConfiguration.bnEditDesc_Click");
    EXPECT_EQ(its.host.configuration->descriptors->fields(), before);
    EXPECT_EQ(its.person.lines_of("lvwDescriptors"), three_rows);
    dialog.leaves();
}

SCENARIO(DescriptorsTab, ADescriptorThatTheHostDropsAsItFailsLeavesTheListToo) {
    its.host.configuration->descriptors->drops_and_fails = true;
    ListingDescriptors dialog(its);
    its.person.picks("lvwDescriptors", three_rows[1]);
    its.person.presses("bnRemoveDesc");
    its.expect_report(error::invalid_procedure_call, "dlgConfiguration.bnRemoveDesc_Click");
    EXPECT_EQ(its.person.lines_of("lvwDescriptors"), (Lines{three_rows[0], three_rows[2]}));
    EXPECT_EQ(its.person.sees("lvwDescriptors").selected, -1) << "Nobody chose the next one.";
    dialog.leaves();
}

SCENARIO(DescriptorsTab, ADescriptorThatTheHostKeepsStaysSelected) {
    its.host.configuration->descriptors->keeps_all = true;
    ListingDescriptors dialog(its);
    its.person.picks("lvwDescriptors", three_rows[1]);
    its.person.presses("bnRemoveDesc");
    its.expect_report(error::invalid_procedure_call, "dlgConfiguration.bnRemoveDesc_Click");
    EXPECT_EQ(its.person.lines_of("lvwDescriptors"), three_rows);
    EXPECT_EQ(its.person.sees("lvwDescriptors").selected, 1);
    dialog.leaves();
}

SCENARIO(DescriptorsTab, DescriptorsUpToTheOneThatCannotBeReadAreListed) {
    ListingDescriptors dialog(its, "ItemName", 1);
    EXPECT_EQ(its.person.lines_of("lvwDescriptors"), (Lines{three_rows[0], "Serial Number |  | "}));
    expect_to_lead_to(its, "Serial Number |  | ", "Serial Number");
    its.person.picks("lvwDescriptors", three_rows[0]);
    its.person.presses("bnRemoveDesc");
    EXPECT_EQ(its.host.configuration->descriptors->fields(),
              (Fields{{7, "(%Line1.Serial)", ""}, {5, "Red", "Colours"}}));
    EXPECT_EQ(its.person.lines_of("lvwDescriptors"), Lines{"Serial Number |  | "});
    expect_to_lead_to(its, "Serial Number |  | ", "Serial Number");
    dialog.leaves();
}

SCENARIO(DescriptorsTab, ADescriptorOfNoTellableKindHasAnEmptyRow) {
    ListingDescriptors dialog(its, "Type", 1);
    EXPECT_EQ(its.person.lines_of("lvwDescriptors"), (Lines{three_rows[0], " |  | "}));
    its.person.picks("lvwDescriptors", " |  | ");
    its.person.presses("bnRemoveDesc");
    EXPECT_EQ(its.host.configuration->descriptors->fields(),
              (Fields{{0, "Wheel", "Castings"}, {5, "Red", "Colours"}}));
    dialog.leaves();
}

SCENARIO(DescriptorsTab, ANewDescriptorMakesAListInPartWhole) {
    ListingDescriptors dialog(its, "GroupName", 1);
    adds_descriptor(its, "Job");
    Lines rows = three_rows;
    rows.emplace_back("Job | Group | New");
    EXPECT_EQ(its.person.lines_of("lvwDescriptors"), rows);
    EXPECT_EQ(its.person.sees("lvwDescriptors").selected, 3);
    expect_to_lead_to(its, rows[3], "Job");
    its.person.presses("bnRemoveDesc");
    EXPECT_EQ(its.person.lines_of("lvwDescriptors"), three_rows);
    EXPECT_EQ(its.host.configuration->descriptors->fields().size(), 3U);
    EXPECT_EQ(its.host.configuration->descriptors->fields()[2].type, 5);
    adds_descriptor(its, "Job"); // to the whole list
    EXPECT_EQ(its.person.lines_of("lvwDescriptors"), rows);
    dialog.leaves();
}

SCENARIO(DescriptorsTab, RowsThatCannotBeReadAgainStayOutOfReachUntilTheyCan) {
    ListingDescriptors dialog(its, "GroupName", 2);
    const Lines before = {three_rows[0], three_rows[1], "User Defined (Subgroup) |  | "};
    EXPECT_EQ(its.person.lines_of("lvwDescriptors"), before);
    prepares_descriptor(its, "Job");
    its.host.calls.fail_on("hlxOPCDescriptors.NewEnum");
    its.person.presses("bnOK");
    its.expect_report(CallLog::failure_number, "dlgConfiguration.bnAddDesc_Click");
    EXPECT_EQ(its.person.lines_of("lvwDescriptors"), before);
    EXPECT_EQ(its.host.configuration->descriptors->fields().size(), 4U);
    expect_descriptors_out_of_reach(its);
    its.host.calls.fail_on("");
    expect_descriptors_out_of_reach(its);
    adds_descriptor(its, "User Defined (Piece)");
    EXPECT_EQ(its.person.lines_of("lvwDescriptors"),
              (Lines{three_rows[0], three_rows[1], three_rows[2], "Job | Group | New",
                     "User Defined (Piece) | Group | New"}));
    EXPECT_EQ(its.person.sees("lvwDescriptors").selected, 4);
    EXPECT_TRUE(its.person.can_press("bnEditDesc"));
    expect_to_lead_to(its, "Job | Group | New", "Job");
    its.person.presses("bnRemoveDesc");
    EXPECT_EQ(its.host.configuration->descriptors->fields().size(), 4U);
    dialog.leaves();
}

SCENARIO(DescriptorsTab, ANewDescriptorThatCannotBeReadBackShowsWhatWasConfirmed) {
    ListingDescriptors dialog(its);
    prepares_descriptor(its, "Job");
    its.host.calls.fail_on("hlxOPCDescriptor.Type");
    its.person.presses("bnOK");
    its.expect_report(CallLog::failure_number, "dlgConfiguration.bnAddDesc_Click");
    EXPECT_EQ(its.person.line_of("lvwDescriptors", 3), "Job | Group | New");
    EXPECT_EQ(its.person.sees("lvwDescriptors").selected, 3);
    its.host.calls.fail_on("");
    expect_to_lead_to(its, "Job | Group | New", "Job");
    its.person.presses("bnRemoveDesc");
    EXPECT_EQ(its.host.configuration->descriptors->fields().size(), 3U);
    dialog.leaves();
}

SCENARIO(DescriptorsTab, AnEditThatCannotBeReadBackShowsWhatWasConfirmed) {
    ListingDescriptors dialog(its);
    its.person.double_clicks("lvwDescriptors", three_rows[0]);
    its.person.enters("txtItem", "Axle");
    its.person.enters("txtGroup", "Forgings");
    its.host.calls.fail_on("hlxOPCDescriptor.GroupName");
    its.person.presses("bnOK");
    its.expect_report(CallLog::failure_number, "dlgConfiguration.bnEditDesc_Click");
    EXPECT_EQ(its.host.configuration->descriptors->fields()[0], (DescriptorFields{0, "Axle", "Forgings"}));
    EXPECT_EQ(its.person.lines_of("lvwDescriptors"),
              (Lines{"Part | Forgings | Axle", three_rows[1], three_rows[2]}));
    EXPECT_EQ(its.person.sees("lvwDescriptors").selected, 0);
    EXPECT_TRUE(its.person.can_press("bnRemoveDesc"));
    dialog.leaves();
}

SCENARIO(DescriptorsTab, ADescriptorThatTheHostAddsAsItFailsIsListed) {
    for (const bool it_fails : {true, false}) {
        FakeDescriptors& descriptors = *its.host.configuration->descriptors;
        descriptors.entries.clear();
        ListingDescriptors dialog(its);
        its.person.presses("bnAddDesc");
        its.person.picks("List1", "Job");
        (it_fails ? descriptors.adds_and_fails : descriptors.gives_nothing) = true;
        its.person.presses("bnOK");
        its.person.is_at("dlgConfiguration");
        its.expect_report(it_fails ? error::invalid_procedure_call : error::object_not_set,
                          "dlgConfiguration.bnAddDesc_Click");
        descriptors.adds_and_fails = descriptors.gives_nothing = false;
        Lines rows = three_rows;
        rows.emplace_back("Job |  | ");
        EXPECT_EQ(its.person.lines_of("lvwDescriptors"), rows);
        adds_descriptor(its, "Process");
        rows.emplace_back("Process | Group | New");
        EXPECT_EQ(its.person.lines_of("lvwDescriptors"), rows);
        expect_to_lead_to(its, rows[4], "Process");
        expect_to_lead_to(its, rows[3], "Job");
        its.person.presses("bnRemoveDesc");
        EXPECT_EQ(descriptors.fields().size(), 4U);
        EXPECT_EQ(descriptors.fields().back(), (DescriptorFields{1, "New", "Group"}));
        rows.erase(rows.begin() + 3);
        EXPECT_EQ(its.person.lines_of("lvwDescriptors"), rows);
        dialog.leaves();
    }
}

SCENARIO(DescriptorsTab, ADescriptorThatTheHostAddsUnreadLeavesTheRowsOutOfReach) {
    its.host.configuration->descriptors->adds_and_fails = true;
    ListingDescriptors dialog(its);
    its.person.presses("bnAddDesc");
    its.host.calls.fail_on("hlxOPCDescriptors.NewEnum");
    its.person.presses("bnOK");
    its.expect_report(error::invalid_procedure_call, "dlgConfiguration.bnAddDesc_Click");
    EXPECT_EQ(its.person.lines_of("lvwDescriptors"), three_rows);
    expect_descriptors_out_of_reach(its);
    dialog.leaves();
}

SCENARIO(DescriptorsTab, AListInPartStaysSoThroughAnEditAndAnAdd) {
    three_descriptors(its);
    its.host.configuration->descriptors->entries[1]->untold = "GroupName";
    const Lines in_part = {three_rows[0], "Serial Number |  | "};
    Configuring dialog(its);
    its.expect_report(error::invalid_procedure_call, "dlgConfiguration.Form_Load", ErrorLibrary::hlxER01);
    dialog.turns_to_descriptors();
    EXPECT_EQ(its.person.lines_of("lvwDescriptors"), in_part);
    its.person.double_clicks("lvwDescriptors", in_part[1]);
    its.expect_report(error::invalid_procedure_call, "dlgConfiguration.bnEditDesc_Click");
    its.person.double_clicks("lvwDescriptors", in_part[0]);
    its.person.enters("txtItem", "Axle");
    its.person.presses("bnOK");
    const std::string edited = "Part | Castings | Axle";
    EXPECT_EQ(its.person.lines_of("lvwDescriptors"), (Lines{edited, in_part[1]}));
    adds_descriptor(its, "Job");
    its.expect_report(error::invalid_procedure_call, "dlgConfiguration.bnAddDesc_Click");
    EXPECT_EQ(its.host.configuration->descriptors->fields().size(), 4U);
    EXPECT_EQ(its.person.lines_of("lvwDescriptors"), (Lines{edited, in_part[1]}));
    EXPECT_EQ(its.person.sees("lvwDescriptors").selected, 0);
    expect_to_lead_to(its, edited, "Part");
    its.person.picks("lvwDescriptors", in_part[1]);
    its.person.presses("bnRemoveDesc");
    EXPECT_EQ(its.host.configuration->descriptors->fields(),
              (Fields{{0, "Axle", "Castings"}, {5, "Red", "Colours"}, {2, "New", "Group"}}));
    adds_descriptor(its, "Process"); // nothing is unreadable any more
    EXPECT_EQ(its.person.lines_of("lvwDescriptors"),
              (Lines{edited, three_rows[2], "Job | Group | New", "Process | Group | New"}));
    dialog.leaves();
}
