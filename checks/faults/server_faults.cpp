#include "scenario.h"

// Each story runs once for every call that it makes to the host, with that call failing. The list is every
// place where a call of the story can fail and whose trap must tell of it.

using namespace brx;
using namespace brx::checks;

using Places = std::set<std::string>;

TEST(FailingHost, WhileAServerIsSelected) {
    const Story story = [](Play& its) {
        its.host.servers->has("Matrix");
        its.host.servers->has("Sim", "PC7");
        Showing select(*its.stage, "ServerSelect");
        select.show(its.host.servers);
        its.person.picks("cboServer", "PC7.Sim");
        its.person.presses("bnOK");
        EXPECT_TRUE(select.result());
    };
    play(story);
    EXPECT_EQ(play_with_failing_calls(story),
              (Places{"create hlxHelp in nobody's trap", "hlxHelp.HelpFile in nobody's trap",
                      "hlxOPCServers.Count in dlgServerSelect.BuildList",
                      "hlxOPCServers.Item in dlgServerSelect.BuildList",
                      "hlxOPCServer.Node in dlgServerSelect.BuildList",
                      "hlxOPCServer.ServerName in dlgServerSelect.BuildList"}));
}

TEST(FailingHost, WhileAServerIsAddedInTheSelectionDialog) {
    const Story story = [](Play& its) {
        its.host.servers->has_connected("Matrix");
        its.host.servers_on("PC7", {"Sim"});
        Showing select(*its.stage, "ServerSelect");
        select.show(its.host.servers);
        its.person.presses("bnServer");
        its.person.enters("txtNode", "PC7");
        its.person.presses("cmdRefreshList");
        its.person.picks("lstOPCServers", "Sim");
        its.person.presses("bnOK");
        its.person.presses("bnOK");
        EXPECT_TRUE(select.result());
    };
    play(story);
    EXPECT_EQ(play_with_failing_calls(story),
              (Places{"create hlxHelp in nobody's trap", "hlxHelp.HelpFile in nobody's trap",
                      "hlxOPCServers.Count in dlgServerSelect.BuildList",
                      "hlxOPCServers.Item in dlgServerSelect.BuildList",
                      "hlxOPCServer.Node in dlgServerSelect.BuildList",
                      "hlxOPCServer.ServerName in dlgServerSelect.BuildList",
                      "create hlxOPCServer in dlgServerAdd.Form_Load",
                      "hlxOPCServer.OPCServer in dlgServerAdd.cmdRefreshList_Click",
                      "OPCServer.GetOPCServers in dlgServerAdd.cmdRefreshList_Click",
                      "hlxOPCServer.OPCServer in nobody's trap", "OPCServer.GetOPCServers in nobody's trap",
                      "hlxOPCServers.Count in dlgServerAdd.NotInColl",
                      "hlxOPCServers.Item in dlgServerAdd.NotInColl",
                      "hlxOPCServer.OPCServer in dlgServerAdd.NotInColl",
                      "OPCServer.ServerName in dlgServerAdd.NotInColl",
                      "hlxOPCServers.Count in dlgServerAdd.ConnectServer",
                      "hlxOPCServers.Add in dlgServerAdd.ConnectServer",
                      "hlxOPCServers.Count in dlgServerSelect.bnServer_Click"}));
}

TEST(FailingHost, WhileADuplicateIsRefused) {
    const Story story = [](Play& its) {
        its.host.servers->has_connected("Plant.Simulation.1");
        Showing add(*its.stage, "ServerAdd");
        add.show(its.host.servers);
        its.person.picks("lstOPCServers", "Plant.Simulation.1");
        its.person.presses("bnOK");
        its.stage->screen().answer(message::ok);
        its.person.presses("bnCancel");
    };
    play(story);
    EXPECT_EQ(play_with_failing_calls(story),
              (Places{"create hlxHelp in nobody's trap", "hlxHelp.HelpFile in nobody's trap",
                      "create hlxOPCServer in dlgServerAdd.Form_Load",
                      "hlxOPCServer.OPCServer in dlgServerAdd.cmdRefreshList_Click",
                      "OPCServer.GetOPCServers in dlgServerAdd.cmdRefreshList_Click",
                      "hlxOPCServers.Count in dlgServerAdd.NotInColl",
                      "hlxOPCServers.Item in dlgServerAdd.NotInColl",
                      "hlxOPCServer.OPCServer in dlgServerAdd.NotInColl",
                      "OPCServer.ServerName in dlgServerAdd.NotInColl",
                      "OPCServer.ServerNode in dlgServerAdd.NotInColl"}));
}

