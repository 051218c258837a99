#include "designs/one_design.h"
#include "tests/dlgEvaluation.h"
#include "tests/dlgOPCTest.h"

#include <gtest/gtest.h>

using namespace brx;
using namespace brx::checks;

TEST(Designs, OfTestKeepNamesPlacesTabsAndCaptions) {
    EXPECT_EQ(design_of<dlgOPCTest>(), R"(dlgOPCTest 'OPC Test Configuration' 421x263 in Arial
lblTest: label 11,15 92x15 tab 1 '&A. Test:'
txtTest: text box 107,11 280x23 tab 2 display only
bnTest: button 387,11 23x23 tab 3 '...' tip 'Choose a test from the database'
lblItem: label 11,45 92x15 tab 4 '&B. OPC Item:'
txtItem: text box 107,41 280x23 tab 5 display only
bnItem: button 387,41 23x23 tab 6 '...' tip 'Browse the server for an item'
lblSaveAs: label 11,75 92x15 tab 7 '&C. Save As:'
cboSaveAs: combo box 107,71 303x23 tab 8
lblConstant: label 11,105 92x15 tab 9 '&D. Constant:'
txtConstant: text box 107,101 303x23 tab 10
chkItemTrigger: check box 11,137 399x17 tab 11 '&E. Trigger On Change Event' 0
lblExpression: label 11,169 92x15 tab 12 '&F. Expression:'
cboExpression: combo box 107,165 303x23 tab 13
lblValue: label 11,199 92x15 tab 14 '&G. Value:'
txtValue: text box 107,195 303x23 tab 15
bnOK: button 253,229 75x23 tab 16 'OK' default
bnCancel: button 335,229 75x23 tab 17 '&Cancel' cancel
)");
}

TEST(Designs, OfTriggerKeepNamesPlacesTabsAndCaptions) {
    EXPECT_EQ(design_of<dlgEvaluation>(), R"(dlgEvaluation 'Set Trigger' 421x139
Label1: label 11,15 92x15 tab 1 '&A. OPC Item:'
cboItem: combo box 107,11 280x23 tab 2
bnItem: button 387,11 23x23 tab 3 '...' tip 'Browse the server for an item'
Label2: label 11,45 92x15 tab 4 '&B. Expression'
cboExpression: combo box 107,41 303x23 tab 5
Label3: label 11,75 92x15 tab 6 '&C. Value'
txtValue: text box 107,71 303x23 tab 7
bnOK: button 253,105 75x23 tab 8 'OK' default
bnCancel: button 335,105 75x23 tab 9 '&Cancel' cancel
)");
}
