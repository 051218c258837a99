#include "stories/adding.h"

using namespace brx;
using namespace brx::checks;

// Finding the servers of a node.

namespace {

const Lines local_servers{"Plant.Simulation.1", "Line.Server.2"};
const Lines nothing_found{"<No Servers available on this Node>"};

} // namespace

SCENARIO(AddingAServer, ListsTheLocalComputersServersAtOnce) {
    Adding dialog(its);
    its.person.is_at("dlgServerAdd");
    EXPECT_EQ(its.person.title(), "Add OPC Server");
    EXPECT_EQ(its.person.reads("Label1"), "&A. Node:");
    EXPECT_EQ(its.person.reads("cmdRefreshList"), "&B. Refresh List");
    EXPECT_EQ(its.person.reads("Label2"), "&C. OPC Servers:");
    EXPECT_EQ(its.person.reads("Label4"), "Selected Server:");
    EXPECT_EQ(its.person.reads("bnCancel"), "&Cancel");
    EXPECT_EQ(its.person.reads("txtNode"), "");
    EXPECT_EQ(its.person.lines_of("lstOPCServers"), local_servers);
    EXPECT_TRUE(its.person.sees("lstOPCServers").enabled);
    EXPECT_FALSE(its.person.can_press("bnOK"));
    EXPECT_EQ(its.host.calls.count("OPCServer.GetOPCServers()"), 1) << "The node argument is left out.";
    dialog.cancels();
}

SCENARIO(AddingAServer, TheChosenServerIsConnectedAndItsPositionReturned) {
    its.host.servers->has("Matrix");
    Adding dialog(its);
    its.person.picks("lstOPCServers", "Line.Server.2");
    EXPECT_EQ(its.person.reads("lblSelectedServer"), "Line.Server.2");
    EXPECT_TRUE(its.person.can_press("bnOK"));
    its.person.presses("bnOK");
    EXPECT_TRUE(dialog.add.result());
    EXPECT_EQ(dialog.add.ServerIndex(), 2);
    EXPECT_EQ(its.host.servers->additions(), (std::vector<Addition>{{"Line.Server.2", "", true}}));
}

SCENARIO(AddingAServer, AServerOfANamedNodeIsAddedWithItsNode) {
    its.host.servers_on("PC7", {"Sim"});
    Adding dialog(its);
    dialog.lists_node("PC7");
    EXPECT_EQ(its.person.lines_of("lstOPCServers"), Lines{"Sim"});
    its.person.picks("lstOPCServers", "Sim");
    EXPECT_EQ(its.person.reads("lblSelectedServer"), "PC7.Sim");
    its.person.presses("bnOK");
    EXPECT_TRUE(dialog.add.result());
    EXPECT_EQ(its.host.servers->additions(), (std::vector<Addition>{{"Sim", "PC7", true}}));
}

SCENARIO(AddingAServer, ADoubleClickAddsTheServer) {
    Adding dialog(its);
    its.person.double_clicks("lstOPCServers", "Plant.Simulation.1");
    EXPECT_TRUE(dialog.add.result());
    EXPECT_EQ(dialog.add.ServerIndex(), 1);
}

SCENARIO(AddingAServer, EnterConfirmsTheChosenServer) {
    Adding dialog(its);
    its.person.picks("lstOPCServers", "Plant.Simulation.1");
    its.person.hits(Key::enter);
    EXPECT_TRUE(dialog.add.result());
}

SCENARIO(AddingAServer, EnterInTheNodeBoxRefreshesAndNeverConfirms) {
    its.host.servers_on("PC7", {"Sim", "Sim.2"});
    Adding dialog(its);
    its.person.enters("txtNode", "PC7");
    its.person.hits(Key::enter);
    EXPECT_EQ(its.person.lines_of("lstOPCServers"), (Lines{"Sim", "Sim.2"}));
    its.person.picks("lstOPCServers", "Sim");
    its.person.goes_to("txtNode");
    its.person.hits(Key::enter);
    its.person.is_at("dlgServerAdd");
    EXPECT_TRUE(its.host.servers->additions().empty());
    dialog.cancels();
}

