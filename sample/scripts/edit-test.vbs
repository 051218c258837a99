' Lets a person edit a test of one of the sample host's collection configurations.
'
'     cscript //nologo edit-test.vbs [SERVER [CONFIGURATION [TEST]]]
'
' SERVER is the position of a configured server, CONFIGURATION the number of one of its configurations, TEST the number
' of a test in it or "new"; each is 1 when it is left out. A new test is added first, and removed again when the person
' cancels. Registration is as told in select-server.vbs.
'
' Exit status: 0 the test was changed, 1 it was not.

Option Explicit

Dim host, server, number, configuration, test, isNew, dialog, confirmed

Set host = CreateObject("brxSample.Host")
server = Argument(0)
number = Argument(1)
Set configuration = host.Configuration(server, number)
isNew = Argument(2) = "new"
If isNew Then
    Set test = configuration.Tests.Add
Else
    Set test = configuration.Tests.Item(CLng(Argument(2)))
End If
WScript.Echo "Configuration: " & configuration.Name & ", tests: " & configuration.Tests.Count

Set dialog = CreateObject("brxOpcDlgs6.TestConfiguration")
confirmed = dialog.Show(test)

' The person may have gone through several items; the OPC group is to hold only what the configuration needs.
If isNew And Not confirmed Then configuration.Tests.Remove test.Index
host.SettleConfiguration server, number

If Not confirmed Then
    WScript.Echo "Nothing changed."
    WScript.Quit 1
End If
WScript.Echo "Changed: " & test.CharacteristicName & " from " & test.OPCItemID & " (" & _
    host.ItemValue(server, number, test.OPCItemID) & ")"
WScript.Echo "Save as: " & test.SaveAs & ", constant: " & test.Constant
If test.ItemTrigger Then WScript.Echo "Trigger: " & test.TriggerExpression & ", value: " & test.TriggerValue

Function Argument(position)
    Argument = 1
    If WScript.Arguments.Count > position Then Argument = WScript.Arguments(position)
End Function
