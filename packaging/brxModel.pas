{ What a host in Object Pascal implements its objects with: a class for each interface of brxOpcAuto6, brxDatabase6 and
  OPCAutomation, in which every member answers E_NOTIMPL. Derive from them and override what your objects have;
  doc/calls.html says what is called.

      TServers = class(ThlxOPCServers)
        function Get_Count: Integer; override; safecall;
      end;

  Dialogs call them on the thread that shows the dialog. What a member raises is told to the person: raise an EOleError
  or any other exception with the text. An EOleSysError keeps its error code; that of run-time error N is $800A0000 + N,
  and the person reads N. Objects that know each other hold one of both by its interface, and the other, as a rule the
  parent, as a plain object: two that hold each other by interfaces are never freed. }

unit brxModel;

{$ifdef FPC}{$mode delphi}{$endif}

interface

uses
  Windows, ActiveX, ComObj, SysUtils, brxOpcAuto6_TLB, brxDatabase6_TLB, OPCAutomation_TLB;

type
  { Scripts and other late callers are not served. }
  TModelObject = class(TInterfacedObject, IDispatch, ISupportErrorInfo)
  protected
    function GetTypeInfoCount(out Count: Integer): HResult; stdcall;
    function GetTypeInfo(Index, LocaleID: Integer; out TypeInfo): HResult; stdcall;
    function GetIDsOfNames(const IID: TGUID; Names: Pointer; NameCount, LocaleID: Integer; DispIDs: Pointer): HResult;
      virtual; stdcall;
    function Invoke(DispID: Integer; const IID: TGUID; LocaleID: Integer; Flags: Word; var Params; VarResult, ExcepInfo,
      ArgErr: Pointer): HResult; virtual; stdcall;
    function InterfaceSupportsErrorInfo(const IID: TGUID): HResult; stdcall;
  public
    function SafeCallException(ExceptObject: TObject; ExceptAddr: {$ifdef FPC}CodePointer{$else}Pointer{$endif}): HResult; override;
  end;

  { An error class, brxError6.Error or hlxER01.Error: its Show is called by name. }
  TErrorReports = class(TModelObject)
  protected
    { One error: its number, text and source, the place in the dialogs, and which version reports it. }
    procedure Show(Number: Integer; const Description, Source, Location, Application: WideString); virtual; abstract;
    function GetIDsOfNames(const IID: TGUID; Names: Pointer; NameCount, LocaleID: Integer; DispIDs: Pointer): HResult;
      override; stdcall;
    function Invoke(DispID: Integer; const IID: TGUID; LocaleID: Integer; Flags: Word; var Params; VarResult, ExcepInfo,
      ArgErr: Pointer): HResult; override; stdcall;
  end;

  TObjects = array of IDispatch;
  TTexts = array of WideString;
  TNumbers = array of Integer;

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

var
  { Who says so, in what is raised: your program. Empty: the component. }
  ErrorSource: WideString = '';

{ Offers a class, to this process alone, that the dialogs create by themselves: CLASS_hlxMessage for instance. Its
  objects are made without a constructor of theirs: override AfterConstruction to begin with something. }
procedure Offer(const ClassID: TGUID; const OfClass: TInterfacedClass);
{ Takes back all that was offered; before CoUninitialize. }
procedure Withdraw;

{ Run-time error 9, for a position that a collection does not have: raise NoSuchElement. }
function NoSuchElement: Exception;

{ Arrays as the OPC interfaces have them, which begin at 1. Who gets one frees it. }
function ArrayOf(const Numbers: array of Integer): PSafeArray; overload;
function ArrayOf(const Texts: array of WideString): PSafeArray; overload;
function NumbersIn(Values: PSafeArray): TNumbers;
function TextsIn(Values: PSafeArray): TTexts;

type
// @CLASSES@
implementation

const
  NotImplemented = HResult($80004001);
  UnknownName = HResult($80020006);
  TypeMismatch = HResult($80020005);
  BadParameterCount = HResult($8002000E);
  NoAggregation = HResult($80040110);

function Missing(const Member: string): Exception;
begin
  Result := EOleSysError.Create(Member + ' is not implemented.', NotImplemented, 0);
end;

function NoSuchElement: Exception;
begin
  Result := EOleSysError.Create('There is no such element.', HResult($800A0009), 0);
end;

