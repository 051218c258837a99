#include "adding.h"
#include "calls.h"
#include "configuring.h"

// Every call that a dialog makes to the host on the way to success, from its opening to its end.

using namespace brx;
using namespace brx::checks;

namespace {

/// The same member of several calls with a prefix.
Lines of(const std::string& interface_name, const Lines& members) {
    Lines calls;
    for (const std::string& member : members) calls.push_back(interface_name + "." + member);
    return calls;
}

Lines operator+(Lines calls, const Lines& more) {
    calls.insert(calls.end(), more.begin(), more.end());
    return calls;
}

} // namespace

SCENARIO(WholeLog, OfAServerThatIsChosen) {
    its.host.servers->has("Matrix");
    its.host.servers->has("Sim", "PC7");
    CallsMade calls(its);
    Showing select(*its.stage, "ServerSelect");
    select.show(its.host.servers);
    its.person.picks("cboServer", "PC7.Sim");
    its.person.presses("bnOK");
    EXPECT_TRUE(select.result());
    EXPECT_EQ(calls.since_then(),
              (Lines{"create hlxHelp", "hlxHelp.HelpFile", "hlxOPCServers.Count", "hlxOPCServers.Item",
                     "hlxOPCServer.Node", "hlxOPCServer.ServerName", "hlxOPCServers.Item",
                     "hlxOPCServer.Node", "hlxOPCServer.ServerName"}));
}

SCENARIO(WholeLog, OfAServerThatIsAdded) {
    its.host.servers->has_connected("Line.Server.2");
    its.host.servers_on("PC7", {"Line.Server.2"});
    CallsMade calls(its);
    Adding dialog(its);
    dialog.lists_node("PC7");
    its.person.picks("lstOPCServers", "Line.Server.2");
    its.person.presses("bnOK");
    EXPECT_TRUE(dialog.add.result());
    EXPECT_EQ(
        calls.since_then(),
        (Lines{"create hlxOPCServer", "hlxOPCServer.OPCServer", "OPCServer.GetOPCServers()", "create hlxHelp",
               "hlxHelp.HelpFile", "hlxOPCServer.OPCServer", "OPCServer.GetOPCServers(PC7)",
               // whether it is new
               "hlxOPCServers.Count", "hlxOPCServers.Item", "hlxOPCServer.OPCServer", "OPCServer.ServerName",
               "OPCServer.ServerNode", "hlxOPCServers.Add", "hlxOPCServers.Count"}));
}

SCENARIO(WholeLog, OfAServerThatIsAddedAndChosen) {
    its.host.servers->has("Matrix", "PC7");
    CallsMade calls(its);
    Showing select(*its.stage, "ServerSelect");
    select.show(its.host.servers);
    its.person.presses("bnServer");
    its.person.picks("lstOPCServers", "Line.Server.2");
    its.person.presses("bnOK");
    its.person.presses("bnOK");
    EXPECT_TRUE(select.result());
    const Lines entry = {"hlxOPCServers.Item", "hlxOPCServer.Node", "hlxOPCServer.ServerName"};
    EXPECT_EQ(calls.since_then(),
              (Lines{"create hlxHelp", "hlxHelp.HelpFile", "hlxOPCServers.Count"}) + entry +
                  // what is to be added
                  (Lines{"create hlxOPCServer", "hlxOPCServer.OPCServer", "OPCServer.GetOPCServers()",
                         "hlxHelp.HelpFile", "hlxOPCServers.Count", "hlxOPCServers.Item",
                         "hlxOPCServer.OPCServer", "hlxOPCServers.Add", "hlxOPCServers.Count"}) +
                  // its position, and the list once more
                  (Lines{"hlxOPCServers.Count", "hlxOPCServers.Count"}) + entry + entry);
}

SCENARIO(WholeLog, OfAServerThatIsWatched) {
    CallsMade calls(its);
    Showing information(*its.stage, "ServerInformation");
    information.show(std::make_shared<FakeOPCServer>(its.host.calls));
    its.person.waits_for_ticks(1);
    its.person.presses("bnOK");
    EXPECT_TRUE(information.result());
    EXPECT_EQ(calls.since_then(),
              of("OPCServer", {"ServerNode", "ServerName", "StartTime", "CurrentTime", "LastUpdateTime",
                               "MajorVersion", "MinorVersion", "VendorInfo"}) +
                  (Lines{"create hlxHelp", "hlxHelp.HelpFile"}) +
                  of("OPCServer", {"StartTime", "CurrentTime", "LastUpdateTime"}));
}

