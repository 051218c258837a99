{ What a host's objects are handed and hand out: positions, arrays, what walks through a collection. }

unit brxValues;

{$ifdef FPC}{$mode delphi}{$endif}

interface

uses
  ActiveX, ComObj, SysUtils;

{ Run-time error 9, for a position that a collection does not have: raise NoSuchElement. }
function NoSuchElement: Exception;
{ The position that a collection is asked for, from 1 to Count; anything else raises NoSuchElement. }
function PositionOf(const Index: OleVariant; Count: Integer): Integer;

type
  TObjects = array of IDispatch;
  TTexts = array of WideString;
  TNumbers = array of Integer;

{ Arrays as the OPC interfaces have them, which begin at 1. Who gets one frees it. }
function ArrayOf(const Numbers: array of Integer): PSafeArray; overload;
function ArrayOf(const Texts: array of WideString): PSafeArray; overload;
function NumbersIn(Values: PSafeArray): TNumbers;
function TextsIn(Values: PSafeArray): TTexts;

type
  { IEnumVARIANT, whose Fetched may be nil. }
  IElements = interface(IUnknown)
    ['{00020404-0000-0000-C000-000000000046}']
    function Next(Count: Cardinal; Elements: POleVariant; Fetched: PCardinal): HResult; stdcall;
    function Skip(Count: Cardinal): HResult; stdcall;
    function Reset: HResult; stdcall;
    function Clone(out Copy: IElements): HResult; stdcall;
  end;

  { What _NewEnum of a collection gives: each of its elements once. }
  TEnumeration = class(TInterfacedObject, IElements)
  private
    FElements: TObjects;
    FNext: Integer;
    function Next(Count: Cardinal; Elements: POleVariant; Fetched: PCardinal): HResult; stdcall;
    function Skip(Count: Cardinal): HResult; stdcall;
    function Reset: HResult; stdcall;
    function Clone(out Copy: IElements): HResult; stdcall;
  public
    constructor Create(const Elements: TObjects);
  end;

implementation

function NoSuchElement: Exception;
begin
  Result := EOleSysError.Create('There is no such element.', HResult($800A0009), 0);
end;

function PositionOf(const Index: OleVariant; Count: Integer): Integer;
begin
  Result := Index;
  if (Result < 1) or (Result > Count) then
    raise NoSuchElement;
end;

function BeginAt1(Kind: TVarType; Count: Integer; out Data: Pointer): PSafeArray;
begin
  Result := SafeArrayCreateVector(Kind, 1, Count);
  if Result = nil then
    raise EOutOfMemory.Create('There is not enough memory.');
  OleCheck(SafeArrayAccessData(Result, Data));
end;

function ArrayOf(const Numbers: array of Integer): PSafeArray;
var
  Data: Pointer;
begin
  Result := BeginAt1(VT_I4, Length(Numbers), Data);
  if Length(Numbers) > 0 then
    Move(Numbers[0], Data^, Length(Numbers) * SizeOf(Integer));
  SafeArrayUnaccessData(Result);
end;

function ArrayOf(const Texts: array of WideString): PSafeArray;
var
  Data: Pointer;
  Text: PWideString;
  I: Integer;
begin
  Result := BeginAt1(VT_BSTR, Length(Texts), Data);
  Text := Data;
  for I := 0 to High(Texts) do
  begin
    Text^ := Texts[I];
    Inc(Text);
  end;
  SafeArrayUnaccessData(Result);
end;

function KindIn(Values: PSafeArray; out Kind: TVarType): HResult; stdcall; external 'oleaut32.dll' name 'SafeArrayGetVartype';

function SizeIn(Values: PSafeArray; Kind: TVarType): Integer;
var
  First, Last: Longint;
  Found: TVarType;
begin
  OleCheck(KindIn(Values, Found));
  if Found <> Kind then
    raise EOleSysError.Create('Type mismatch', HResult($80020005), 0);
  OleCheck(SafeArrayGetLBound(Values, 1, First));
  OleCheck(SafeArrayGetUBound(Values, 1, Last));
  Result := Last - First + 1;
end;

function NumbersIn(Values: PSafeArray): TNumbers;
var
  Data: Pointer;
begin
  SetLength(Result, SizeIn(Values, VT_I4));
  OleCheck(SafeArrayAccessData(Values, Data));
  if Length(Result) > 0 then
    Move(Data^, Result[0], Length(Result) * SizeOf(Integer));
  SafeArrayUnaccessData(Values);
end;

function TextsIn(Values: PSafeArray): TTexts;
var
  Data: Pointer;
  Text: PWideString;
  I: Integer;
begin
  SetLength(Result, SizeIn(Values, VT_BSTR));
  OleCheck(SafeArrayAccessData(Values, Data));
  Text := Data;
  for I := 0 to High(Result) do
  begin
    Result[I] := Text^;
    Inc(Text);
  end;
  SafeArrayUnaccessData(Values);
end;

constructor TEnumeration.Create(const Elements: TObjects);
begin
  FElements := Copy(Elements);
end;

function TEnumeration.Next(Count: Cardinal; Elements: POleVariant; Fetched: PCardinal): HResult;
var
  Given: Cardinal;
begin
  Given := 0;
  while (Given < Count) and (FNext < Length(FElements)) do
  begin
    FillChar(Elements^, SizeOf(OleVariant), 0); { nothing that would have to be freed }
    Elements^ := FElements[FNext];
    Inc(FNext);
    Inc(Elements);
    Inc(Given);
  end;
  if Fetched <> nil then
    Fetched^ := Given;
  if Given = Count then
    Result := S_OK
  else
    Result := S_FALSE;
end;

function TEnumeration.Skip(Count: Cardinal): HResult;
begin
  Result := S_OK;
  if Count > Cardinal(Length(FElements) - FNext) then
  begin
    Count := Length(FElements) - FNext;
    Result := S_FALSE;
  end;
  Inc(FNext, Count);
end;

function TEnumeration.Reset: HResult;
begin
  FNext := 0;
  Result := S_OK;
end;

function TEnumeration.Clone(out Copy: IElements): HResult;
var
  Made: TEnumeration;
begin
  Made := TEnumeration.Create(FElements);
  Made.FNext := FNext;
  Copy := Made;
  Result := S_OK;
end;

end.
