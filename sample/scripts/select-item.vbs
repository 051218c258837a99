' Lets a person choose an item of one of the sample host's configured OPC servers.
'
'     cscript //nologo select-item.vbs [SERVER [ITEM]]
'
' SERVER is called as the dialogs show it: node, full stop and program identifier, or the program identifier alone on
' this computer. Without it the first configured server is browsed. ITEM is the item that the dialog starts with.
' Registration is as told in select-server.vbs.
'
' Exit status: 0 an item was chosen, 1 none was.

Option Explicit

Dim host, server, group, dialog, chosen

Set host = CreateObject("brxSample.Host")
If WScript.Arguments.Count > 0 Then
    Set server = host.Server(WScript.Arguments(0))
Else
    Set server = host.Servers.Item(1).OPCServer
End If

Set dialog = CreateObject("brxOpcDlgs6.LeafSelect")
If WScript.Arguments.Count > 1 Then dialog.ItemID = WScript.Arguments(1)

' The dialog asks the group whether the server has the item, and adds nothing to it.
Set group = server.OPCGroups.Add("select-item")
chosen = dialog.Show(server, group)
server.OPCGroups.Remove group.Name

If Not chosen Then
    WScript.Echo "No item chosen."
    WScript.Quit 1
End If
WScript.Echo "Chosen: " & dialog.ItemID
