{ The items of the plant, and how they are found. }

unit Items;

{$ifdef FPC}{$mode delphi}{$endif}

interface

uses
  ActiveX, SysUtils, Variants, brxModel, brxValues, OPCAutomation_TLB;

const
  UnknownItem = Integer($C0040007);

type
  TBrowser = class(TOPCBrowser)
  private
    FHere: WideString; { with a full stop at its end, but at the root }
    FListed: TTexts;
    procedure List(const Name: WideString);
    function Rest(Place: Integer; out Name: WideString): Boolean;
  public
    function Get_Organization: Integer; override; safecall;
    function Get_Count: Integer; override; safecall;
    function Item(ItemSpecifier: OleVariant): WideString; override; safecall;
    procedure ShowBranches; override; safecall;
    procedure ShowLeafs(Flat: OleVariant); override; safecall;
    procedure MoveToRoot; override; safecall;
    procedure MoveTo(var Branches: PSafeArray); override; safecall;
    function GetItemID(const Leaf: WideString): WideString; override; safecall;
  end;

  TItem = class(TOPCItem)
  private
    FID: WideString;
    FHandle: Integer;
  public
    constructor Create(const ID: WideString; Handle: Integer);
    function Get_ItemID: WideString; override; safecall;
    function Get_ServerHandle: Integer; override; safecall;
    function Get_CanonicalDataType: SmallInt; override; safecall;
    procedure Set_IsActive(Value: WordBool); override; safecall;
  end;

  TItems = class(TOPCItems)
  private
    FItems: array of OPCItem;
    FLastHandle: Integer;
    function Added(const ID: WideString): Integer;
    function Removed(Handle: Integer): Boolean;
  public
    function Get_Count: Integer; override; safecall;
    function Item(ItemSpecifier: OleVariant): OPCItem; override; safecall;
    procedure AddItems(NumItems: Integer; var ItemIDs, ClientHandles: PSafeArray; out ServerHandles, Errors: PSafeArray;
      RequestedDataTypes, AccessPaths: OleVariant); override; safecall;
    procedure Remove(NumItems: Integer; var ServerHandles: PSafeArray; out Errors: PSafeArray); override; safecall;
    procedure Validate(NumItems: Integer; var ItemIDs: PSafeArray; out Errors: PSafeArray;
      RequestedDataTypes, AccessPaths: OleVariant); override; safecall;
  end;

implementation

const
  InvalidHandle = Integer($C0040001);
  Names: array [1 .. 5] of WideString = ('Filler.Weight', 'Filler.Count', 'Filler.Running', 'Capper.Torque',
    'Capper.Batch');
  Types: array [1 .. 5] of SmallInt = (VT_R8, VT_I4, VT_BOOL, VT_R4, VT_BSTR);

{ From 1; 0 for an item that there is not. }
function PlaceOf(const ID: WideString): Integer;
begin
  for Result := 1 to High(Names) do
    if Names[Result] = ID then
      Exit;
  Result := 0;
end;

procedure TBrowser.List(const Name: WideString);
var
  Each: WideString;
begin
  for Each in FListed do
    if Each = Name then
      Exit;
  SetLength(FListed, Length(FListed) + 1);
  FListed[High(FListed)] := Name;
end;

