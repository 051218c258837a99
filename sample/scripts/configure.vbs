' Lets a person edit one of the sample host's collection configurations.
'
'     cscript //nologo configure.vbs [SERVER [CONFIGURATION]]
'
' SERVER is the position of a configured server, CONFIGURATION the number of one of its configurations or "new"; each is
' 1 when it is left out. Registration is as told in select-server.vbs.
'
' Exit status: 0 the configuration is as the person left it, 1 it has no tests and was removed.

Option Explicit

Dim host, server, number, configuration, test, descriptor, dialog, position

Set host = CreateObject("brxSample.Host")
server = CLng(Argument(0))
If Argument(1) = "new" Then
    Set configuration = host.AddConfiguration(server)
    number = host.ConfigurationCount(server)
Else
    number = CLng(Argument(1))
    Set configuration = host.Configuration(server, number)
End If

Set dialog = CreateObject("brxOpcDlgs6.ConfigurationSetup")
host.HoldConfiguration server, number
dialog.Show configuration

' Tests and descriptors have changed with each button; the rest only when she closed the dialog with its own. It gives
' nothing back: what was written into the configuration tells.
Select Case host.KeptSettings(server, number)
    Case 2
        WScript.Echo "Closed, and the settings are kept."
    Case 1
        WScript.Echo "Left after an error: some of the settings are kept."
    Case Else
        WScript.Echo "Left, and the settings are as they were."
End Select

' The dialog removes no configuration: that is the host's, and so is the OPC group, which is to hold what is needed from
' now on.
If Not host.SettleConfiguration(server, number) Then
    WScript.Echo "Removed, since it has no tests."
    WScript.Quit 1
End If

WScript.Echo "Configuration: " & configuration.Name & ", every " & configuration.UpdateRate & " ms"
For position = 1 To configuration.Tests.Count
    Set test = configuration.Tests.Item(position)
    WScript.Echo "  Test: " & test.CharacteristicName & " from " & test.OPCItemID & " (" & _
        host.ItemValue(server, number, test.OPCItemID) & ")"
Next
For Each descriptor In configuration.Descriptors
    WScript.Echo "  Descriptor: type " & descriptor.Type & ", " & descriptor.ItemName & ", group " & descriptor.GroupName
Next
If configuration.SubgroupTriggerItem <> "" Then WScript.Echo "  A subgroup begins with " & configuration.SubgroupTriggerItem
If configuration.PieceTriggerItem <> "" Then WScript.Echo "  A piece begins with " & configuration.PieceTriggerItem

Function Argument(position)
    Argument = 1
    If WScript.Arguments.Count > position Then Argument = WScript.Arguments(position)
End Function