function TModelObject.GetTypeInfoCount(out Count: Integer): HResult;
begin
  Count := 0;
  Result := S_OK;
end;

function TModelObject.GetTypeInfo(Index, LocaleID: Integer; out TypeInfo): HResult;
begin
  Result := NotImplemented;
end;

function TModelObject.GetIDsOfNames(const IID: TGUID; Names: Pointer; NameCount, LocaleID: Integer;
  DispIDs: Pointer): HResult;
begin
  Result := NotImplemented;
end;

function TModelObject.Invoke(DispID: Integer; const IID: TGUID; LocaleID: Integer; Flags: Word; var Params; VarResult,
  ExcepInfo, ArgErr: Pointer): HResult;
begin
  Result := NotImplemented;
end;

function TModelObject.InterfaceSupportsErrorInfo(const IID: TGUID): HResult;
begin
  if GetInterfaceEntry(IID) <> nil then
    Result := S_OK
  else
    Result := S_FALSE;
end;

function TModelObject.SafeCallException(ExceptObject: TObject;
  ExceptAddr: {$ifdef FPC}CodePointer{$else}Pointer{$endif}): HResult;
begin
  Result := HandleSafeCallException(ExceptObject, ExceptAddr, GUID_NULL, ErrorSource, '');
end;

function TErrorReports.GetIDsOfNames(const IID: TGUID; Names: Pointer; NameCount, LocaleID: Integer;
  DispIDs: Pointer): HResult;
begin
  Result := UnknownName;
  if (NameCount <> 1) or (WideCompareText(PPWideChar(Names)^, 'Show') <> 0) then
    Exit;
  PInteger(DispIDs)^ := 1;
  Result := S_OK;
end;

function TErrorReports.Invoke(DispID: Integer; const IID: TGUID; LocaleID: Integer; Flags: Word; var Params; VarResult,
  ExcepInfo, ArgErr: Pointer): HResult;
type
  TLast = array [0 .. 4] of OleVariant;
var
  Last: ^TLast; { they come from the last to the first }
  I: Integer;
begin
  Result := BadParameterCount;
  if TDispParams(Params).cArgs <> 5 then
    Exit;
  Pointer(Last) := TDispParams(Params).rgvarg;
  Result := TypeMismatch;
  for I := 0 to 3 do
    if TVarData(Last^[I]).VType <> VT_BSTR then
      Exit;
  if TVarData(Last^[4]).VType <> VT_I4 then
    Exit;
  Result := S_OK;
  try
    Show(Last^[4], Last^[3], Last^[2], Last^[1], Last^[0]);
  except
    Result := E_FAIL;
  end;
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

type
  TFactory = class(TInterfacedObject, IClassFactory)
  private
    FClass: TInterfacedClass;
    function CreateInstance(const Outer: IUnknown; const IID: TGUID; out Made): HResult; stdcall;
    function LockServer(Lock: BOOL): HResult; stdcall;
  end;

var
  Cookies: array of Integer;

function TFactory.CreateInstance(const Outer: IUnknown; const IID: TGUID; out Made): HResult;
var
  Instance: IUnknown;
begin
  Pointer(Made) := nil;
  Result := NoAggregation;
  if Outer <> nil then
    Exit;
  try
    Instance := FClass.Create;
    Result := Instance.QueryInterface(IID, Made);
  except
    Result := E_FAIL;
  end;
end;

function TFactory.LockServer(Lock: BOOL): HResult;
begin
  Result := S_OK;
end;

procedure Offer(const ClassID: TGUID; const OfClass: TInterfacedClass);
var
  Factory: TFactory;
  Offered: IClassFactory;
  Cookie: {$ifdef FPC}DWORD{$else}Longint{$endif};
begin
  Factory := TFactory.Create;
  Offered := Factory;
  Factory.FClass := OfClass;
  OleCheck(CoRegisterClassObject(ClassID, Offered, CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE,
    {$ifdef FPC}@{$endif}Cookie));
  SetLength(Cookies, Length(Cookies) + 1);
  Cookies[High(Cookies)] := Integer(Cookie);
end;

procedure Withdraw;
var
  I: Integer;
begin
  for I := High(Cookies) downto 0 do
    CoRevokeClassObject(Cookies[I]);
  Cookies := nil;
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
    raise EOleSysError.Create('Type mismatch', TypeMismatch, 0);
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

// @BODIES@
end.
