{ A configuration. }

unit Configurations;

{$ifdef FPC}{$mode delphi}{$endif}

interface

uses
  brxModel, brxOpcAuto6_TLB, OPCAutomation_TLB, Servers, Descriptors, Tests;

type
  { When a subgroup or a piece begins. }
  TSampling = record
    Interval: Integer;
    TimeUnit, TriggerType: SmallInt;
    TriggerItem: WideString;
    TriggerValue: OleVariant;
  end;

  TConfiguration = class(ThlxOPCConfiguration)
  private
    FHolder: _hlxOPCServerHolder;
    FTests: _hlxOPCTests;
    FDescriptors: _hlxOPCDescriptors;
    FName: WideString;
    FActive: WordBool;
    FUpdateRate, FSubgroupSize: Integer;
    FDeadBand: Single;
    FSync: TDateTime;
    FSubgroup, FPiece: TSampling;
  public
    constructor Create(const Entry: _hlxOPCServer);
    function Get_Server: _hlxOPCServerHolder; override; safecall;
    function Get_OPCGroup: IDispatch; override; safecall;
    function Get_Tests: _hlxOPCTests; override; safecall;
    function Get_Descriptors: _hlxOPCDescriptors; override; safecall;
    function Get_Name: WideString; override; safecall;
    procedure Set_Name(const Value: WideString); override; safecall;
    function Get_Active: WordBool; override; safecall;
    procedure Set_Active(Value: WordBool); override; safecall;
    function Get_UpdateRate: Integer; override; safecall;
    procedure Set_UpdateRate(Value: Integer); override; safecall;
    function Get_DeadBand: Single; override; safecall;
    procedure Set_DeadBand(Value: Single); override; safecall;
    function Get_SyncDateTime: TDateTime; override; safecall;
    procedure Set_SyncDateTime(Value: TDateTime); override; safecall;
    function Get_SubgroupSize: Integer; override; safecall;
    procedure Set_SubgroupSize(Value: Integer); override; safecall;
    function Get_SubgroupInterval: Integer; override; safecall;
    procedure Set_SubgroupInterval(Value: Integer); override; safecall;
    function Get_SubgroupTimeUnit: SmallInt; override; safecall;
    procedure Set_SubgroupTimeUnit(Value: SmallInt); override; safecall;
    function Get_SubgroupTriggerItem: WideString; override; safecall;
    procedure Set_SubgroupTriggerItem(const Value: WideString); override; safecall;
    function Get_SubgroupTriggerType: SmallInt; override; safecall;
    procedure Set_SubgroupTriggerType(Value: SmallInt); override; safecall;
    function Get_SubgroupTriggerValue: OleVariant; override; safecall;
    procedure Set_SubgroupTriggerValue(Value: OleVariant); override; safecall;
    function Get_PieceInterval: Integer; override; safecall;
    procedure Set_PieceInterval(Value: Integer); override; safecall;
    function Get_PieceTimeUnit: SmallInt; override; safecall;
    procedure Set_PieceTimeUnit(Value: SmallInt); override; safecall;
    function Get_PieceTriggerItem: WideString; override; safecall;
    procedure Set_PieceTriggerItem(const Value: WideString); override; safecall;
    function Get_PieceTriggerType: SmallInt; override; safecall;
    procedure Set_PieceTriggerType(Value: SmallInt); override; safecall;
    function Get_PieceTriggerValue: OleVariant; override; safecall;
    procedure Set_PieceTriggerValue(Value: OleVariant); override; safecall;
  end;

implementation

uses
  SysUtils;

constructor TConfiguration.Create(const Entry: _hlxOPCServer);
begin
  FHolder := THolder.Create(Entry);
  FTests := TTests.Create(Self);
  FDescriptors := TDescriptors.Create;
  FName := 'Line 1';
  FActive := True;
  FUpdateRate := 1000;
  FSync := EncodeDate(2026, 1, 1);
  FSubgroupSize := 5;
  FSubgroup.Interval := 10;
  FSubgroup.TimeUnit := 1; { minutes }
  FPiece.Interval := 2;
end;

