// Lets a person choose an OPC server, and an item of it.
//
//     cscript //nologo pick.js
//
// Exit status: 0 an item was chosen, 1 none was.

function pick() {
    // Your program hands over its own servers; these are the sample host's.
    var host = new ActiveXObject("brxSample.Host");
    var servers = host.Servers;

    var selection = new ActiveXObject("brxOpcDlgs6.ServerSelect");
    if (!selection.Show(servers)) return 1;
    var entry = servers.Item(selection.ServerIndex);
    var server = entry.OPCServer;
    if (!server) {
        WScript.Echo(entry.ServerName + " is not connected.");
        return 1;
    }

    // Any group of the server will do: the dialog asks it whether the server has the item, and adds nothing.
    var group = server.OPCGroups.Add("choosing an item");
    var leaf = new ActiveXObject("brxOpcDlgs6.LeafSelect");
    var chosen = leaf.Show(server, group);
    server.OPCGroups.Remove(group.Name);
    if (!chosen) return 1;
    WScript.Echo(entry.ServerName + ": " + leaf.ItemID);
    return 0;
}

WScript.Quit(pick());