{ What of an item's name lies below here. }
function TBrowser.Rest(Place: Integer; out Name: WideString): Boolean;
begin
  Result := Copy(Names[Place], 1, Length(FHere)) = FHere;
  Name := Copy(Names[Place], Length(FHere) + 1, MaxInt);
end;

function TBrowser.Get_Organization: Integer; begin Result := OPCHierarchical; end;
function TBrowser.Get_Count: Integer; begin Result := Length(FListed); end;

function TBrowser.Item(ItemSpecifier: OleVariant): WideString;
begin
  Result := FListed[PositionOf(ItemSpecifier, Length(FListed)) - 1];
end;

procedure TBrowser.ShowBranches;
var
  I: Integer;
  Name: WideString;
begin
  FListed := nil;
  for I := 1 to High(Names) do
    if Rest(I, Name) and (Pos(WideString('.'), Name) > 0) then
      List(Copy(Name, 1, Pos(WideString('.'), Name) - 1));
end;

procedure TBrowser.ShowLeafs(Flat: OleVariant);
var
  I: Integer;
  Name: WideString;
begin
  FListed := nil;
  for I := 1 to High(Names) do
    if Rest(I, Name) then
      if Boolean(Flat) then
        List(Names[I])
      else if Pos(WideString('.'), Name) = 0 then
        List(Name);
end;

procedure TBrowser.MoveToRoot; begin FHere := ''; end;

procedure TBrowser.MoveTo(var Branches: PSafeArray);
var
  Each: WideString;
begin
  FHere := '';
  for Each in TextsIn(Branches) do
    FHere := FHere + Each + '.';
end;

function TBrowser.GetItemID(const Leaf: WideString): WideString;
begin
  if PlaceOf(Leaf) > 0 then
    Result := Leaf
  else
    Result := FHere + Leaf;
end;

constructor TItem.Create(const ID: WideString; Handle: Integer);
begin
  FID := ID;
  FHandle := Handle;
end;

function TItem.Get_ItemID: WideString; begin Result := FID; end;
function TItem.Get_ServerHandle: Integer; begin Result := FHandle; end;
function TItem.Get_CanonicalDataType: SmallInt; begin Result := Types[PlaceOf(FID)]; end;
procedure TItem.Set_IsActive(Value: WordBool); begin end;

{ The new item's handle; 0 when there is no such item. }
function TItems.Added(const ID: WideString): Integer;
begin
  if PlaceOf(ID) = 0 then
    Exit(0);
  Inc(FLastHandle);
  SetLength(FItems, Length(FItems) + 1);
  FItems[High(FItems)] := TItem.Create(ID, FLastHandle);
  Result := FLastHandle;
end;

function TItems.Removed(Handle: Integer): Boolean;
var
  I: Integer;
begin
  for I := 0 to High(FItems) do
    if FItems[I].ServerHandle = Handle then
    begin
      Delete(FItems, I, 1);
      Exit(True);
    end;
  Result := False;
end;

function TItems.Get_Count: Integer; begin Result := Length(FItems); end;

{ By its identifier or its position. }
function TItems.Item(ItemSpecifier: OleVariant): OPCItem;
begin
  if not VarIsStr(ItemSpecifier) then
    Exit(FItems[PositionOf(ItemSpecifier, Length(FItems)) - 1]);
  for Result in FItems do
    if Result.ItemID = ItemSpecifier then
      Exit;
  raise NoSuchElement;
end;

procedure TItems.AddItems(NumItems: Integer; var ItemIDs, ClientHandles: PSafeArray; out ServerHandles,
  Errors: PSafeArray; RequestedDataTypes, AccessPaths: OleVariant);
var
  IDs: TTexts;
  Handles, Codes: TNumbers;
  I: Integer;
begin
  IDs := TextsIn(ItemIDs);
  SetLength(Handles, Length(IDs));
  SetLength(Codes, Length(IDs));
  for I := 0 to High(IDs) do
  begin
    Handles[I] := Added(IDs[I]);
    if Handles[I] = 0 then
      Codes[I] := UnknownItem;
  end;
  ServerHandles := ArrayOf(Handles);
  Errors := ArrayOf(Codes);
end;

procedure TItems.Remove(NumItems: Integer; var ServerHandles: PSafeArray; out Errors: PSafeArray);
var
  Handles, Codes: TNumbers;
  I: Integer;
begin
  Handles := NumbersIn(ServerHandles);
  SetLength(Codes, Length(Handles));
  for I := 0 to High(Handles) do
    if not Removed(Handles[I]) then
      Codes[I] := InvalidHandle;
  Errors := ArrayOf(Codes);
end;

procedure TItems.Validate(NumItems: Integer; var ItemIDs: PSafeArray; out Errors: PSafeArray; RequestedDataTypes,
  AccessPaths: OleVariant);
var
  IDs: TTexts;
  Codes: TNumbers;
  I: Integer;
begin
  IDs := TextsIn(ItemIDs);
  SetLength(Codes, Length(IDs));
  for I := 0 to High(IDs) do
    if PlaceOf(IDs[I]) = 0 then
      Codes[I] := UnknownItem;
  Errors := ArrayOf(Codes);
end;

end.
