{ Tries the base of a Pascal host's objects as the dialogs use it: through tables, and error classes by name. Prints
  what comes of it. }

program Base;

{$mode delphi}
{$apptype console}

uses
  Windows, ActiveX, ComObj, SysUtils, brxModel, brxValues, brxOpcAuto6_TLB;

type
  TReports = class(TErrorReports)
  protected
    procedure Show(Number: Integer; const Description, Source, Location, Application: WideString); override;
  end;

  TServers = class(ThlxOPCServers)
  public
    function Get_Item(Index: OleVariant): _hlxOPCServer; override; safecall;
  end;

  TTable = array [0 .. 11] of Pointer;
  TCount = function(Servers: Pointer; out Count: Integer): HResult; stdcall;
  TItem = function(Servers: Pointer; Index: OleVariant; out Entry: Pointer): HResult; stdcall;

const
  ClassID: TGUID = '{1D6E3C0A-52F1-4A0B-9D0C-8A4F0C6B7E21}';

procedure TReports.Show(Number: Integer; const Description, Source, Location, Application: WideString);
begin
  WriteLn('report ', Number, ' ', Description, ' ', Source, ' ', Location, ' ', Application);
end;

function TServers.Get_Item(Index: OleVariant): _hlxOPCServer;
begin
  PositionOf(Index, 2);
  Result := nil;
end;

procedure TellOf(Code: HResult);
var
  Information: IErrorInfo;
  Source, Description: WideString;
begin
  if GetErrorInfo(0, Information) = S_OK then
  begin
    Information.GetSource(Source);
    Information.GetDescription(Description);
  end;
  WriteLn(HexStr(Code, 8), ' ', Source, ' ', Description);
end;

procedure CallThroughTable;
var
  Servers: _hlxOPCServers;
  Table: ^TTable;
  Count: Integer;
  Entry: Pointer = nil;
begin
  Servers := TServers.Create;
  Table := PPointer(Pointer(Servers))^;
  TellOf(TCount(Table[11])(Pointer(Servers), Count));
  TellOf(TItem(Table[10])(Pointer(Servers), 3, Entry));
  TellOf(TItem(Table[10])(Pointer(Servers), 2, Entry));
end;

procedure Report;
var
  Reports: IDispatch;
  Name: PWideChar;
  ID: Integer;
  Last: array [0 .. 4] of OleVariant;
  Arguments: TDispParams;
begin
  Offer(ClassID, TReports);
  Reports := CreateComObject(ClassID) as IDispatch;
  Name := 'show';
  OleCheck(Reports.GetIDsOfNames(GUID_NULL, @Name, 1, 0, @ID));
  Last[4] := Integer(5);
  Last[3] := WideString('text');
  Last[2] := WideString('source');
  Last[1] := WideString('place');
  Last[0] := WideString('version');
  FillChar(Arguments, SizeOf(Arguments), 0);
  Arguments.rgvarg := @Last;
  Arguments.cArgs := 5;
  OleCheck(Reports.Invoke(ID, GUID_NULL, 0, DISPATCH_METHOD, Arguments, nil, nil, nil));
  Reports := nil;
  Withdraw;
  try
    CreateComObject(ClassID);
    WriteLn('It is still offered.');
  except
    on EOleSysError do WriteLn('withdrawn');
  end;
end;

procedure Enumerate;
var
  Elements: TObjects;
  Walk, Other: IElements;
  Found: array [1 .. 2] of OleVariant;
  Fetched: Cardinal;
begin
  SetLength(Elements, 3);
  Elements[2] := ThlxOPCServer.Create;
  Walk := TEnumeration.Create(Elements);
  Write(Walk.Next(2, @Found[1], @Fetched), ' ', Fetched);
  Walk.Clone(Other);
  Write(', ', Walk.Next(2, @Found[1], nil), ' ', IDispatch(Found[1]) = Elements[2]);
  Write(', ', Other.Skip(2), ', ', Other.Reset, ', ', Other.Next(1, @Found[1], @Fetched));
  WriteLn;
end;

procedure PassArrays;
var
  Numbers, Texts: PSafeArray;
  First: Integer;
  Found: TTexts;
  None: TNumbers;
begin
  None := nil;
  Numbers := ArrayOf([4, 5]);
  Texts := ArrayOf(['one', 'two', 'three']);
  SafeArrayGetLBound(Texts, 1, First);
  Found := TextsIn(Texts);
  WriteLn(First, ' ', Length(Found), ' ', Found[2], ' ', NumbersIn(Numbers)[1], ' ', Length(NumbersIn(ArrayOf(None))));
  try
    TextsIn(Numbers);
  except
    on Problem: EOleSysError do WriteLn(HexStr(Problem.ErrorCode, 8));
  end;
  SafeArrayDestroy(Numbers);
  SafeArrayDestroy(Texts);
end;

begin
  OleInitialize(nil);
  ErrorSource := 'Base';
  CallThroughTable;
  Report;
  Enumerate;
  PassArrays;
  OleUninitialize;
end.
