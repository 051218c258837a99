{ Lets a person choose an OPC server, and an item of it. Ends with 0 when an item was chosen. }

program Pick;

{$ifdef FPC}{$mode delphi}{$endif}
{$apptype console}

uses
  ActiveX, ComObj, SysUtils, Variants;

function PickItem: Boolean;
var
  Host, Servers, Selection, Entry, Server, Group, Leaf: OleVariant;
begin
  Result := False;
  { Your program hands over its own servers; these are the sample host's. }
  Host := CreateOleObject('brxSample.Host');
  Servers := Host.Servers;

  Selection := CreateOleObject('brxOpcDlgs6.ServerSelect');
  if not Selection.Show(Servers) then
    Exit;
  Entry := Servers.Item(Selection.ServerIndex);
  Server := Entry.OPCServer;
  if VarIsClear(Server) then
  begin
    WriteLn(Entry.ServerName, ' is not connected.');
    Exit;
  end;

  { Any group of the server will do: the dialog asks it whether the server has the item, and adds nothing. }
  Group := Server.OPCGroups.Add('choosing an item');
  Leaf := CreateOleObject('brxOpcDlgs6.LeafSelect');
  Result := Leaf.Show(Server, Group);
  Server.OPCGroups.Remove(Group.Name);
  if Result then
    WriteLn(Entry.ServerName, ': ', Leaf.ItemID);
end;

begin
  OleInitialize(nil);
  try
    if not PickItem then
      ExitCode := 1;
  except
    on Problem: EOleSysError do
    begin
      WriteLn(ErrOutput, 'Error ', IntToHex(Problem.ErrorCode, 8), ': ', Problem.Message);
      ExitCode := 2;
    end;
  end;
  OleUninitialize;
end.