TEST(FailingHost, WhileAConnectionFails) {
    const Story story = [](Play& its) {
        its.host.servers->refuses("Access is denied.");
        Showing add(*its.stage, "ServerAdd");
        add.show(its.host.servers);
        its.person.picks("lstOPCServers", "Line.Server.2");
        its.person.presses("bnOK");
        its.stage->screen().answer(message::ok);
        its.person.presses("bnCancel");
    };
    play(story);
    EXPECT_EQ(play_with_failing_calls(story),
              (Places{"create hlxHelp in nobody's trap", "hlxHelp.HelpFile in nobody's trap",
                      "create hlxOPCServer in dlgServerAdd.Form_Load",
                      "hlxOPCServer.OPCServer in dlgServerAdd.cmdRefreshList_Click",
                      "OPCServer.GetOPCServers in dlgServerAdd.cmdRefreshList_Click",
                      "hlxOPCServers.Count in dlgServerAdd.NotInColl",
                      "hlxOPCServers.Add in dlgServerAdd.ConnectServer",
                      "hlxOPCServers.LastError in dlgServerAdd.ConnectServer"}));
}

TEST(FailingHost, WhileTheHostsOwnMessageServiceIsUsed) {
    const Story story = [](Play& its) {
        its.host.message_service = std::make_shared<FakeMessageService>(its.host.calls);
        its.host.servers->refuses("Access is denied.");
        Showing add(*its.stage, "ServerAdd");
        add.show(its.host.servers);
        its.person.picks("lstOPCServers", "Line.Server.2");
        its.person.presses("bnOK");
        its.person.presses("bnCancel");
    };
    play(story);
    EXPECT_EQ(
        play_with_failing_calls(story),
        (Places{"create hlxHelp in nobody's trap", "hlxHelp.HelpFile in nobody's trap",
                "create hlxOPCServer in dlgServerAdd.Form_Load",
                "hlxOPCServer.OPCServer in dlgServerAdd.cmdRefreshList_Click",
                "OPCServer.GetOPCServers in dlgServerAdd.cmdRefreshList_Click",
                "hlxOPCServers.Count in dlgServerAdd.NotInColl",
                "hlxOPCServers.Add in dlgServerAdd.ConnectServer",
                "hlxOPCServers.LastError in dlgServerAdd.ConnectServer", "create hlxMessage in nobody's trap",
                "hlxMessage.Show in dlgServerAdd.ConnectServer"}));
}

TEST(FailingHost, WhileAServerIsWatched) {
    const Story story = [](Play& its) {
        const auto server = std::make_shared<FakeOPCServer>(its.host.calls);
        Showing information(*its.stage, "ServerInformation");
        information.show(server);
        its.person.waits_for_ticks(1);
        its.person.presses("bnOK");
        EXPECT_TRUE(information.result());
    };
    play(story);
    EXPECT_EQ(play_with_failing_calls(story),
              (Places{"OPCServer.ServerNode in dlgServerInformation.Form_Load",
                      "OPCServer.ServerName in dlgServerInformation.Form_Load",
                      "OPCServer.StartTime in dlgServerInformation.Form_Load",
                      "OPCServer.CurrentTime in dlgServerInformation.Form_Load",
                      "OPCServer.LastUpdateTime in dlgServerInformation.Form_Load",
                      "OPCServer.MajorVersion in dlgServerInformation.Form_Load",
                      "OPCServer.MinorVersion in dlgServerInformation.Form_Load",
                      "OPCServer.VendorInfo in dlgServerInformation.Form_Load",
                      "create hlxHelp in nobody's trap", "hlxHelp.HelpFile in nobody's trap",
                      "OPCServer.StartTime in dlgServerInformation.Timer1_Timer",
                      "OPCServer.CurrentTime in dlgServerInformation.Timer1_Timer",
                      "OPCServer.LastUpdateTime in dlgServerInformation.Timer1_Timer"}));
}

TEST(FailingHost, AnUnknownAnswerToWhetherAServerIsNewConnectsNothing) {
    Play its;
    its.host.servers->has_connected("Matrix");
    Showing add(*its.stage, "ServerAdd");
    add.show(its.host.servers);
    its.person.picks("lstOPCServers", "Line.Server.2");
    its.host.calls.fail_at(1);
    its.person.presses("bnOK");
    its.expect_report(CallLog::failure_number, "dlgServerAdd.NotInColl");
    its.person.is_at("dlgServerAdd");
    EXPECT_TRUE(its.host.servers->additions().empty());
    its.person.presses("bnOK");
    EXPECT_TRUE(add.result()) << "The next try, with a host that answers, succeeds.";
    its.expect_clean_end();
}
