@echo off
rem Runs all checks, those for 64 bits and those for 32 bits; README.html says what that does to the computer.
rem   check.cmd [PROGRAM..] [--gtest_filter=PATTERN]
setlocal
set bits=x64
if "%PROCESSOR_ARCHITECTURE%"=="x86" if not defined PROCESSOR_ARCHITEW6432 set bits=x86
"%~dp0%bits%\brxCheck.exe" %*
exit /b %ERRORLEVEL%
