' Lets a person choose an OPC server, and an item of it.
'
'     cscript //nologo pick.vbs
'
' Exit status: 0 an item was chosen, 1 none was.

Option Explicit

Dim host, servers, selection, entry, server, group, leaf, chosen

' Your program hands over its own servers; these are the sample host's.
Set host = CreateObject("brxSample.Host")
Set servers = host.Servers

Set selection = CreateObject("brxOpcDlgs6.ServerSelect")
If Not selection.Show(servers) Then WScript.Quit 1
Set entry = servers.Item(selection.ServerIndex)
Set server = entry.OPCServer
If server Is Nothing Then
    WScript.Echo entry.ServerName & " is not connected."
    WScript.Quit 1
End If

' Any group of the server will do: the dialog asks it whether the server has the item, and adds nothing.
Set group = server.OPCGroups.Add("choosing an item")
Set leaf = CreateObject("brxOpcDlgs6.LeafSelect")
chosen = leaf.Show(server, group)
server.OPCGroups.Remove group.Name
If Not chosen Then WScript.Quit 1
WScript.Echo entry.ServerName & ": " & leaf.ItemID
