// Lets a person choose an OPC server, and an item of it. Ends with 0 when an item was chosen.

using System;

static class Pick
{
    static dynamic Create(string name)
    {
        return Activator.CreateInstance(Type.GetTypeFromProgID(name, true));
    }

    // Dialogs want a single-threaded apartment.
    [STAThread]
    static int Main()
    {
        // Your program hands over its own servers; these are the sample host's.
        dynamic host = Create("brxSample.Host");
        dynamic servers = host.Servers;

        dynamic selection = Create("brxOpcDlgs6.ServerSelect");
        if (!selection.Show(servers)) return 1;
        dynamic entry = servers.Item(selection.ServerIndex);
        dynamic server = entry.OPCServer;
        if (server == null)
        {
            Console.Error.WriteLine(entry.ServerName + " is not connected.");
            return 1;
        }

        // Any group of the server will do: the dialog asks it whether the server has the item, and adds nothing.
        dynamic group = server.OPCGroups.Add("choosing an item");
        dynamic leaf = Create("brxOpcDlgs6.LeafSelect");
        bool chosen;
        try { chosen = leaf.Show(server, group); }
        finally { server.OPCGroups.Remove(group.Name); }
        if (!chosen) return 1;
        Console.WriteLine(entry.ServerName + ": " + leaf.ItemID);
        return 0;
    }
}
