{ Writes a compiled HTML help file:

    help OUT.chm TITLE FIRST.html CONTENTS.hhc INDEX.hhk NUMBERS <FILES

  in the folder of the pages. Standard input has the names of the files, pages and pictures, a line each. A line of
  NUMBERS is the number by which programs ask for a page, a blank, and its name.

  The same pages give the same bytes: the writer's clock is taken out again. }

program Help;

{$mode objfpc}{$H+}

uses
  Classes, SysUtils, chmwriter;

type
  TPages = class
    procedure AddLists(Sender: TObject);
    function Load(const Name: String; out Folder, FileName: String; var Stream: TStream): Boolean;
  end;

function TPages.Load(const Name: String; out Folder, FileName: String; var Stream: TStream): Boolean;
begin
  Folder := '/' + ExtractFilePath(Name);
  FileName := ExtractFileName(Name);
  TMemoryStream(Stream).LoadFromFile(Name);
  Stream.Position := 0;
  Result := False; { True would end it }
end;

function Loaded(const Name: String): TMemoryStream;
begin
  Result := TMemoryStream.Create;
  Result.LoadFromFile(Name);
end;

{ The writer knows where the lists begin once it has all files. }
procedure TPages.AddLists(Sender: TObject);
var
  Writer: TChmWriter;
begin
  Writer := Sender as TChmWriter;
  Writer.AppendTOC(Loaded(Writer.TOCName));
  Writer.AppendIndex(Loaded(Writer.IndexName));
end;

procedure AddNumbers(Writer: TChmWriter; const Name: String);
var
  Lines: TStringList;
  Line: String;
begin
  Lines := TStringList.Create;
  Lines.LoadFromFile(Name);
  for Line in Lines do
    Writer.AddContext(StrToInt(Copy(Line, 1, Pos(' ', Line) - 1)), Copy(Line, Pos(' ', Line) + 1, MaxInt));
  Lines.Free;
end;

{ In the header, and in the first record of #SYSTEM: its code 10, its length 4, the time. }
procedure TakeOutTime(Written: TMemoryStream);
const
  InHeader = 16;
  BeforeTime: array[0..7] of Byte = (3, 0, 0, 0, 10, 0, 4, 0);
var
  Bytes: PByte;
  Place, Found: Integer;
begin
  Bytes := Written.Memory;
  FillChar(Bytes[InHeader], 4, 0);
  Found := 0;
  for Place := 0 to Written.Size - 12 do
    if CompareMem(Bytes + Place, @BeforeTime, SizeOf(BeforeTime)) then
    begin
      FillChar(Bytes[Place + SizeOf(BeforeTime)], 4, 0);
      Inc(Found);
    end;
  if Found <> 1 then
    raise Exception.CreateFmt('%d times found in place of one', [Found]);
end;

var
  Written: TMemoryStream;
  Writer: TChmWriter;
  Pages: TPages;
  Line: String;

begin
  Written := TMemoryStream.Create;
  Writer := TChmWriter.Create(Written, False);
  Pages := TPages.Create;
  Writer.OnGetFileData := @Pages.Load;
  Writer.Title := ParamStr(2);
  Writer.DefaultPage := ParamStr(3);
  Writer.LocaleID := 1033;
  Writer.FullTextSearch := True;
  Writer.TOCName := ParamStr(4);
  Writer.IndexName := ParamStr(5);
  Writer.OnLastFile := @Pages.AddLists;
  AddNumbers(Writer, ParamStr(6));
  while not EOF do
  begin
    ReadLn(Line);
    Writer.FilesToCompress.Add(Line);
  end;
  Writer.Execute;
  TakeOutTime(Written);
  Written.SaveToFile(ParamStr(1));
end.
