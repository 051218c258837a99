{ Calls a member of the base that nobody has overridden, through its table as the dialogs do: prints what it leaves. }

program MissingMember;

{$mode delphi}
{$apptype console}

uses
  ActiveX, SysUtils, brxModel, brxOpcAuto6_TLB;

type
  TTable = array [0 .. 11] of Pointer;
  TCount = function(Servers: Pointer; out Count: Integer): HResult; stdcall;

var
  Servers: _hlxOPCServers;
  Table: ^TTable;
  Count: Integer;
  Code: HResult;
  Information: IErrorInfo;
  Description: WideString;

begin
  Servers := ThlxOPCServers.Create;
  Table := PPointer(Pointer(Servers))^;
  Code := TCount(Table[11])(Pointer(Servers), Count);
  if GetErrorInfo(0, Information) = S_OK then
    Information.GetDescription(Description);
  WriteLn(HexStr(Code, 8), ' ', Description);
end.
