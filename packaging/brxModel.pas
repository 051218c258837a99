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

var
  { Who says so, in what is raised: your program. Empty: the component. }
  ErrorSource: WideString = '';

{ Offers a class, to this process alone, that the dialogs create by themselves: CLASS_hlxMessage for instance. Its
  objects are made without a constructor of theirs: override AfterConstruction to begin with something. }
procedure Offer(const ClassID: TGUID; const OfClass: TInterfacedClass);
{ Takes back all that was offered; before CoUninitialize. }
procedure Withdraw;

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

// @BODIES@
end.
