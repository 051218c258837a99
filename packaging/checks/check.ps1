# Runs all checks, those for 64 bits and those for 32 bits; README.html says what that does to the computer.
#   powershell -ExecutionPolicy Bypass -File check.ps1 [PROGRAM..] [--gtest_filter=PATTERN]
$bits = if ([Environment]::Is64BitOperatingSystem) { 'x64' } else { 'x86' }
& (Join-Path $PSScriptRoot "$bits\brxCheck.exe") @args
exit $LASTEXITCODE
