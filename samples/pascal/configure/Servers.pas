{ The configured servers. They hold what is theirs; their owners are plain pointers. }

unit Servers;

{$ifdef FPC}{$mode delphi}{$endif}

interface

uses
  brxModel, brxValues, brxOpcAuto6_TLB, brxDatabase6_TLB, OPCAutomation_TLB, Plant, Records;

type
  TApplication = class(ThlxApplication)
  private
    FDatabase: _hlxDatabase;
  public
    constructor Create;
    function Get_Database: IDispatch; override; safecall;
  end;

  { A fresh one, which the dialogs make, has no name and belongs to nobody. }
  TServerEntry = class(ThlxOPCServer)
  private
    FParent: Pointer; { a _hlxOPCServers, which holds this }
    FName, FNode: WideString;
    FServer: IOPCAutoServer;
  public
    constructor Create(const Parent: _hlxOPCServers; const Name, Node: WideString);
    procedure AfterConstruction; override;
    function Get_ServerName: WideString; override; safecall;
    function Get_Node: WideString; override; safecall;
    function Get_Parent: IDispatch; override; safecall;
    function Get_OPCServer: IDispatch; override; safecall;
  end;

  TServers = class(ThlxOPCServers)
  private
    FApplication: _hlxApplication;
    FEntries: array of _hlxOPCServer;
  public
    constructor Create;
    function Get_Parent: IDispatch; override; safecall;
    function Get_Count: Integer; override; safecall;
    function Get_Item(Index: OleVariant): _hlxOPCServer; override; safecall;
    function Add(const ServerName, Node: WideString; Connect: WordBool): _hlxOPCServer; override; safecall;
    function Get_LastError: WideString; override; safecall;
  end;

  THolder = class(ThlxOPCServerHolder)
  private
    FEntry: _hlxOPCServer;
  public
    constructor Create(const Entry: _hlxOPCServer);
    function Get_ServerEntry: _hlxOPCServer; override; safecall;
  end;

implementation

constructor TApplication.Create; begin FDatabase := TDatabase.Create; end;
function TApplication.Get_Database: IDispatch; begin Result := FDatabase; end;

constructor TServerEntry.Create(const Parent: _hlxOPCServers; const Name, Node: WideString);
begin
  FParent := Pointer(Parent);
  FName := Name;
  FNode := Node;
end;

procedure TServerEntry.AfterConstruction;
begin
  inherited;
  FServer := TPlantServer.Create(FName, FNode);
end;

function TServerEntry.Get_ServerName: WideString; begin Result := FName; end;
function TServerEntry.Get_Node: WideString; begin Result := FNode; end;
function TServerEntry.Get_Parent: IDispatch; begin Result := _hlxOPCServers(FParent); end;
function TServerEntry.Get_OPCServer: IDispatch; begin Result := FServer; end;

constructor TServers.Create; begin FApplication := TApplication.Create; end;
function TServers.Get_Parent: IDispatch; begin Result := FApplication; end;
function TServers.Get_Count: Integer; begin Result := Length(FEntries); end;

function TServers.Get_Item(Index: OleVariant): _hlxOPCServer;
begin
  Result := FEntries[PositionOf(Index, Length(FEntries)) - 1];
end;

function TServers.Add(const ServerName, Node: WideString; Connect: WordBool): _hlxOPCServer;
begin
  Result := TServerEntry.Create(Self, ServerName, Node);
  SetLength(FEntries, Length(FEntries) + 1);
  FEntries[High(FEntries)] := Result;
end;

function TServers.Get_LastError: WideString; begin Result := ''; end;

constructor THolder.Create(const Entry: _hlxOPCServer); begin FEntry := Entry; end;
function THolder.Get_ServerEntry: _hlxOPCServer; begin Result := FEntry; end;

end.
