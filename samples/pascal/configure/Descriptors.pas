{ The descriptors of a configuration. }

unit Descriptors;

{$ifdef FPC}{$mode delphi}{$endif}

interface

uses
  brxModel, brxValues, brxOpcAuto6_TLB;

type
  TDescriptors = class;

  TDescriptor = class(ThlxOPCDescriptor)
  private
    FParent: TDescriptors;
    FType: Integer;
    FItem, FGroup: WideString;
  public
    constructor Create(Parent: TDescriptors; OfType: Integer);
    function Get_Index: Integer; override; safecall;
    function Get_Type: Integer; override; safecall;
    function Get_ItemName: WideString; override; safecall;
    procedure Set_ItemName(const Value: WideString); override; safecall;
    function Get_GroupName: WideString; override; safecall;
    procedure Set_GroupName(const Value: WideString); override; safecall;
  end;

  TDescriptors = class(ThlxOPCDescriptors)
  private
    FDescriptors: array of _hlxOPCDescriptor;
  public
    function Get__NewEnum: IUnknown; override; safecall;
    function Get_Count: Integer; override; safecall;
    function Get_Item(Position: OleVariant): _hlxOPCDescriptor; override; safecall;
    function Add(Type_: Integer): _hlxOPCDescriptor; override; safecall;
    procedure Remove(Position: Integer); override; safecall;
  end;

implementation

constructor TDescriptor.Create(Parent: TDescriptors; OfType: Integer);
begin
  FParent := Parent;
  FType := OfType;
end;

function TDescriptor.Get_Index: Integer;
var
  Me: _hlxOPCDescriptor;
  I: Integer;
begin
  Me := Self;
  for I := 1 to Length(FParent.FDescriptors) do
    if FParent.FDescriptors[I - 1] = Me then
      Exit(I);
  raise NoSuchElement;
end;

function TDescriptor.Get_Type: Integer; begin Result := FType; end;
function TDescriptor.Get_ItemName: WideString; begin Result := FItem; end;
procedure TDescriptor.Set_ItemName(const Value: WideString); begin FItem := Value; end;
function TDescriptor.Get_GroupName: WideString; begin Result := FGroup; end;
procedure TDescriptor.Set_GroupName(const Value: WideString); begin FGroup := Value; end;

function TDescriptors.Get__NewEnum: IUnknown;
var
  Elements: TObjects;
  I: Integer;
begin
  SetLength(Elements, Length(FDescriptors));
  for I := 0 to High(Elements) do
    Elements[I] := FDescriptors[I];
  Result := TEnumeration.Create(Elements);
end;

function TDescriptors.Get_Count: Integer; begin Result := Length(FDescriptors); end;

function TDescriptors.Get_Item(Position: OleVariant): _hlxOPCDescriptor;
begin
  Result := FDescriptors[PositionOf(Position, Length(FDescriptors)) - 1];
end;

function TDescriptors.Add(Type_: Integer): _hlxOPCDescriptor;
begin
  Result := TDescriptor.Create(Self, Type_);
  SetLength(FDescriptors, Length(FDescriptors) + 1);
  FDescriptors[High(FDescriptors)] := Result;
end;

procedure TDescriptors.Remove(Position: Integer);
begin
  Delete(FDescriptors, PositionOf(Position, Length(FDescriptors)) - 1, 1);
end;

end.
