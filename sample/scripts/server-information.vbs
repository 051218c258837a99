' Shows the status of one of the sample host's configured OPC servers.
'
'     cscript //nologo server-information.vbs [SERVER]
'
' SERVER is called as the dialogs show it: node, full stop and program identifier, or the program identifier alone on
' this computer. Without it the first configured server is shown. Registration is as told in select-server.vbs.

Option Explicit

Dim host, server, dialog

Set host = CreateObject("brxSample.Host")
If WScript.Arguments.Count > 0 Then
    Set server = host.Server(WScript.Arguments(0))
Else
    Set server = host.Servers.Item(1).OPCServer
End If

WScript.Echo "Server: " & server.ServerName
Set dialog = CreateObject("brxOpcDlgs6.ServerInformation")
dialog.Show server
