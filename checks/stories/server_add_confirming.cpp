#include "stories/adding.h"

using namespace brx;
using namespace brx::checks;

// Confirming the chosen server, and everything else that ends the dialog or not.

namespace {

const Message already_there{
    .text = "SERVER ALREADY EXISTS!\r\n\r\nServer already exists and cannot be selected a second time.",
    .style = message::information,
    .title = "Servers Exists"};

} // namespace

SCENARIO(AddingAServer, OfAServerThatIsNotAddedNoIndexIsTold) {
    Adding dialog(its);
    dialog.cancels();
    EXPECT_EQ(dialog.add.ServerIndex(), 0);
}

SCENARIO(AddingAServer, AServerAlreadyConnectedOnTheNodeIsRefused) {
    its.host.servers->has_connected("SIM", "pc7");
    its.host.servers_on(" PC7 ", {"Sim"});
    Adding dialog(its);
    dialog.lists_node(" PC7 ");
    its.person.picks("lstOPCServers", "Sim");
    its.person.presses("bnOK");
    its.person.answers(already_there);
    its.person.is_at("dlgServerAdd");
    EXPECT_TRUE(its.host.servers->additions().empty());
    EXPECT_EQ(its.person.reads("txtNode"), " PC7 ") << "Nothing typed is lost.";
    dialog.cancels();
}

SCENARIO(AddingAServer, TheSameNameOnAnotherNodeIsNoDuplicate) {
    its.host.servers->has_connected("Sim", "PC9");
    its.host.servers_on("PC7", {"Sim"});
    Adding dialog(its);
    dialog.lists_node("PC7");
    its.person.picks("lstOPCServers", "Sim");
    its.person.presses("bnOK");
    EXPECT_TRUE(dialog.add.result());
    EXPECT_EQ(dialog.add.ServerIndex(), 2);
}

SCENARIO(AddingAServer, AnEntryWithoutAConnectionIsNoDuplicate) {
    its.host.servers->has("Plant.Simulation.1");
    Adding dialog(its);
    its.person.picks("lstOPCServers", "Plant.Simulation.1");
    its.person.presses("bnOK");
    EXPECT_TRUE(dialog.add.result());
    EXPECT_EQ(dialog.add.ServerIndex(), 2);
}

SCENARIO(AddingAServer, AnEntryThatCannotTellItsNameIsReportedAndPassedOver) {
    its.host.servers->has_connected("Matrix");
    its.host.servers->has_connected("Plant.Simulation.1");
    Adding dialog(its);
    its.person.picks("lstOPCServers", "Plant.Simulation.1");
    its.host.calls.fail_at(4); // the name, after the count, the first entry and its connection
    its.person.presses("bnOK");
    its.expect_report(CallLog::failure_number, "dlgServerAdd.NotInColl");
    its.person.answers(already_there);
    its.host.calls.fail_on("OPCServer.ServerName");
    its.person.presses("bnOK");
    for (int entry = 0; entry < 2; ++entry)
        its.expect_report(CallLog::failure_number, "dlgServerAdd.NotInColl");
    EXPECT_TRUE(dialog.add.result()) << "Nobody knows that it is there already.";
    EXPECT_EQ(dialog.add.ServerIndex(), 3);
}

SCENARIO(AddingAServer, EntriesThatAreNoServersAreReportedAndPassedOver) {
    its.host.servers->has_connected("Matrix")->connection = std::make_shared<FakeOPCGroup>(its.host.calls);
    its.host.servers->claims_count(2);
    Adding dialog(its);
    its.person.picks("lstOPCServers", "Line.Server.2");
    its.person.presses("bnOK");
    its.expect_report(error::type_mismatch, "dlgServerAdd.NotInColl");
    its.expect_report(error::subscript_out_of_range, "dlgServerAdd.NotInColl");
    EXPECT_TRUE(dialog.add.result());
    EXPECT_EQ(its.host.servers->additions(), (std::vector<Addition>{{"Line.Server.2", "", true}}));
}

SCENARIO(AddingAServer, TheIndexIsTheCountRightAfterTheServerWasAdded) {
    its.host.servers->has("Matrix");
    its.host.servers->after_adding = [&] { its.host.servers->has("Somebody.Elses"); };
    Adding dialog(its);
    its.person.picks("lstOPCServers", "Line.Server.2");
    its.person.presses("bnOK");
    EXPECT_TRUE(dialog.add.result());
    EXPECT_EQ(dialog.add.ServerIndex(), 3);
    Lines calls = its.host.calls.members();
    calls.erase(calls.begin(), calls.end() - 2);
    EXPECT_EQ(calls, (Lines{"hlxOPCServers.Add", "hlxOPCServers.Count"}));
}

