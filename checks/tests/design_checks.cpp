#include "configuration/dlgDescriptorProperties.h"
#include "forms/one_form.h"
#include "tests/designs.h"
#include "tests/dlgEvaluation.h"
#include "tests/dlgOPCTest.h"

#include <gtest/gtest.h>

using namespace brx;
using namespace brx::checks;

// What the dialogs of one test, one trigger and one descriptor look like before anything has happened.

namespace {

using Design = std::vector<std::string>;

struct DesignedForms : testing::Test {
    FakeHost host;
    ScriptedEngine engine;
    Environment environment{engine, host, host, Locale::us_english()};
};

} // namespace

TEST_F(DesignedForms, TheTestDialogIsAsDesigned) {
    EXPECT_EQ(
        design_of(dlgOPCTest(environment)),
        Design({"dlgOPCTest 421x263 'OPC Test Configuration' Arial",
                "1 label lblTest 11,15 92x15 '&A. Test:'", "2 text box txtTest 107,11 280x23 display-only",
                "3 button bnTest 387,11 23x23 '...'", "4 label lblItem 11,45 92x15 '&B. OPC Item:'",
                "5 text box txtItem 107,41 280x23 display-only", "6 button bnItem 387,41 23x23 '...'",
                "7 label lblSaveAs 11,75 92x15 '&C. Save As:'", "8 drop-down list cboSaveAs 107,71 303x23",
                "9 label lblConstant 11,105 92x15 '&D. Constant:'", "10 text box txtConstant 107,101 303x23",
                "11 check box chkItemTrigger 11,137 399x17 '&E. Trigger On Change Event'",
                "12 label lblExpression 11,169 92x15 '&F. Expression:'",
                "13 drop-down list cboExpression 107,165 303x23",
                "14 label lblValue 11,199 92x15 '&G. Value:'", "15 text box txtValue 107,195 303x23",
                "16 button bnOK 253,229 75x23 'OK' default",
                "17 button bnCancel 335,229 75x23 '&Cancel' cancel"}));
}

TEST_F(DesignedForms, TheTriggerDialogIsAsDesigned) {
    EXPECT_EQ(
        design_of(dlgEvaluation(environment)),
        Design({"dlgEvaluation 421x139 'Set Trigger' ", "1 label Label1 11,15 92x15 '&A. OPC Item:'",
                "2 drop-down list cboItem 107,11 280x23", "3 button bnItem 387,11 23x23 '...'",
                "4 label Label2 11,45 92x15 '&B. Expression'", "5 drop-down list cboExpression 107,41 303x23",
                "6 label Label3 11,75 92x15 '&C. Value'", "7 text box txtValue 107,71 303x23",
                "8 button bnOK 253,105 75x23 'OK' default",
                "9 button bnCancel 335,105 75x23 '&Cancel' cancel"}));
}

TEST_F(DesignedForms, TheDescriptorsPropertiesAreAsDesigned) {
    EXPECT_EQ(design_of(dlgDescriptorProperties(environment)),
              Design({"dlgDescriptorProperties 381x139 'Descriptor Properties' ",
                      "1 label lblGroup 11,15 60x15 '&A. Group:'", "2 text box txtGroup 75,11 272x23",
                      "3 button bnGroup 347,11 23x23 '...'", "4 label lblGeneral 11,45 60x15 '&B. Item:'",
                      "5 text box txtItem 75,41 272x23", "6 button bnItem 347,41 23x23 '...'",
                      "7 button bnSelect 75,71 180x23 '&C. Select from Database...'",
                      "8 button bnOK 213,105 75x23 'OK' default disabled",
                      "9 button bnCancel 295,105 75x23 '&Cancel' cancel"}));
}
