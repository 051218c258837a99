// A host with servers of its own: lets a person choose one of three. Ends with 0 when one was chosen.

using System;
using System.Runtime.InteropServices;
using brxOpcAuto6;
using brxOpcDlgs6;

[ClassInterface(ClassInterfaceType.None)]
public class Server : brxModel.hlxOPCServer
{
    readonly string node, name;

    public Server(string node, string name)
    {
        this.node = node;
        this.name = name;
    }

    public override string Node { get { return node; } }
    public override string ServerName { get { return name; } }
}

[ClassInterface(ClassInterfaceType.None)]
public class Servers : brxModel.hlxOPCServers
{
    const int DISP_E_BADINDEX = unchecked((int)0x8002000B);

    readonly Server[] servers =
    {
        new Server("", "Mill.Server.1"), new Server("LINE2", "Oven.Server.1"), new Server("LINE2", "Scales.Server.2")
    };

    public override int Count { get { return servers.Length; } }
    public override _hlxOPCServer this[object index]
    {
        get
        {
            int position = Convert.ToInt32(index);
            if (position < 1 || position > servers.Length)
                throw new COMException("There is no such server.", DISP_E_BADINDEX);
            return servers[position - 1];
        }
    }
}

public static class Serve
{
    // The position of the server that was chosen, from 1; 0 for none.
    public static int Choose()
    {
        object servers = new Servers();
        var dialog = (_ServerSelect)new ServerSelect();
        return dialog.Show(ref servers) ? dialog.ServerIndex : 0;
    }

    // Dialogs want a single-threaded apartment.
    [STAThread]
    static int Main()
    {
        int position = Choose();
        if (position == 0) return 1;
        Console.WriteLine("Server " + position);
        return 0;
    }
}
