#include "forms/form_design.h"
#include "forms/one_form.h"
#include "servers/dlgServerAdd.h"
#include "servers/dlgServerInformation.h"
#include "servers/dlgServerSelect.h"

#include <gtest/gtest.h>

using namespace brx;
using namespace brx::checks;

// How the dialogs of servers are designed.

namespace {

using Design = std::vector<std::string>;

struct ServerDesigns : testing::Test {
    FakeHost host;
    ScriptedEngine engine;
    Environment environment{engine, host, host, Locale::us_english()};
};

} // namespace

TEST_F(ServerDesigns, SelectingAServer) {
    EXPECT_EQ(DesignOnPaper(dlgServerSelect(environment)).lines(),
              (Design{"dlgServerSelect 400x108 'Select OPC Server'", "1 Frame1 frame '' at 11,7 378x56",
                      "2 lblGeneral label 'OPC Server:' at 11,24 72x15 in Frame1",
                      "3 cboServer drop-down list at 87,20 199x23 in Frame1",
                      "4 bnServer button '&Add...' at 293,20 75x23 in Frame1",
                      "5 bnOK button 'OK' Enter at 232,74 75x23 disabled",
                      "6 bnCancel button '&Cancel' Escape at 314,74 75x23"}));
}

TEST_F(ServerDesigns, AddingAServer) {
    EXPECT_EQ(
        DesignOnPaper(dlgServerAdd(environment)).lines(),
        (Design{"dlgServerAdd 430x305 'Add OPC Server'", "1 Label1 label '&A. Node:' at 11,15 88x15",
                "2 txtNode box takes Enter at 107,11 207x23",
                "3 cmdRefreshList button '&B. Refresh List' at 321,11 98x23",
                "4 Label2 label '&C. OPC Servers:' at 11,45 408x15", "5 lstOPCServers list at 11,63 408x169",
                "6 Label4 label 'Selected Server:' at 11,243 92x15",
                "7 lblSelectedServer label '' without a letter at 107,243 312x15",
                "8 bnOK button 'OK' Enter at 262,271 75x23 disabled",
                "9 bnCancel button '&Cancel' Escape at 344,271 75x23"}));
}

TEST_F(ServerDesigns, WatchingAServer) {
    EXPECT_EQ(
        DesignOnPaper(dlgServerInformation(environment)).lines(),
        (Design{"dlgServerInformation 400x223 'Server Information'", "1 Frame1 frame '' at 11,7 378x171",
                "2 Label1 label 'Start Time' at 11,24 113x15 in Frame1",
                "3 Start display box at 128,20 239x23 in Frame1",
                "4 Label2 label 'Current Time' at 11,53 113x15 in Frame1",
                "5 Current display box at 128,49 239x23 in Frame1",
                "6 Label3 label 'Last Update Time' at 11,82 113x15 in Frame1",
                "7 Last display box at 128,78 239x23 in Frame1",
                "8 Label4 label 'Version' at 11,111 113x15 in Frame1",
                "9 Version display box at 128,107 239x23 in Frame1",
                "10 Label5 label 'Vendor Information' at 11,140 113x15 in Frame1",
                "11 Vendor display box at 128,136 239x23 in Frame1",
                "12 bnOK button 'OK' Enter Escape at 314,189 75x23", "0 Timer1 timer 1000"}));
}
