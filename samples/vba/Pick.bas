Attribute VB_Name = "Pick"
' Lets a person choose an OPC server, and an item of it.

Option Explicit

Public Sub PickItem()
    ' Your program hands over its own servers; these are the sample host's.
    Dim host As Object, servers As Object
    Set host = CreateObject("brxSample.Host")
    Set servers = host.Servers

    Dim selection As Object
    Set selection = CreateObject("brxOpcDlgs6.ServerSelect")
    If Not selection.Show(servers) Then Exit Sub
    Dim entry As Object, server As Object
    Set entry = servers.Item(selection.ServerIndex)
    Set server = entry.OPCServer
    If server Is Nothing Then
        MsgBox entry.ServerName & " is not connected."
        Exit Sub
    End If

    ' Any group of the server will do: the dialog asks it whether the server has the item, and adds nothing.
    Dim group As Object, leaf As Object, chosen As Boolean
    Set group = server.OPCGroups.Add("choosing an item")
    Set leaf = CreateObject("brxOpcDlgs6.LeafSelect")
    chosen = leaf.Show(server, group)
    server.OPCGroups.Remove group.Name
    If chosen Then MsgBox entry.ServerName & ": " & leaf.ItemID
End Sub
