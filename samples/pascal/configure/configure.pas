{ A host with a whole model of its own: lets a person set up a configuration, and tells what was set. Ends with 0. }

program Configure;

{$ifdef FPC}{$mode delphi}{$endif}
{$apptype console}

uses
  ActiveX, ComObj, SysUtils, brxModel, brxOpcAuto6_TLB, brxOpcDlgs6_TLB, Configurations, Records, Servers;

procedure SetUp;
var
  All: _hlxOPCServers;
  Configuration: _hlxOPCConfiguration;
  Dialog: _ConfigurationSetup;
  I: Integer;
begin
  All := TServers.Create;
  Configuration := TConfiguration.Create(All.Add('Plant.Server.1', '', True));
  Dialog := CoConfigurationSetup.Create;
  Dialog.Show(Configuration);
  WriteLn(Configuration.Name);
  for I := 1 to Configuration.Tests.Count do
    WriteLn('test ', Configuration.Tests[I].CharacteristicName, ': ', Configuration.Tests[I].OPCItemID);
  for I := 1 to Configuration.Descriptors.Count do
    WriteLn('descriptor ', Configuration.Descriptors[I].ItemName);
end;

begin
  OleInitialize(nil);
  ErrorSource := 'The sample';
  try
    Offer(CLASS_hlxOPCServer, TServerEntry);
    OfferRecords;
    try
      SetUp;
    finally
      Withdraw;
    end;
  except
    on Problem: EOleSysError do
    begin
      WriteLn(ErrOutput, 'Error ', IntToHex(Problem.ErrorCode, 8), ': ', Problem.Message);
      ExitCode := 2;
    end;
  end;
  OleUninitialize;
end.
