Attribute VB_Name = "Serve"
' A host with servers of its own: lets a person choose one of three.

Option Explicit

Public Sub ChooseServer()
    Dim list As Object, dialog As Object
    Set list = New Servers
    Set dialog = CreateObject("brxOpcDlgs6.ServerSelect")
    If dialog.Show(list) Then MsgBox "Server " & dialog.ServerIndex
End Sub
