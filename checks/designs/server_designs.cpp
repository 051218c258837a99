#include "designs/one_design.h"
#include "servers/dlgServerAdd.h"
#include "servers/dlgServerInformation.h"
#include "servers/dlgServerSelect.h"

#include <gtest/gtest.h>

using namespace brx;
using namespace brx::checks;

TEST(Designs, OfServerSelectKeepNamesPlacesTabsAndCaptions) {
    EXPECT_EQ(design_of<dlgServerSelect>(), R"(dlgServerSelect 'Select OPC Server' 400x108
Frame1: frame 11,7 378x56 tab 1 ''
Frame1/lblGeneral: label 11,24 72x15 tab 2 'OPC Server:'
Frame1/cboServer: combo box 87,20 199x23 tab 3
Frame1/bnServer: button 293,20 75x23 tab 4 '&Add...'
bnOK: button 232,74 75x23 tab 5 disabled 'OK' default
bnCancel: button 314,74 75x23 tab 6 '&Cancel' cancel
)");
}

TEST(Designs, OfServerAddKeepNamesPlacesTabsAndCaptions) {
    EXPECT_EQ(design_of<dlgServerAdd>(), R"(dlgServerAdd 'Add OPC Server' 430x305
Label1: label 11,15 88x15 tab 1 '&A. Node:'
txtNode: text box 107,11 207x23 tab 2 enter
cmdRefreshList: button 321,11 98x23 tab 3 '&B. Refresh List'
Label2: label 11,45 408x15 tab 4 '&C. OPC Servers:'
lstOPCServers: list box 11,63 408x169 tab 5
Label4: label 11,243 92x15 tab 6 'Selected Server:'
lblSelectedServer: label 107,243 312x15 tab 7 '' as data
bnOK: button 262,271 75x23 tab 8 disabled 'OK' default
bnCancel: button 344,271 75x23 tab 9 '&Cancel' cancel
)");
}

TEST(Designs, OfServerInformationKeepNamesPlacesTabsAndCaptions) {
    EXPECT_EQ(design_of<dlgServerInformation>(), R"(dlgServerInformation 'Server Information' 400x223
Frame1: frame 11,7 378x171 tab 1 ''
Frame1/Label1: label 11,24 113x15 tab 2 'Start Time'
Frame1/Start: text box 128,20 239x23 tab 3 display only
Frame1/Label2: label 11,53 113x15 tab 4 'Current Time'
Frame1/Current: text box 128,49 239x23 tab 5 display only
Frame1/Label3: label 11,82 113x15 tab 6 'Last Update Time'
Frame1/Last: text box 128,78 239x23 tab 7 display only
Frame1/Label4: label 11,111 113x15 tab 8 'Version'
Frame1/Version: text box 128,107 239x23 tab 9 display only
Frame1/Label5: label 11,140 113x15 tab 10 'Vendor Information'
Frame1/Vendor: text box 128,136 239x23 tab 11 display only
bnOK: button 314,189 75x23 tab 12 'OK' default cancel
Timer1: timer 1000 ms
)");
}
