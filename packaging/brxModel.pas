{ What a host in Object Pascal implements its objects with: a class for each interface of brxOpcAuto6, brxDatabase6 and
  OPCAutomation, in which every member answers E_NOTIMPL. Derive from them and override what your objects have;
  doc/calls.html says what is called.

      TServers = class(ThlxOPCServers)
        function Get_Count: Integer; override; safecall;
      end;

  Dialogs call them on the thread that shows the dialog. What a member raises is told to the person: raise an EOleError
  or any other exception with the text. An EOleSysError keeps its error code. }

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
    function GetIDsOfNames(const IID: TGUID; Names: Pointer; NameCount, LocaleID: Integer; DispIDs: Pointer): HResult; stdcall;
    function Invoke(DispID: Integer; const IID: TGUID; LocaleID: Integer; Flags: Word; var Params; VarResult, ExcepInfo,
      ArgErr: Pointer): HResult; stdcall;
    function InterfaceSupportsErrorInfo(const IID: TGUID): HResult; stdcall;
  public
    function SafeCallException(ExceptObject: TObject; ExceptAddr: {$ifdef FPC}CodePointer{$else}Pointer{$endif}): HResult; override;
  end;

// @CLASSES@
implementation

const
  NotImplemented = HResult($80004001);

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
  Result := HandleSafeCallException(ExceptObject, ExceptAddr, GUID_NULL, '', '');
end;

// @BODIES@
end.
