#include "browse/dlgItemSelect.h"
#include "configuration/dlgConfiguration.h"
#include "configuration/dlgDescriptorProperties.h"
#include "configuration/dlgDescriptorType.h"
#include "forms/accessible_name.h"
#include "one_form.h"
#include "servers/dlgServerAdd.h"
#include "servers/dlgServerInformation.h"
#include "servers/dlgServerSelect.h"
#include "tests/dlgEvaluation.h"
#include "tests/dlgOPCTest.h"

#include <gtest/gtest.h>

#include <string>
#include <type_traits>

using namespace brx;
using namespace brx::checks;

namespace {

class AccessibleNames : public testing::Test {
protected:
    /// Each control that the focus can be on, in tab order: "name: what it is called".
    template <class Dialog> std::string names_in() {
        Dialog dialog(environment);
        std::string names;
        for (const Control* control : dialog.controls_in_tab_order())
            if (control->focusable()) names += control->name() + ": " + accessible_name_of(*control) + "\n";
        return names;
    }

    FakeHost host;
    ScriptedEngine engine;
    Environment environment{engine, host, host, Locale{}};
};

} // namespace

TEST_F(AccessibleNames, InTheDialogsOfServersComeFromLabelsAndCaptions) {
    EXPECT_EQ(names_in<dlgServerSelect>(),
              "cboServer: OPC Server:\nbnServer: Add...\nbnOK: OK\nbnCancel: Cancel\n");
    EXPECT_EQ(names_in<dlgServerAdd>(), "txtNode: A. Node:\n"
                                        "cmdRefreshList: B. Refresh List\n"
                                        "lstOPCServers: C. OPC Servers:\n"
                                        "bnOK: OK\n"
                                        "bnCancel: Cancel\n");
    EXPECT_EQ(names_in<dlgServerInformation>(), "Start: Start Time\n"
                                                "Current: Current Time\n"
                                                "Last: Last Update Time\n"
                                                "Version: Version\n"
                                                "Vendor: Vendor Information\n"
                                                "bnOK: OK\n");
}

TEST_F(AccessibleNames, InTheItemBrowserComeFromLabelsAndCaptions) {
    EXPECT_EQ(names_in<dlgItemSelect>(),
              "txtServer: Server Name:\n"
              "TrView: A. Groups:\n"
              "lstItem: B. Items:\n"
              "txtFullPath: C. Item (Examples: somegroup.someitem or [mytopic]myitem)\n"
              "cmdRefresh: Refresh\n"
              "txtFind: Find:\n"
              "bnOK: OK\n"
              "bnCancel: Cancel\n");
}

TEST_F(AccessibleNames, OfAButtonOfDotsSayWhatItOpens) {
    EXPECT_EQ(names_in<dlgOPCTest>(), "txtTest: A. Test:\n"
                                      "bnTest: Choose a test from the database\n"
                                      "txtItem: B. OPC Item:\n"
                                      "bnItem: Browse the server for an item\n"
                                      "cboSaveAs: C. Save As:\n"
                                      "txtConstant: D. Constant:\n"
                                      "chkItemTrigger: E. Trigger On Change Event\n"
                                      "cboExpression: F. Expression:\n"
                                      "txtValue: G. Value:\n"
                                      "bnOK: OK\n"
                                      "bnCancel: Cancel\n");
    EXPECT_EQ(names_in<dlgEvaluation>(), "cboItem: A. OPC Item:\n"
                                         "bnItem: Browse the server for an item\n"
                                         "cboExpression: B. Expression\n"
                                         "txtValue: C. Value\n"
                                         "bnOK: OK\n"
                                         "bnCancel: Cancel\n");
    EXPECT_EQ(names_in<dlgDescriptorProperties>(), "txtGroup: A. Group:\n"
                                                   "bnGroup: Browse the server for the group's item\n"
                                                   "txtItem: B. Item:\n"
                                                   "bnItem: Browse the server for an item\n"
                                                   "bnSelect: C. Select from Database...\n"
                                                   "bnOK: OK\n"
                                                   "bnCancel: Cancel\n");
}

TEST_F(AccessibleNames, OfAListWithoutALabelAreItsFramesOrItsOwn) {
    EXPECT_EQ(names_in<dlgDescriptorType>(), "List1: Types of descriptors\nbnOK: OK\nbnCancel: Cancel\n");
    EXPECT_EQ(names_in<dlgConfiguration>(), "txtName: A. Name:\n"
                                            "txtServer: OPC Server:\n"
                                            "txtUpdateRate: B. Update Rate:\n"
                                            "txtDeadband: C. Dead Band (%FS):\n"
                                            "chkActive: D. Active\n"
                                            "txtSubgroupSize: E. Subgroup Size:\n"
                                            "lvwTest: F. Tests\n"
                                            "bnAdd: G. Add...\n"
                                            "cmdEdit: H. Edit...\n"
                                            "bnRemove: I. Remove\n"
                                            "dtSyncDate: A. Date:\n"
                                            "dtSyncTime: B. Time:\n"
                                            "txtSGInterval: C. Interval:\n"
                                            "cboSGTimeUnit: D. Unit:\n"
                                            "txtSGEval: E. Trigger:\n"
                                            "cmdSubgroupTrigger: Set the trigger of subgroups\n"
                                            "txtPieceTimeInterval: F. Interval:\n"
                                            "cboPieceTimeUnit: G. Unit:\n"
                                            "txtPieceEval: H. Trigger:\n"
                                            "cmdPieceTrigger: Set the trigger of pieces\n"
                                            "lvwDescriptors: A. Descriptors\n"
                                            "bnAddDesc: B. Add...\n"
                                            "bnEditDesc: C. Edit...\n"
                                            "bnRemoveDesc: D. Remove\n"
                                            "lvwServerInfo: Server Information\n"
                                            "bnClose: Close\n"
                                            "TabStrip1: Pages of the configuration\n");
}
