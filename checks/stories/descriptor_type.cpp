#include "configuring.h"

// The dialog in which the kind of a new descriptor is chosen.

using namespace brx;
using namespace brx::checks;

namespace {

void opens_the_kinds(Play& its, Configuring& dialog) {
    dialog.turns_to_descriptors();
    its.person.presses("bnAddDesc");
    its.person.is_at("dlgDescriptorType");
}

} // namespace

SCENARIO(DescriptorTypeDialog, AnEmptyConfigurationIsOfferedEveryKind) {
    Configuring dialog(its);
    opens_the_kinds(its, dialog);
    EXPECT_EQ(its.person.title(), "Descriptor Type");
    EXPECT_EQ(its.person.lines_of("List1"),
              (Lines{"Part", "Process", "Job", "Lot", "Shift", "Serial Number", "Subgroup Comment",
                     "User Defined (Subgroup)", "User Defined (Piece)"}));
    EXPECT_EQ(its.person.sees("List1").selected, 0);
    its.person.hits(Key::escape);
    its.person.is_at("dlgConfiguration");
    dialog.leaves();
}

SCENARIO(DescriptorTypeDialog, OnlyTheUserDefinedKindsAreOfferedTwice) {
    for (const std::int32_t type : {0, 1, 2, 3, 4, 5, 5, 6, 7, 8, 9, 100, -1})
        its.host.configuration->descriptors->has({.type = type, .item = "x", .group = "y"});
    Configuring dialog(its);
    opens_the_kinds(its, dialog);
    EXPECT_EQ(its.person.lines_of("List1"), (Lines{"User Defined (Subgroup)", "User Defined (Piece)"}));
    EXPECT_EQ(its.person.sees("List1").selected, 0);
    its.person.presses("bnCancel");
    dialog.leaves();
}

SCENARIO(DescriptorTypeDialog, ADoubleClickChoosesTheFirstKindToo) {
    Configuring dialog(its);
    opens_the_kinds(its, dialog);
    const std::string first = its.person.line_of("List1", 0);
    its.person.double_clicks("List1", first);
    its.person.is_at("dlgDescriptorProperties");
    EXPECT_EQ(its.person.title(), "Descriptor Properties - " + first);
    its.person.presses("bnCancel");
    dialog.leaves();
}

SCENARIO(DescriptorTypeDialog, UnknownCodesHideNoKind) {
    its.host.configuration->descriptors->has({.type = 9, .item = "x", .group = "y"});
    Configuring dialog(its);
    opens_the_kinds(its, dialog);
    EXPECT_EQ(its.person.lines_of("List1").size(), 9U);
    its.person.presses("bnCancel");
    EXPECT_EQ(its.person.lines_of("lvwDescriptors"), (Lines{" | y | x"}));
    dialog.leaves();
}

SCENARIO(DescriptorTypeDialog, ADoubleClickChooses) {
    Configuring dialog(its);
    opens_the_kinds(its, dialog);
    its.person.double_clicks("List1", "User Defined (Piece)");
    its.person.is_at("dlgDescriptorProperties");
    EXPECT_EQ(its.person.title(), "Descriptor Properties - User Defined (Piece)");
    EXPECT_EQ(its.host.configuration->descriptors->fields()[0].type, 6);
    its.person.presses("bnCancel");
    dialog.leaves();
}

SCENARIO(DescriptorTypeDialog, WithoutItsKindsNothingCanBeChosen) {
    Configuring dialog(its);
    dialog.turns_to_descriptors();
    its.host.calls.fail_on("hlxOPCDescriptors.NewEnum");
    its.person.presses("bnAddDesc");
    its.expect_report(CallLog::failure_number, "dlgDescriptorType.Form_Load");
    its.person.presses("bnOK");
    its.person.is_at("dlgDescriptorType");
    its.person.presses("bnCancel");
    EXPECT_EQ(its.host.configuration->descriptors->entries.size(), 0U);
    dialog.leaves();
}
