#include "configuration_form.h"
#include "forms/form_design.h"

using namespace brx;
using namespace brx::checks;

// How the configuration dialog and the one for kinds of descriptors are designed.

namespace {

using Design = std::vector<std::string>;

} // namespace

TEST_F(ConfigurationForm, IsAsDesigned) {
    EXPECT_EQ(
        DesignOnPaper(form).lines(),
        (Design{
            "dlgConfiguration 552x432 'Configuration Properties' can be made larger reports to hlxER01",
            "51 TabStrip1 tabs '&1. General' '&2. Sampling' '&3. Descriptors' '&4. Server Information' at "
            "11,11 530x376 grows wide grows high",
            "0 frmTab(0) panel at 15,36 522x347 grows wide grows high",
            "0 frmTab(1) panel at 15,36 522x347 hidden grows wide grows high",
            "0 frmTab(2) panel at 15,36 522x347 hidden grows wide grows high",
            "0 frmTab(3) panel at 15,36 522x347 hidden grows wide grows high",
            "50 bnClose button '&Close' Enter at 466,398 75x23 keeps right keeps low",
            "1 lblName label '&A. Name:' at 11,15 120x15 in frmTab(0)",
            "2 txtName box at 135,11 376x23 in frmTab(0) grows wide",
            "3 lblServer label 'OPC Server:' at 11,45 120x15 in frmTab(0)",
            "4 txtServer display box at 135,41 376x23 in frmTab(0) grows wide",
            "5 lblUpdateRate label '&B. Update Rate:' at 11,75 120x15 in frmTab(0)",
            "6 txtUpdateRate box at 135,71 100x23 in frmTab(0)",
            "7 lblDeadband label '&C. Dead Band (%FS):' at 275,75 132x15 in frmTab(0)",
            "8 txtDeadband box at 411,71 100x23 in frmTab(0)",
            "9 chkActive check box '&D. Active' at 135,104 100x17 in frmTab(0)",
            "10 lblSubgroupSize label '&E. Subgroup Size:' at 275,105 132x15 in frmTab(0)",
            "11 txtSubgroupSize box at 411,101 100x23 in frmTab(0)",
            "12 frmTests frame '&F. Tests' at 11,131 500x205 in frmTab(0) grows wide grows high",
            "13 lvwTest table at 11,20 478x144 in frmTests grows wide grows high",
            "14 bnAdd button '&G. Add...' at 250,171 75x23 in frmTests keeps right keeps low",
            "15 cmdEdit button '&H. Edit...' at 332,171 75x23 in frmTests keeps right keeps low",
            "16 bnRemove button '&I. Remove' at 414,171 75x23 in frmTests keeps right keeps low",
            "0 frmSync frame 'Synchronization Date/Time' at 11,11 500x54 in frmTab(1) grows wide",
            "20 lblSyncDate label '&A. Date:' at 11,24 80x15 in frmSync",
            "21 dtSyncDate date at 95,20 140x23 in frmSync",
            "22 lblSyncTime label '&B. Time:' at 265,24 80x15 in frmSync",
            "23 dtSyncTime time at 349,20 140x23 in frmSync",
            "0 frmSubgroup frame 'Subgroup Sampling Period' at 11,76 500x84 in frmTab(1) grows wide",
            "24 lblSGInterval label '&C. Interval:' at 11,24 80x15 in frmSubgroup",
            "25 txtSGInterval box at 95,20 140x23 in frmSubgroup",
            "26 lblSGTimeUnit label '&D. Unit:' at 265,24 80x15 in frmSubgroup",
            "27 cboSGTimeUnit drop-down list at 349,20 140x23 in frmSubgroup",
            "28 lblSGEval label '&E. Trigger:' at 11,54 80x15 in frmSubgroup",
            "29 txtSGEval display box at 95,50 371x23 in frmSubgroup grows wide",
            "30 cmdSubgroupTrigger button '...' at 466,50 23x23 in frmSubgroup keeps right",
            "0 frmPiece frame 'Piece Sampling Period' at 11,171 500x84 in frmTab(1) grows wide",
            "31 lblPieceTimeInterval label '&F. Interval:' at 11,24 80x15 in frmPiece",
            "32 txtPieceTimeInterval box at 95,20 140x23 in frmPiece",
            "33 lblPieceTimeUnit label '&G. Unit:' at 265,24 80x15 in frmPiece",
            "34 cboPieceTimeUnit drop-down list at 349,20 140x23 in frmPiece",
            "35 lblPieceEval label '&H. Trigger:' at 11,54 80x15 in frmPiece",
            "36 txtPieceEval display box at 95,50 371x23 in frmPiece grows wide",
            "37 cmdPieceTrigger button '...' at 466,50 23x23 in frmPiece keeps right",
            "40 frmDescriptors frame '&A. Descriptors' at 11,11 500x325 in frmTab(2) grows wide grows high",
            "41 lvwDescriptors table at 11,20 478x264 in frmDescriptors grows wide grows high",
            "42 bnAddDesc button '&B. Add...' at 250,291 75x23 in frmDescriptors keeps right keeps low",
            "43 bnEditDesc button '&C. Edit...' at 332,291 75x23 in frmDescriptors keeps right keeps low",
            "44 bnRemoveDesc button '&D. Remove' at 414,291 75x23 in frmDescriptors keeps right keeps low",
            "45 lvwServerInfo table at 11,11 500x325 in frmTab(3) grows wide grows high",
            "0 Timer1 timer 1000"}));
}

TEST_F(ConfigurationForm, TheDialogOfKindsIsAsDesigned) {
    const dlgDescriptorType kinds(environment);
    EXPECT_EQ(DesignOnPaper(kinds).lines(),
              (Design{"dlgDescriptorType 240x205 'Descriptor Type'", "1 List1 list at 11,11 218x149",
                      "2 bnOK button 'OK' Enter at 72,171 75x23",
                      "3 bnCancel button '&Cancel' Escape at 154,171 75x23"}));
}