function TConfiguration.Get_Server: _hlxOPCServerHolder; begin Result := FHolder; end;

function TConfiguration.Get_OPCGroup: IDispatch;
begin
  Result := (FHolder.ServerEntry.OPCServer as IOPCAutoServer).OPCGroups.Item(1);
end;

function TConfiguration.Get_Tests: _hlxOPCTests; begin Result := FTests; end;
function TConfiguration.Get_Descriptors: _hlxOPCDescriptors; begin Result := FDescriptors; end;
function TConfiguration.Get_Name: WideString; begin Result := FName; end;
procedure TConfiguration.Set_Name(const Value: WideString); begin FName := Value; end;
function TConfiguration.Get_Active: WordBool; begin Result := FActive; end;
procedure TConfiguration.Set_Active(Value: WordBool); begin FActive := Value; end;
function TConfiguration.Get_UpdateRate: Integer; begin Result := FUpdateRate; end;
procedure TConfiguration.Set_UpdateRate(Value: Integer); begin FUpdateRate := Value; end;
function TConfiguration.Get_DeadBand: Single; begin Result := FDeadBand; end;
procedure TConfiguration.Set_DeadBand(Value: Single); begin FDeadBand := Value; end;
function TConfiguration.Get_SyncDateTime: TDateTime; begin Result := FSync; end;
procedure TConfiguration.Set_SyncDateTime(Value: TDateTime); begin FSync := Value; end;
function TConfiguration.Get_SubgroupSize: Integer; begin Result := FSubgroupSize; end;
procedure TConfiguration.Set_SubgroupSize(Value: Integer); begin FSubgroupSize := Value; end;
function TConfiguration.Get_SubgroupInterval: Integer; begin Result := FSubgroup.Interval; end;
procedure TConfiguration.Set_SubgroupInterval(Value: Integer); begin FSubgroup.Interval := Value; end;
function TConfiguration.Get_SubgroupTimeUnit: SmallInt; begin Result := FSubgroup.TimeUnit; end;
procedure TConfiguration.Set_SubgroupTimeUnit(Value: SmallInt); begin FSubgroup.TimeUnit := Value; end;
function TConfiguration.Get_SubgroupTriggerItem: WideString; begin Result := FSubgroup.TriggerItem; end;

procedure TConfiguration.Set_SubgroupTriggerItem(const Value: WideString);
begin
  FSubgroup.TriggerItem := Value;
end;

function TConfiguration.Get_SubgroupTriggerType: SmallInt; begin Result := FSubgroup.TriggerType; end;
procedure TConfiguration.Set_SubgroupTriggerType(Value: SmallInt); begin FSubgroup.TriggerType := Value; end;
function TConfiguration.Get_SubgroupTriggerValue: OleVariant; begin Result := FSubgroup.TriggerValue; end;

procedure TConfiguration.Set_SubgroupTriggerValue(Value: OleVariant);
begin
  FSubgroup.TriggerValue := Value;
end;

function TConfiguration.Get_PieceInterval: Integer; begin Result := FPiece.Interval; end;
procedure TConfiguration.Set_PieceInterval(Value: Integer); begin FPiece.Interval := Value; end;
function TConfiguration.Get_PieceTimeUnit: SmallInt; begin Result := FPiece.TimeUnit; end;
procedure TConfiguration.Set_PieceTimeUnit(Value: SmallInt); begin FPiece.TimeUnit := Value; end;
function TConfiguration.Get_PieceTriggerItem: WideString; begin Result := FPiece.TriggerItem; end;
procedure TConfiguration.Set_PieceTriggerItem(const Value: WideString); begin FPiece.TriggerItem := Value; end;
function TConfiguration.Get_PieceTriggerType: SmallInt; begin Result := FPiece.TriggerType; end;
procedure TConfiguration.Set_PieceTriggerType(Value: SmallInt); begin FPiece.TriggerType := Value; end;
function TConfiguration.Get_PieceTriggerValue: OleVariant; begin Result := FPiece.TriggerValue; end;
procedure TConfiguration.Set_PieceTriggerValue(Value: OleVariant); begin FPiece.TriggerValue := Value; end;

end.