SCENARIO(WholeLog, OfAConfigurationThatIsOpenedAndClosed) {
    a_filled_configuration(its);
    its.host.configuration->descriptors->has({.type = 0, .item = "Wheel", .group = "Castings"});
    CallsMade calls(its);
    Configuring dialog(its);
    const Lines to_the_server = {"hlxOPCConfiguration.Server", "hlxOPCServerHolder.ServerEntry"};
    EXPECT_EQ(calls.since_then(),
              to_the_server + of("hlxOPCServer", {"Node", "ServerName"}) +
                  of("hlxOPCConfiguration",
                     {"Name", "SubgroupSize", "UpdateRate", "DeadBand", "Active", "SyncDateTime",
                      "SubgroupTimeUnit", "PieceTimeUnit", "SubgroupInterval", "PieceInterval",
                      "SubgroupTriggerType", "SubgroupTriggerItem", "SubgroupTriggerValue",
                      "PieceTriggerType", "PieceTriggerItem", "PieceTriggerValue", "Descriptors"}) +
                  (Lines{"hlxOPCDescriptors.NewEnum", "hlxOPCDescriptors.Next"}) +
                  of("hlxOPCDescriptor", {"Type", "GroupName", "ItemName"}) +
                  (Lines{"hlxOPCDescriptors.Next", "hlxOPCConfiguration.Tests"}) +
                  of("hlxOPCTests", {"Count", "Item"}) +
                  of("hlxOPCTest", {"CharacteristicName", "OPCItemID", "Parent"}) +
                  Lines{"hlxOPCTests.Parent"} + to_the_server + of("hlxOPCServer", {"ServerName", "Node"}) +
                  Lines{"hlxOPCTest.State"});
    dialog.closes();
    const Lines activation = {"OPCGroup.OPCItems", "OPCItems.Item", "OPCItem.IsActive="};
    EXPECT_EQ(
        calls.since_then(),
        of("hlxOPCConfiguration", {"OPCGroup", "Name=", "SubgroupSize=", "UpdateRate=", "DeadBand=",
                                   "Active=", "SyncDateTime=", "PieceInterval=", "PieceTimeUnit="}) +
            activation +
            of("hlxOPCConfiguration", {"PieceTriggerItem=", "SubgroupInterval=", "SubgroupTimeUnit="}) +
            activation +
            of("hlxOPCConfiguration", {"SubgroupTriggerItem=", "SubgroupTriggerType=",
                                       "SubgroupTriggerValue=", "PieceTriggerType=", "PieceTriggerValue="}));
}

SCENARIO(WholeLog, OfADescriptorThatIsAddedEditedAndRemoved) {
    Configuring dialog(its);
    dialog.turns_to_descriptors();
    CallsMade calls(its);
    const Lines to_the_database = {"hlxOPCConfiguration.Server", "hlxOPCServerHolder.ServerEntry",
                                   "hlxOPCServer.Parent", "hlxOPCServers.Parent", "hlxApplication.Database"};
    const Lines edited = to_the_database +
                         of("hlxOPCDescriptor", {"Type", "ItemName", "GroupName", "ItemName=", "GroupName="});
    const Lines shown = of("hlxOPCDescriptor", {"Type", "GroupName", "ItemName"});
    its.person.presses("bnAddDesc");
    its.person.picks("List1", "Lot");
    its.person.presses("bnOK");
    its.person.enters("txtItem", "L-7");
    its.person.presses("bnOK");
    EXPECT_EQ(calls.since_then(), (Lines{"hlxOPCConfiguration.Descriptors", "hlxOPCDescriptors.NewEnum",
                                         "hlxOPCDescriptors.Next", "hlxOPCDescriptors.Add"}) +
                                      edited + shown);
    its.person.presses("bnEditDesc");
    its.person.presses("bnOK");
    EXPECT_EQ(calls.since_then(),
              (Lines{"hlxOPCConfiguration.Descriptors", "hlxOPCDescriptors.Item"}) + edited + shown);
    its.person.presses("bnRemoveDesc");
    EXPECT_EQ(calls.since_then(), (Lines{"hlxOPCConfiguration.Descriptors", "hlxOPCDescriptors.Remove"}));
    dialog.leaves();
}

SCENARIO(WholeLog, OfATickOfTheStatus) {
    its.host.groups->has("Fast");
    Configuring dialog(its);
    CallsMade calls(its);
    its.person.waits_for_ticks(1);
    EXPECT_EQ(
        calls.since_then(),
        (Lines{"hlxOPCConfiguration.Server", "hlxOPCServerHolder.ServerEntry", "hlxOPCServer.OPCServer"}) +
            of("OPCServer", {"ServerNode", "ServerName", "StartTime", "CurrentTime", "LastUpdateTime",
                             "Bandwidth", "BuildNumber", "ClientName", "MajorVersion", "MinorVersion",
                             "ServerState", "VendorInfo", "OPCGroups"}) +
            (Lines{"OPCGroups.Count", "OPCGroups.Item", "OPCGroup.Name"}));
    dialog.leaves();
}
