@echo off
rem Registers the TVLejisCore.dll beside this script for all users of this machine. Run it as administrator.
setlocal
rem Each bitness of Windows has a regsvr32 of its own; this one is that of the library.
set tool=%SystemRoot%\@FOLDER@\regsvr32.exe
if not exist "%tool%" set tool=%SystemRoot%\System32\regsvr32.exe
"%tool%" /s "%~dp0TVLejisCore.dll"
if errorlevel 1 goto failed
echo TVLejisCore is registered. Leave this folder where it is.
exit /b 0
:failed
echo TVLejisCore could not be registered. Run this script as administrator.
exit /b 1
