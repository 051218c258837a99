{ The host's database: characteristics, parts and so on, with a way to pick one of them. }

unit Records;

{$ifdef FPC}{$mode delphi}{$endif}

interface

uses
  brxModel, brxDatabase6_TLB;

type
  TDatabase = class(ThlxDatabase)
  end;

  TRow = record
    ID, Group: Integer;
    Name: WideString;
  end;

  TTable = (Characteristics, Parts, Processes, Jobs, Shifts, Operators);

  { What a test measures. A new ID counts when it is saved, and nothing else is written then. }
  TTestData = class(ThlxTestData)
  private
    FRow: TRow;
    FNewID: Integer;
  public
    procedure Take(const Row: TRow);
    function Get_ID: Integer; override; safecall;
    procedure Set_ID(Value: Integer); override; safecall;
    function Get_GroupID: Integer; override; safecall;
    function Get_Name: WideString; override; safecall;
    procedure Set_Flag(Value: SmallInt); override; safecall;
    procedure Set_Mode(Value: SmallInt); override; safecall;
    procedure Save(const Database: _hlxDatabase); override; safecall;
  end;

{ What the dialogs make by themselves, from this program and for it alone: nothing is registered. }
procedure OfferRecords;

implementation

uses
  Windows, ActiveX, SysUtils, ComObj;

type
  { A row, looked up by its name, or by its ID where that is empty. }
  TRecord = class(ThlxRecord)
  private
    FRow: TRow;
  protected
    class function Table: TTable; virtual; abstract;
    class function Rows: Integer; virtual;
    class function Row(Place: Integer): TRow; virtual;
  public
    function Get_ID: Integer; override; safecall;
    procedure Set_ID(Value: Integer); override; safecall;
    function Get_Name: WideString; override; safecall;
    procedure Set_Name(const Value: WideString); override; safecall;
    function Get_GroupID: Integer; override; safecall;
    procedure Set_GroupID(Value: Integer); override; safecall;
    procedure Set_SearchFlag(Value: SmallInt); override; safecall;
    function Load(const Database: _hlxDatabase): WordBool; override; safecall;
  end;
  TRecordClass = class of TRecord;

  { Each table has one group. }
  TGroupRecord = class(TRecord)
  protected
    class function Rows: Integer; override;
    class function Row(Place: Integer): TRow; override;
  end;

  { Asks for one row after the other whether it is the one. }
  TSelection = class(ThlxSelection)
  private
    FRow: TRow; { none was picked: its ID is 0 }
  protected
    class function Picks: TRecordClass; virtual; abstract;
  public
    function Show(const Database: _hlxDatabase; ID, GroupID: Integer): WordBool; override; safecall;
    function Get_Record: IDispatch; override; safecall;
  end;

  TPart = class(TRecord) protected class function Table: TTable; override; end;
  TProcess = class(TRecord) protected class function Table: TTable; override; end;
  TJob = class(TRecord) protected class function Table: TTable; override; end;
  TShift = class(TRecord) protected class function Table: TTable; override; end;
  TOperator = class(TRecord) protected class function Table: TTable; override; end;
  TCharacteristic = class(TRecord) protected class function Table: TTable; override; end;

  TPartGroup = class(TGroupRecord) protected class function Table: TTable; override; end;
  TProcessGroup = class(TGroupRecord) protected class function Table: TTable; override; end;
  TJobGroup = class(TGroupRecord) protected class function Table: TTable; override; end;
  TShiftGroup = class(TGroupRecord) protected class function Table: TTable; override; end;
  TOperatorGroup = class(TGroupRecord) protected class function Table: TTable; override; end;
  TTestGroup = class(TGroupRecord) protected class function Table: TTable; override; end;

  TPartSelection = class(TSelection) protected class function Picks: TRecordClass; override; end;
  TProcessSelection = class(TSelection) protected class function Picks: TRecordClass; override; end;
  TJobSelection = class(TSelection) protected class function Picks: TRecordClass; override; end;
  TShiftSelection = class(TSelection) protected class function Picks: TRecordClass; override; end;
  TOperatorSelection = class(TSelection) protected class function Picks: TRecordClass; override; end;
  TTestSelection = class(TSelection) protected class function Picks: TRecordClass; override; end;

const
  Titles: array [TTable] of WideString = ('Characteristics', 'Parts', 'Processes', 'Jobs', 'Shifts', 'Descriptors');
  Groups: array [TTable] of WideString = ('Sizes', 'Bottles', 'Filling', 'November', 'Week', 'Operators');
  Names: array [TTable, 1 .. 2] of string = (('Weight', 'Torque'), ('Bottle 0.75 l', 'Bottle 1 l'),
    ('Filler', 'Capper'), ('Job 4711', 'Job 4712'), ('Early', 'Late'), ('First operator', 'Second operator'));

class function TPart.Table: TTable; begin Result := Parts end;
class function TProcess.Table: TTable; begin Result := Processes end;
class function TJob.Table: TTable; begin Result := Jobs end;
class function TShift.Table: TTable; begin Result := Shifts end;
class function TOperator.Table: TTable; begin Result := Operators end;
class function TCharacteristic.Table: TTable; begin Result := Characteristics end;
class function TPartGroup.Table: TTable; begin Result := Parts end;
class function TProcessGroup.Table: TTable; begin Result := Processes end;
class function TJobGroup.Table: TTable; begin Result := Jobs end;
class function TShiftGroup.Table: TTable; begin Result := Shifts end;
class function TOperatorGroup.Table: TTable; begin Result := Operators end;
class function TTestGroup.Table: TTable; begin Result := Characteristics end;
class function TPartSelection.Picks: TRecordClass; begin Result := TPart end;
class function TProcessSelection.Picks: TRecordClass; begin Result := TProcess end;
class function TJobSelection.Picks: TRecordClass; begin Result := TJob end;
class function TShiftSelection.Picks: TRecordClass; begin Result := TShift end;
class function TOperatorSelection.Picks: TRecordClass; begin Result := TOperator end;
class function TTestSelection.Picks: TRecordClass; begin Result := TCharacteristic end;

procedure TTestData.Take(const Row: TRow);
begin
  FRow := Row;
  FNewID := Row.ID;
end;

function TTestData.Get_ID: Integer; begin Result := FNewID; end;
procedure TTestData.Set_ID(Value: Integer); begin FNewID := Value; end;
function TTestData.Get_GroupID: Integer; begin Result := FRow.Group; end;
function TTestData.Get_Name: WideString; begin Result := FRow.Name; end;
procedure TTestData.Set_Flag(Value: SmallInt); begin end;
procedure TTestData.Set_Mode(Value: SmallInt); begin end;

procedure TTestData.Save(const Database: _hlxDatabase);
var
  Place: Integer;
begin
  for Place := 1 to TCharacteristic.Rows do
    if TCharacteristic.Row(Place).ID = FNewID then
    begin
      Take(TCharacteristic.Row(Place));
      Exit;
    end;
  raise EOleError.Create('There is no such characteristic.');
end;

class function TRecord.Rows: Integer; begin Result := High(Names[Table]); end;

class function TRecord.Row(Place: Integer): TRow;
begin
  Result.ID := 10 * Ord(Table) + 10 + Place;
  Result.Group := 1;
  Result.Name := Names[Table, Place];
end;

class function TGroupRecord.Rows: Integer; begin Result := 1; end;

class function TGroupRecord.Row(Place: Integer): TRow;
begin
  Result.ID := 1;
  Result.Group := 0;
  Result.Name := Groups[Table];
end;

function TRecord.Get_ID: Integer; begin Result := FRow.ID; end;
procedure TRecord.Set_ID(Value: Integer); begin FRow.ID := Value; end;
function TRecord.Get_Name: WideString; begin Result := FRow.Name; end;
procedure TRecord.Set_Name(const Value: WideString); begin FRow.Name := Value; end;
function TRecord.Get_GroupID: Integer; begin Result := FRow.Group; end;
procedure TRecord.Set_GroupID(Value: Integer); begin FRow.Group := Value; end;
procedure TRecord.Set_SearchFlag(Value: SmallInt); begin end;

function TRecord.Load(const Database: _hlxDatabase): WordBool;
var
  Place: Integer;
  Each: TRow;
begin
  for Place := 1 to Rows do
  begin
    Each := Row(Place);
    if FRow.Name = '' then
      Result := Each.ID = FRow.ID
    else
      Result := (Each.Name = FRow.Name) and ((FRow.Group = 0) or (FRow.Group = Each.Group));
    if Result then
    begin
      FRow := Each;
      Exit;
    end;
  end;
  Result := False;
end;

function TSelection.Show(const Database: _hlxDatabase; ID, GroupID: Integer): WordBool;
var
  Place: Integer;
  Question: WideString;
begin
  for Place := 1 to Picks.Rows do
  begin
    Question := 'Take "' + Picks.Row(Place).Name + '"?';
    case MessageBoxW(GetActiveWindow, PWideChar(Question), PWideChar(Titles[Picks.Table]),
      MB_YESNOCANCEL or MB_ICONQUESTION) of
      IDYES:
        begin
          FRow := Picks.Row(Place);
          Exit(True);
        end;
      IDCANCEL:
        Break;
    end;
  end;
  Result := False;
end;

function TSelection.Get_Record: IDispatch;
var
  Data: TTestData;
  Made: TRecord;
begin
  if FRow.ID = 0 then
    Exit(nil);
  if Picks = TCharacteristic then
  begin
    Data := TTestData.Create;
    Data.Take(FRow);
    Result := Data;
  end
  else
  begin
    Made := Picks.Create;
    Made.FRow := FRow;
    Result := Made;
  end;
end;

procedure OfferRecords;
begin
  Offer(CLASS_hlxTestGroup, TTestGroup);
  Offer(CLASS_hlxTestSelection, TTestSelection);
  Offer(CLASS_hlxPart, TPart);
  Offer(CLASS_hlxPartGroup, TPartGroup);
  Offer(CLASS_hlxPartSelection, TPartSelection);
  Offer(CLASS_hlxProcess, TProcess);
  Offer(CLASS_hlxProcessGroup, TProcessGroup);
  Offer(CLASS_hlxProcessSelection, TProcessSelection);
  Offer(CLASS_hlxJob, TJob);
  Offer(CLASS_hlxJobGroup, TJobGroup);
  Offer(CLASS_hlxJobSelection, TJobSelection);
  Offer(CLASS_hlxShift, TShift);
  Offer(CLASS_hlxShiftGroup, TShiftGroup);
  Offer(CLASS_hlxShiftSelection, TShiftSelection);
  Offer(CLASS_hlxDescriptor, TOperator);
  Offer(CLASS_hlxDescriptorGroup, TOperatorGroup);
  Offer(CLASS_hlxDescriptorSelection, TOperatorSelection);
end;

end.
