@echo off
rem Takes the TVLejisCore.dll beside this script out of the registry. Run it as administrator.
setlocal
rem Each bitness of Windows has a regsvr32 of its own; this one is that of the library.
set tool=%SystemRoot%\@FOLDER@\regsvr32.exe
if not exist "%tool%" set tool=%SystemRoot%\System32\regsvr32.exe
"%tool%" /s /u "%~dp0TVLejisCore.dll"
if errorlevel 1 goto failed
echo TVLejisCore is not registered any more. This folder can be deleted.
exit /b 0
:failed
echo TVLejisCore could not be unregistered. Run this script as administrator.
exit /b 1
