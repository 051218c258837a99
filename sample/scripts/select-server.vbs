' Lets a person choose one of the sample host's configured OPC servers.
'
' A script is a host like any other: it creates a dialog class by name, hands it the collection that the dialog is to
' work on, and reads the result. Both DLLs must be registered for programs of the script host's bits:
'
'     regsvr32 brxOpcDlgs6.dll
'     regsvr32 brxSample.dll
'     cscript //nologo select-server.vbs [DATABASE-FILE]
'
' On Linux: ./run --script sample/scripts/select-server.vbs
'
' Exit status: 0 a server was chosen, 1 none was.

Option Explicit

Dim host, servers, dialog, chosen, position

Set host = CreateObject("brxSample.Host")
If WScript.Arguments.Count > 0 Then host.DatabaseFile = WScript.Arguments(0)
Set servers = host.Servers

WScript.Echo "Database: " & host.DatabaseFile
For position = 1 To servers.Count
    WScript.Echo "  " & position & "  " & Name(servers.Item(position)) & "  (" & host.StateText(position) & ")"
Next

Set dialog = CreateObject("brxOpcDlgs6.ServerSelect")

' The argument is passed by reference: a variable is fine, and so is an expression.
chosen = dialog.Show(servers)
If Not chosen Then
    WScript.Echo "No server chosen; one more try."
    chosen = dialog.Show((servers))
End If

If chosen Then
    WScript.Echo "Chosen: number " & dialog.ServerIndex & ", " & Name(servers.Item(dialog.ServerIndex))
    WScript.Quit 0
End If
WScript.Echo "No server chosen."
WScript.Quit 1

' What the dialogs show for a server.
Function Name(server)
    Name = server.ServerName
    If server.Node <> "" Then Name = server.Node & "." & Name
End Function