SCENARIO(AddingAServer, AServerThatCannotBeCountedIsAddedAllTheSame) {
    its.host.servers->has("Matrix");
    its.host.servers->after_adding = [&] { its.host.calls.fail_on("hlxOPCServers.Count"); };
    Adding dialog(its);
    its.person.picks("lstOPCServers", "Line.Server.2");
    its.person.presses("bnOK");
    its.expect_report(CallLog::failure_number, "dlgServerAdd.ConnectServer");
    EXPECT_TRUE(dialog.add.result());
    EXPECT_EQ(dialog.add.ServerIndex(), 2);
}

SCENARIO(AddingAServer, APositionThatNoIndexHoldsIsReportedAndTheServerIsThere) {
    its.host.servers->after_adding = [&] { its.host.servers->claims_count(32768); };
    Showing add(*its.stage, "ServerAdd");
    add.set_ServerIndex(5);
    add.show(its.host.servers);
    its.person.picks("lstOPCServers", "Line.Server.2");
    its.person.presses("bnOK");
    its.expect_report(error::overflow, "dlgServerAdd.ConnectServer");
    its.person.is_at("dlgServerAdd");
    EXPECT_EQ(its.host.servers->additions().size(), 1U);
    its.host.servers->claims_count(-1);
    its.person.presses("bnOK");
    its.person.answers(already_there);
    its.person.presses("bnCancel");
    EXPECT_FALSE(add.result());
    EXPECT_EQ(add.ServerIndex(), 5);
    EXPECT_EQ(its.host.servers->additions().size(), 1U);
}

SCENARIO(AddingAServer, TheLargestIndexIsHandedBack) {
    its.host.servers->after_adding = [&] { its.host.servers->claims_count(32767); };
    Adding dialog(its);
    its.person.picks("lstOPCServers", "Line.Server.2");
    its.person.presses("bnOK");
    EXPECT_TRUE(dialog.add.result());
    EXPECT_EQ(dialog.add.ServerIndex(), 32767);
}

SCENARIO(AddingAServer, AFailedConnectionIsToldAndTheDialogStays) {
    its.host.servers->refuses("Class not registered");
    its.host.servers_on("PC7", {"Sim"});
    Adding dialog(its);
    dialog.lists_node("PC7");
    its.person.picks("lstOPCServers", "Sim");
    its.person.presses("bnOK");
    its.person.answers(
        {.text = "UNABLE TO CONNECT!\r\n\r\nServer: Sim\r\nNode: PC7\r\nError: Class not registered"
                 "\r\n\r\nSelect another Server or try again.",
         .style = message::exclamation,
         .title = "Unable to Connect"});
    its.person.is_at("dlgServerAdd");
    EXPECT_TRUE(its.host.servers->entries().empty());
    EXPECT_EQ(its.person.reads("lblSelectedServer"), "PC7.Sim");
    its.person.presses("cmdRefreshList");
    EXPECT_EQ(its.person.lines_of("lstOPCServers"), Lines{"Sim"}) << "The list can still be refreshed.";
    its.host.servers->refuses("");
    its.person.picks("lstOPCServers", "Sim");
    its.person.presses("bnOK");
    EXPECT_TRUE(dialog.add.result());
    EXPECT_EQ(dialog.add.ServerIndex(), 1);
}

SCENARIO(AddingAServer, ClosingByOtherMeansAddsNothingAndKeepsTheIndex) {
    Showing add(*its.stage, "ServerAdd");
    add.set_ServerIndex(5);
    add.show(its.host.servers);
    its.person.picks("lstOPCServers", "Plant.Simulation.1");
    its.person.closes_the_window();
    EXPECT_FALSE(add.result());
    add.show(its.host.servers);
    its.person.hits(Key::escape);
    EXPECT_FALSE(add.result());
    EXPECT_EQ(add.ServerIndex(), 5);
    EXPECT_TRUE(its.host.servers->additions().empty());
}

