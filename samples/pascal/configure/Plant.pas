{ An OPC server with a few items, as far as the dialogs call it. Your program hands over the objects of its OPC
  automation wrapper instead. }

unit Plant;

{$ifdef FPC}{$mode delphi}{$endif}

interface

uses
  SysUtils, Variants, brxModel, brxValues, OPCAutomation_TLB, Items;

type
  TPlantServer = class;

  { Does not hold its server, which holds its groups. }
  TGroup = class(TOPCGroup)
  private
    FServer: TPlantServer;
    FItems: OPCItems;
  public
    constructor Create(Server: TPlantServer);
    function Get_Parent: IOPCAutoServer; override; safecall;
    function Get_Name: WideString; override; safecall;
    function Get_OPCItems: OPCItems; override; safecall;
  end;

  TGroups = class(TOPCGroups)
  private
    FOnly: IOPCGroup;
  public
    constructor Create(Server: TPlantServer);
    function Get_Count: Integer; override; safecall;
    function Item(ItemSpecifier: OleVariant): IOPCGroup; override; safecall;
  end;

  { Connected when it has a name; without one it lists the servers of a node. }
  TPlantServer = class(TOPCAutoServer)
  private
    FName, FNode: WideString;
    FStarted: TDateTime;
    FGroups: IOPCGroups;
  public
    constructor Create(const Name, Node: WideString);
    function Get_ServerName: WideString; override; safecall;
    function Get_ServerNode: WideString; override; safecall;
    function Get_ClientName: WideString; override; safecall;
    function Get_VendorInfo: WideString; override; safecall;
    function Get_MajorVersion: SmallInt; override; safecall;
    function Get_MinorVersion: SmallInt; override; safecall;
    function Get_BuildNumber: SmallInt; override; safecall;
    function Get_Bandwidth: Integer; override; safecall;
    function Get_ServerState: Integer; override; safecall;
    function Get_StartTime: TDateTime; override; safecall;
    function Get_CurrentTime: TDateTime; override; safecall;
    function Get_LastUpdateTime: TDateTime; override; safecall;
    function Get_OPCGroups: IOPCGroups; override; safecall;
    function CreateBrowser: OPCBrowser; override; safecall;
    function GetErrorString(ErrorCode: Integer): WideString; override; safecall;
    function GetOPCServers(Node: OleVariant): OleVariant; override; safecall;
  end;

implementation

constructor TGroup.Create(Server: TPlantServer);
begin
  FServer := Server;
  FItems := TItems.Create;
end;

function TGroup.Get_Parent: IOPCAutoServer; begin Result := FServer; end;
function TGroup.Get_Name: WideString; begin Result := 'Line 1'; end;
function TGroup.Get_OPCItems: OPCItems; begin Result := FItems; end;

constructor TGroups.Create(Server: TPlantServer); begin FOnly := TGroup.Create(Server); end;
function TGroups.Get_Count: Integer; begin Result := 1; end;

function TGroups.Item(ItemSpecifier: OleVariant): IOPCGroup;
begin
  PositionOf(ItemSpecifier, 1);
  Result := FOnly;
end;

constructor TPlantServer.Create(const Name, Node: WideString);
begin
  FName := Name;
  FNode := Node;
  FStarted := Now;
  FGroups := TGroups.Create(Self);
end;

function TPlantServer.Get_ServerName: WideString; begin Result := FName; end;
function TPlantServer.Get_ServerNode: WideString; begin Result := FNode; end;
function TPlantServer.Get_ClientName: WideString; begin Result := 'The sample'; end;
function TPlantServer.Get_VendorInfo: WideString; begin Result := 'The sample''s plant'; end;
function TPlantServer.Get_MajorVersion: SmallInt; begin Result := 1; end;
function TPlantServer.Get_MinorVersion: SmallInt; begin Result := 0; end;
function TPlantServer.Get_BuildNumber: SmallInt; begin Result := 1; end;
function TPlantServer.Get_Bandwidth: Integer; begin Result := 5; end;

function TPlantServer.Get_ServerState: Integer;
begin
  if FName = '' then
    Result := OPCDisconnected
  else
    Result := OPCRunning;
end;

function TPlantServer.Get_StartTime: TDateTime; begin Result := FStarted; end;
function TPlantServer.Get_CurrentTime: TDateTime; begin Result := Now; end;
function TPlantServer.Get_LastUpdateTime: TDateTime; begin Result := Now; end;
function TPlantServer.Get_OPCGroups: IOPCGroups; begin Result := FGroups; end;
function TPlantServer.CreateBrowser: OPCBrowser; begin Result := TBrowser.Create; end;

function TPlantServer.GetErrorString(ErrorCode: Integer): WideString;
begin
  if ErrorCode = UnknownItem then
    Result := 'The item is not known to the server.'
  else
    Result := 'It failed.';
end;

{ The node is left out for the local computer. }
function TPlantServer.GetOPCServers(Node: OleVariant): OleVariant;
begin
  Result := VarArrayCreate([1, 1], varOleStr);
  if VarIsError(Node) then
    Result[1] := 'Plant.Server.1'
  else
    Result[1] := 'Oven.Server.1';
end;

end.
