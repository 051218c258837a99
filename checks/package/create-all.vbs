' Creates an object of each public class, by its name and by its name with the version; exit status 0 when all came.
'
'     cscript //nologo create-all.vbs

Option Explicit

Dim name, made

For Each name In Array("ServerSelect", "ServerAdd", "ServerInformation", "LeafSelect", "TestConfiguration", _
                       "ConfigurationSetup")
    Create "brxOpcDlgs6." & name
    Create "brxOpcDlgs6." & name & ".6"
Next
WScript.Echo made & " objects"
If made <> 12 Then WScript.Quit 1

Sub Create(name)
    Dim created
    On Error Resume Next
    Set created = CreateObject(name)
    If Err.Number = 0 And IsObject(created) Then
        made = made + 1
    Else
        WScript.Echo "error: " & name & " cannot be created: " & Err.Number
    End If
End Sub
