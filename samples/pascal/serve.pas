{ A host with servers of its own: lets a person choose one of three. Ends with 0 when one was chosen. }

program Serve;

{$ifdef FPC}{$mode delphi}{$endif}
{$apptype console}

uses
  ActiveX, ComObj, SysUtils, brxModel, brxValues, brxOpcAuto6_TLB, brxOpcDlgs6_TLB;

type
  TServer = class(ThlxOPCServer)
  private
    FNode, FName: WideString;
  public
    constructor Create(const Node, Name: WideString);
    function Get_Node: WideString; override; safecall;
    function Get_ServerName: WideString; override; safecall;
  end;

  TServers = class(ThlxOPCServers)
  private
    FServers: array [1 .. 3] of _hlxOPCServer;
  public
    constructor Create;
    function Get_Count: Integer; override; safecall;
    function Get_Item(Index: OleVariant): _hlxOPCServer; override; safecall;
  end;

constructor TServer.Create(const Node, Name: WideString);
begin
  FNode := Node;
  FName := Name;
end;

function TServer.Get_Node: WideString;
begin
  Result := FNode;
end;

function TServer.Get_ServerName: WideString;
begin
  Result := FName;
end;

constructor TServers.Create;
begin
  FServers[1] := TServer.Create('', 'Mill.Server.1');
  FServers[2] := TServer.Create('LINE2', 'Oven.Server.1');
  FServers[3] := TServer.Create('LINE2', 'Scales.Server.2');
end;

function TServers.Get_Count: Integer;
begin
  Result := Length(FServers);
end;

function TServers.Get_Item(Index: OleVariant): _hlxOPCServer;
begin
  Result := FServers[PositionOf(Index, Length(FServers))];
end;

function ChooseServer: Boolean;
var
  Servers: IDispatch;
  Dialog: _ServerSelect;
begin
  Servers := TServers.Create;
  Dialog := CoServerSelect.Create;
  Result := Dialog.Show(Servers);
  if Result then
    WriteLn('Server ', Dialog.ServerIndex);
end;

begin
  OleInitialize(nil);
  try
    if not ChooseServer then
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