SCENARIO(AddingAServer, TypingInTheNodeBoxEmptiesTheListUntilItIsRefreshed) {
    Adding dialog(its);
    its.person.picks("lstOPCServers", "Plant.Simulation.1");
    EXPECT_TRUE(its.person.can_press("bnOK"));
    its.person.goes_to("txtNode");
    its.person.types("P");
    EXPECT_EQ(its.person.lines_of("lstOPCServers"), Lines{});
    EXPECT_FALSE(its.person.can_press("bnOK"));
    EXPECT_EQ(its.host.calls.count("OPCServer.GetOPCServers(P)"), 0);
    its.person.hits(Key::backspace);
    EXPECT_EQ(its.person.lines_of("lstOPCServers"), Lines{}) << "Only a refresh fills it again.";
    its.person.presses("cmdRefreshList");
    EXPECT_EQ(its.person.lines_of("lstOPCServers"), local_servers);
    dialog.cancels();
}

SCENARIO(AddingAServer, PastingANodeEmptiesTheListToo) {
    Adding dialog(its);
    its.person.pastes("PC9");
    EXPECT_EQ(its.person.reads("txtNode"), "PC9");
    EXPECT_EQ(its.person.lines_of("lstOPCServers"), Lines{});
    dialog.cancels();
}

SCENARIO(AddingAServer, ANodeWithoutServersShowsOneDisabledLine) {
    its.host.servers_on("PC8", {});
    Adding dialog(its);
    dialog.lists_node("PC8");
    EXPECT_EQ(its.person.lines_of("lstOPCServers"), nothing_found);
    EXPECT_FALSE(its.person.sees("lstOPCServers").enabled);
    EXPECT_FALSE(its.person.can_press("bnOK"));
    its.person.enters("txtNode", "");
    its.person.presses("cmdRefreshList");
    EXPECT_EQ(its.person.lines_of("lstOPCServers"), local_servers);
    EXPECT_TRUE(its.person.sees("lstOPCServers").enabled);
    dialog.cancels();
}

SCENARIO(AddingAServer, ANodeThatCannotBeReachedCountsAsOneWithoutServers) {
    Adding dialog(its);
    dialog.lists_node("NOWHERE");
    EXPECT_EQ(its.host.calls.count("OPCServer.GetOPCServers(NOWHERE)"), 1);
    EXPECT_EQ(its.person.lines_of("lstOPCServers"), nothing_found);
    EXPECT_FALSE(its.person.sees("lstOPCServers").enabled);
    EXPECT_FALSE(its.person.can_press("bnOK"));
    dialog.cancels();
}

SCENARIO(AddingAServer, TheWaitingLineAndTheHourglassShowWhileANodeIsAsked) {
    its.host.servers_on("PC7", {"Sim"});
    Adding dialog(its);
    Lines meanwhile;
    bool hourglass = false;
    its.host.enumerator->while_enumerating = [&] {
        meanwhile = its.stage->screen().look("lstOPCServers").lines;
        hourglass = its.stage->screen().hourglass();
    };
    dialog.lists_node("PC7");
    EXPECT_EQ(meanwhile, (Lines{"Connecting to OPC Server: PC7...  PLEASE WAIT..."}));
    EXPECT_TRUE(hourglass);
    EXPECT_FALSE(its.stage->screen().hourglass());
    EXPECT_EQ(its.person.lines_of("lstOPCServers"), Lines{"Sim"});
    its.person.presses("cmdRefreshList");
    EXPECT_EQ(meanwhile, (Lines{"Connecting to OPC Server: PC7...  PLEASE WAIT..."}));
    its.host.enumerator->while_enumerating = [] {};
    dialog.cancels();
}

