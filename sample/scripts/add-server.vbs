' Lets a person find an OPC server on a node and add it to the sample host's configured servers.
'
' Registration and use are as told in select-server.vbs. Nodes of the simulated plant: LINE1, LAB, WAREHOUSE (slow),
' OFFICE (none), GATEWAY (refuses), TESTBENCH (hard to browse); empty is this computer.
'
' Exit status: 0 a server was added, 1 none was.

Option Explicit

Dim host, servers, dialog

Set host = CreateObject("brxSample.Host")
If WScript.Arguments.Count > 0 Then host.DatabaseFile = WScript.Arguments(0)
Set servers = host.Servers

Set dialog = CreateObject("brxOpcDlgs6.ServerAdd")
If Not dialog.Show(servers) Then
    WScript.Echo "No server added."
    WScript.Quit 1
End If
WScript.Echo "Added: number " & dialog.ServerIndex & ", " & servers.Item(dialog.ServerIndex).ServerName & _
    " (" & host.StateText(dialog.ServerIndex) & ")"
