# A host with servers of its own: lets a person choose one of three. Exit status: 0 one was chosen, 1 none was.
#
#     powershell -STA -File serve.ps1
#
# The dialogs call a host's objects through the tables of their interfaces, which PowerShell has no classes for. Those of
# C# have them, and PowerShell compiles C#.

$base = Get-ChildItem (Join-Path $PSScriptRoot '..\..\csharp\*.cs') | ForEach-Object { $_.FullName }
Add-Type -Path (@($base) + (Join-Path $PSScriptRoot '..\csharp\Serve.cs'))

$position = [Serve]::Choose()
if ($position -eq 0) { exit 1 }
Write-Output "Server $position"
