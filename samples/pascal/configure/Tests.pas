{ The tests of a configuration. They hold what is theirs; their owners are plain pointers. }

unit Tests;

{$ifdef FPC}{$mode delphi}{$endif}

interface

uses
  brxModel, brxValues, brxOpcAuto6_TLB, brxDatabase6_TLB, Records;

type
  TTests = class;

  TTest = class(ThlxOPCTest)
  private
    FParent: TTests;
    FData: _hlxTestData;
    FItem: WideString;
    FState, FHandle: Integer;
    FTriggered: WordBool;
    FExpression, FSaveAs: SmallInt;
    FValue: OleVariant;
    FConstant: Double;
  public
    constructor Create(Parent: TTests);
    function Get_Parent: _hlxOPCTests; override; safecall;
    function Get_Index: Integer; override; safecall;
    function Get_TestData: IDispatch; override; safecall;
    function Get_CharacteristicName: WideString; override; safecall;
    function Get_State: Integer; override; safecall;
    procedure Set_State(Value: Integer); override; safecall;
    function Get_OPCItemID: WideString; override; safecall;
    procedure Set_OPCItemID(const Value: WideString); override; safecall;
    function Get_ItemText: WideString; override; safecall;
    function Get_ClientHandle: Integer; override; safecall;
    procedure Set_ClientHandle(Value: Integer); override; safecall;
    function Get_ItemTrigger: WordBool; override; safecall;
    procedure Set_ItemTrigger(Value: WordBool); override; safecall;
    function Get_TriggerExpression: SmallInt; override; safecall;
    procedure Set_TriggerExpression(Value: SmallInt); override; safecall;
    function Get_TriggerValue: OleVariant; override; safecall;
    procedure Set_TriggerValue(Value: OleVariant); override; safecall;
    function Get_Constant: Double; override; safecall;
    procedure Set_Constant(Value: Double); override; safecall;
    function Get_SaveAs: SmallInt; override; safecall;
    procedure Set_SaveAs(Value: SmallInt); override; safecall;
  end;

  TTests = class(ThlxOPCTests)
  private
    FParent: Pointer; { a _hlxOPCConfiguration, which holds this }
    FTests: array of _hlxOPCTest;
  public
    constructor Create(const Parent: _hlxOPCConfiguration);
    function Get_Parent: _hlxOPCConfiguration; override; safecall;
    function Get_Count: Integer; override; safecall;
    function Get_Item(Position: OleVariant): _hlxOPCTest; override; safecall;
    function Add: _hlxOPCTest; override; safecall;
    procedure Remove(Position: Integer); override; safecall;
  end;

implementation

constructor TTest.Create(Parent: TTests);
begin
  FParent := Parent;
  FData := TTestData.Create;
  FState := 1;
end;

function TTest.Get_Parent: _hlxOPCTests; begin Result := FParent; end;

function TTest.Get_Index: Integer;
var
  Me: _hlxOPCTest;
  I: Integer;
begin
  Me := Self;
  for I := 1 to Length(FParent.FTests) do
    if FParent.FTests[I - 1] = Me then
      Exit(I);
  raise NoSuchElement;
end;

function TTest.Get_TestData: IDispatch; begin Result := FData; end;
function TTest.Get_CharacteristicName: WideString; begin Result := FData.Name; end;
function TTest.Get_State: Integer; begin Result := FState; end;
procedure TTest.Set_State(Value: Integer); begin FState := Value; end;
function TTest.Get_OPCItemID: WideString; begin Result := FItem; end;
procedure TTest.Set_OPCItemID(const Value: WideString); begin FItem := Value; end;
function TTest.Get_ItemText: WideString; begin Result := FItem; end;
function TTest.Get_ClientHandle: Integer; begin Result := FHandle; end;
procedure TTest.Set_ClientHandle(Value: Integer); begin FHandle := Value; end;
function TTest.Get_ItemTrigger: WordBool; begin Result := FTriggered; end;
procedure TTest.Set_ItemTrigger(Value: WordBool); begin FTriggered := Value; end;
function TTest.Get_TriggerExpression: SmallInt; begin Result := FExpression; end;
procedure TTest.Set_TriggerExpression(Value: SmallInt); begin FExpression := Value; end;
function TTest.Get_TriggerValue: OleVariant; begin Result := FValue; end;
procedure TTest.Set_TriggerValue(Value: OleVariant); begin FValue := Value; end;
function TTest.Get_Constant: Double; begin Result := FConstant; end;
procedure TTest.Set_Constant(Value: Double); begin FConstant := Value; end;
function TTest.Get_SaveAs: SmallInt; begin Result := FSaveAs; end;
procedure TTest.Set_SaveAs(Value: SmallInt); begin FSaveAs := Value; end;

constructor TTests.Create(const Parent: _hlxOPCConfiguration); begin FParent := Pointer(Parent); end;
function TTests.Get_Parent: _hlxOPCConfiguration; begin Result := _hlxOPCConfiguration(FParent); end;
function TTests.Get_Count: Integer; begin Result := Length(FTests); end;

function TTests.Get_Item(Position: OleVariant): _hlxOPCTest;
begin
  Result := FTests[PositionOf(Position, Length(FTests)) - 1];
end;

function TTests.Add: _hlxOPCTest;
begin
  Result := TTest.Create(Self);
  SetLength(FTests, Length(FTests) + 1);
  FTests[High(FTests)] := Result;
end;

procedure TTests.Remove(Position: Integer);
begin
  Delete(FTests, PositionOf(Position, Length(FTests)) - 1, 1);
end;

end.