SCENARIO(AddingAServer, AServerThatIsGoneAfterARefreshCannotBeConfirmed) {
    its.host.servers_on("PC7", {"Sim"});
    Adding dialog(its);
    dialog.lists_node("PC7");
    its.person.picks("lstOPCServers", "Sim");
    EXPECT_TRUE(its.person.can_press("bnOK"));
    its.host.servers_on("PC7", {});
    its.person.presses("cmdRefreshList");
    EXPECT_EQ(its.person.lines_of("lstOPCServers"), nothing_found);
    EXPECT_FALSE(its.person.can_press("bnOK"));
    dialog.cancels();
}

SCENARIO(AddingAServer, TheLocalComputerIsAskedWithoutAWaitingLine) {
    Adding dialog(its);
    Lines meanwhile{"not asked"};
    its.host.enumerator->while_enumerating = [&] {
        meanwhile = its.stage->screen().look("lstOPCServers").lines;
    };
    its.person.presses("cmdRefreshList");
    EXPECT_NE(meanwhile, (Lines{"not asked"}));
    for (const std::string& line : meanwhile) EXPECT_EQ(line.find("PLEASE WAIT"), std::string::npos);
    its.host.enumerator->while_enumerating = [] {};
    dialog.cancels();
}

SCENARIO(AddingAServer, AFailingEnumerationOfTheLocalComputerIsReported) {
    its.host.enumerator->registered.erase("");
    Adding dialog(its);
    its.expect_report(-2147023174, "dlgServerAdd.cmdRefreshList_Click");
    its.person.is_at("dlgServerAdd");
    EXPECT_EQ(its.person.lines_of("lstOPCServers"), Lines{});
    its.host.local_servers({"Late.Server"});
    its.person.presses("cmdRefreshList");
    EXPECT_EQ(its.person.lines_of("lstOPCServers"), Lines{"Late.Server"});
    dialog.cancels();
}

SCENARIO(AddingAServer, AnAnswerThatIsNoArrayIsReportedForTheLocalComputer) {
    its.host.enumerator->registered[""] = Empty{};
    Adding dialog(its);
    its.expect_report(error::type_mismatch, "dlgServerAdd.cmdRefreshList_Click");
    dialog.cancels();
}

SCENARIO(AddingAServer, AnAnswerThatIsNoArrayCountsAsNothingForANamedNode) {
    its.host.enumerator->registered["PC7"] = std::string("Sim");
    Adding dialog(its);
    dialog.lists_node("PC7");
    EXPECT_EQ(its.person.lines_of("lstOPCServers"), nothing_found);
    dialog.cancels();
}

SCENARIO(AddingAServer, AnArrayThatEndsBeforeOneCountsAsEmpty) {
    its.host.enumerator->registered["PC7"] = StringArray{{"Sim"}, 0};
    Adding dialog(its);
    dialog.lists_node("PC7");
    EXPECT_EQ(its.person.lines_of("lstOPCServers"), nothing_found);
    dialog.cancels();
}

SCENARIO(AddingAServer, AnArrayFromZeroIsListedWhole) {
    its.host.enumerator->registered["PC7"] = StringArray{{"Sim", "Sim.2"}, 0};
    Adding dialog(its);
    dialog.lists_node("PC7");
    EXPECT_EQ(its.person.lines_of("lstOPCServers"), (Lines{"Sim", "Sim.2"}));
    dialog.cancels();
}

SCENARIO(AddingAServer, AButtonLeavesLettersToTheDialogAndOneThatTwoShareOnlyGoesOn) {
    Adding dialog(its);
    its.person.goes_to("cmdRefreshList");
    its.person.types("c"); // the list and "Cancel" have it
    EXPECT_TRUE(its.person.has_focus("lstOPCServers"));
    its.person.goes_to("bnCancel");
    its.person.types("c");
    its.person.is_at("dlgServerAdd");
    EXPECT_TRUE(its.person.has_focus("lstOPCServers"));
    its.person.goes_to("cmdRefreshList");
    its.host.local_servers({"Late.Server"});
    its.person.types("b");
    EXPECT_EQ(its.person.lines_of("lstOPCServers"), Lines{"Late.Server"});
    dialog.cancels();
}