SCENARIO(AddingAServer, TheNodeBoxHasTheFocusFirstAndItsTextIsSelectedWhenSheComesBack) {
    its.host.servers_on("PC7", {"Sim"});
    Adding dialog(its);
    EXPECT_TRUE(its.person.has_focus("txtNode"));
    its.person.types("PC9");
    its.person.hits(Key::tab);
    EXPECT_TRUE(its.person.has_focus("cmdRefreshList"));
    its.person.uses_accelerator('A');
    EXPECT_TRUE(its.person.has_focus("txtNode"));
    its.person.types("PC7");
    EXPECT_EQ(its.person.reads("txtNode"), "PC7") << "The selected text was replaced.";
    its.person.uses_accelerator('B');
    EXPECT_EQ(its.person.lines_of("lstOPCServers"), Lines{"Sim"});
    its.person.uses_accelerator('C');
    EXPECT_TRUE(its.person.has_focus("lstOPCServers"))
        << "Alt+C names the list and the button; the list comes next.";
    dialog.cancels();
}

SCENARIO(AddingAServer, AHostWithoutServerEntriesIsReported) {
    its.host.can_create_entries = false;
    Adding dialog(its);
    its.expect_report(error::cannot_create_object, "dlgServerAdd.Form_Load");
    its.person.is_at("dlgServerAdd");
    dialog.cancels();
}

SCENARIO(AddingAServer, AFreshEntryWithoutAnOpcServerIsReported) {
    its.host.fresh_connection = nullptr;
    Adding dialog(its);
    its.expect_report(error::type_mismatch, "CommonTools.ResolveOPCServer");
    its.expect_report(error::object_not_set, "dlgServerAdd.cmdRefreshList_Click");
    dialog.cancels();
}

SCENARIO(AddingAServer, TheHostsOwnMessageServiceShowsTheMessages) {
    its.host.message_service = std::make_shared<FakeMessageService>(its.host.calls);
    its.host.servers->has_connected("Plant.Simulation.1");
    Adding dialog(its);
    its.person.picks("lstOPCServers", "Plant.Simulation.1");
    its.person.presses("bnOK");
    EXPECT_EQ(its.host.message_service->shown, std::vector<Message>{already_there});
    its.person.is_at("dlgServerAdd");
    its.host.servers->refuses("Class not registered");
    its.person.picks("lstOPCServers", "Line.Server.2");
    its.person.presses("bnOK");
    ASSERT_EQ(its.host.message_service->shown.size(), 2U);
    EXPECT_TRUE(its.host.message_service->shown[1].text.starts_with("UNABLE TO CONNECT!"));
    its.person.is_at("dlgServerAdd");
    dialog.cancels();
}

SCENARIO(AddingAServer, ALineWithoutANameCannotBeChosen) {
    its.host.local_servers({"", "Sim"});
    Adding dialog(its);
    its.person.picks("lstOPCServers", "");
    EXPECT_FALSE(its.person.can_press("bnOK"));
    EXPECT_EQ(its.person.reads("lblSelectedServer"), "");
    its.person.picks("lstOPCServers", "Sim");
    EXPECT_TRUE(its.person.can_press("bnOK"));
    dialog.cancels();
}

SCENARIO(AddingAServer, ARefreshKeepsTheServerChosenBefore) {
    Adding dialog(its);
    its.person.picks("lstOPCServers", "Line.Server.2");
    its.person.presses("cmdRefreshList");
    EXPECT_EQ(its.person.sees("lstOPCServers").selected, -1);
    EXPECT_EQ(its.person.reads("lblSelectedServer"), "Line.Server.2");
    EXPECT_TRUE(its.person.can_press("bnOK"));
    its.person.presses("bnOK");
    EXPECT_TRUE(dialog.add.result());
    EXPECT_EQ(its.host.servers->additions(), (std::vector<Addition>{{"Line.Server.2", "", true}}));
}

SCENARIO(AddingAServer, TheLabelShowsNamesWithAnAmpersandAsTheyAre) {
    its.host.local_servers({"Salt&Pepper"});
    Adding dialog(its);
    its.person.picks("lstOPCServers", "Salt&Pepper");
    EXPECT_EQ(its.person.reads("lblSelectedServer"), "Salt&Pepper");
    dialog.cancels();
}

SCENARIO(AddingAServer, NothingIsReportedAndOpensNoDialog) {
    Showing add(*its.stage, "ServerAdd");
    add.show(nullptr);
    its.person.is_at("");
    EXPECT_FALSE(add.result());
    its.expect_report(error::type_mismatch, "ServerAdd.ResolvehlxOPCServers");
}

SCENARIO(AddingAServer, AWrongObjectIsReportedAndOpensNoDialog) {
    Showing add(*its.stage, "ServerAdd");
    add.show(its.host.enumerator);
    its.person.is_at("");
    EXPECT_FALSE(add.result());
    its.expect_report(error::type_mismatch, "ServerAdd.ResolvehlxOPCServers");
}
