#include "configuration/dlgConfiguration.h"
#include "designs/one_design.h"

#include <gtest/gtest.h>

using namespace brx;
using namespace brx::checks;

TEST(Designs, OfConfigurationKeepNamesPlacesTabsAndCaptions) {
    EXPECT_EQ(design_of<dlgConfiguration>(),
              R"(dlgConfiguration 'Configuration Properties' 552x432 resizable reports to hlxER01
TabStrip1: tab strip 11,11 530x376 tab 51 wide high '&1. General' '&2. Sampling' '&3. Descriptors' '&4. Server Information'
frmTab(0): panel 15,36 522x347 tab 0 wide high
frmTab(1): panel 15,36 522x347 tab 0 wide high hidden
frmTab(2): panel 15,36 522x347 tab 0 wide high hidden
frmTab(3): panel 15,36 522x347 tab 0 wide high hidden
bnClose: button 466,398 75x23 tab 50 right bottom '&Close' default
frmTab(0)/lblName: label 11,15 120x15 tab 1 '&A. Name:'
frmTab(0)/txtName: text box 135,11 376x23 tab 2 wide
frmTab(0)/lblServer: label 11,45 120x15 tab 3 'OPC Server:'
frmTab(0)/txtServer: text box 135,41 376x23 tab 4 wide display only
frmTab(0)/lblUpdateRate: label 11,75 120x15 tab 5 '&B. Update Rate:'
frmTab(0)/txtUpdateRate: text box 135,71 100x23 tab 6
frmTab(0)/lblDeadband: label 275,75 132x15 tab 7 '&C. Dead Band (%FS):'
frmTab(0)/txtDeadband: text box 411,71 100x23 tab 8
frmTab(0)/chkActive: check box 135,104 100x17 tab 9 '&D. Active' 0
frmTab(0)/lblSubgroupSize: label 275,105 132x15 tab 10 '&E. Subgroup Size:'
frmTab(0)/txtSubgroupSize: text box 411,101 100x23 tab 11
frmTab(0)/frmTests: frame 11,131 500x205 tab 12 wide high '&F. Tests'
frmTests/lvwTest: list view 11,20 478x144 tab 13 wide high
frmTests/lblTestsNotice: label 11,171 232x30 tab 0 bottom '' as data
frmTests/bnAdd: button 250,171 75x23 tab 14 right bottom '&G. Add...'
frmTests/cmdEdit: button 332,171 75x23 tab 15 right bottom '&H. Edit...'
frmTests/bnRemove: button 414,171 75x23 tab 16 right bottom '&I. Remove'
frmTab(1)/frmSync: frame 11,11 500x54 tab 0 wide 'Synchronization Date/Time'
frmSync/lblSyncDate: label 11,24 80x15 tab 20 '&A. Date:'
frmSync/dtSyncDate: date picker 95,20 140x23 tab 21 date
frmSync/lblSyncTime: label 265,24 80x15 tab 22 '&B. Time:'
frmSync/dtSyncTime: date picker 349,20 140x23 tab 23 time
frmTab(1)/frmSubgroup: frame 11,76 500x84 tab 0 wide 'Subgroup Sampling Period'
frmSubgroup/lblSGInterval: label 11,24 80x15 tab 24 '&C. Interval:'
frmSubgroup/txtSGInterval: text box 95,20 140x23 tab 25
frmSubgroup/lblSGTimeUnit: label 265,24 80x15 tab 26 '&D. Unit:'
frmSubgroup/cboSGTimeUnit: combo box 349,20 140x23 tab 27
frmSubgroup/lblSGEval: label 11,54 80x15 tab 28 '&E. Trigger:'
frmSubgroup/txtSGEval: text box 95,50 371x23 tab 29 wide display only
frmSubgroup/cmdSubgroupTrigger: button 466,50 23x23 tab 30 right '...' tip 'Set the trigger of subgroups'
frmTab(1)/frmPiece: frame 11,171 500x84 tab 0 wide 'Piece Sampling Period'
frmPiece/lblPieceTimeInterval: label 11,24 80x15 tab 31 '&F. Interval:'
frmPiece/txtPieceTimeInterval: text box 95,20 140x23 tab 32
frmPiece/lblPieceTimeUnit: label 265,24 80x15 tab 33 '&G. Unit:'
frmPiece/cboPieceTimeUnit: combo box 349,20 140x23 tab 34
frmPiece/lblPieceEval: label 11,54 80x15 tab 35 '&H. Trigger:'
frmPiece/txtPieceEval: text box 95,50 371x23 tab 36 wide display only
frmPiece/cmdPieceTrigger: button 466,50 23x23 tab 37 right '...' tip 'Set the trigger of pieces'
frmTab(2)/frmDescriptors: frame 11,11 500x325 tab 40 wide high '&A. Descriptors'
frmDescriptors/lvwDescriptors: list view 11,20 478x264 tab 41 wide high
frmDescriptors/lblDescriptorsNotice: label 11,291 232x30 tab 0 bottom '' as data
frmDescriptors/bnAddDesc: button 250,291 75x23 tab 42 right bottom '&B. Add...'
frmDescriptors/bnEditDesc: button 332,291 75x23 tab 43 right bottom '&C. Edit...'
frmDescriptors/bnRemoveDesc: button 414,291 75x23 tab 44 right bottom '&D. Remove'
frmTab(3)/lvwServerInfo: list view 11,11 500x325 tab 45 wide high
Timer1: timer 1000 ms
)");
}

TEST(Designs, OfDescriptorTypeKeepNamesPlacesTabsAndCaptions) {
    EXPECT_EQ(design_of<dlgDescriptorType>(), R"(dlgDescriptorType 'Descriptor Type' 240x205
List1: list box 11,11 218x149 tab 1
bnOK: button 72,171 75x23 tab 2 'OK' default
bnCancel: button 154,171 75x23 tab 3 '&Cancel' cancel
)");
}

TEST(Designs, OfDescriptorPropertiesKeepNamesPlacesTabsAndCaptions) {
    EXPECT_EQ(design_of<dlgDescriptorProperties>(), R"(dlgDescriptorProperties 'Descriptor Properties' 381x139
lblGroup: label 11,15 60x15 tab 1 '&A. Group:'
txtGroup: text box 75,11 272x23 tab 2
bnGroup: button 347,11 23x23 tab 3 '...' tip 'Browse the server for the group's item'
lblGeneral: label 11,45 60x15 tab 4 '&B. Item:'
txtItem: text box 75,41 272x23 tab 5
bnItem: button 347,41 23x23 tab 6 '...' tip 'Browse the server for an item'
bnSelect: button 75,71 180x23 tab 7 '&C. Select from Database...'
bnOK: button 213,105 75x23 tab 8 disabled 'OK' default
bnCancel: button 295,105 75x23 tab 9 '&Cancel' cancel
)");
}
