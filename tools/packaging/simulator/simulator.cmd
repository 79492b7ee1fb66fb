@echo off
rem simulator.cmd [OPTION...]: starts the LEJIS Interface simulator at http://localhost:8080/, for this machine alone.
rem It needs Python 3.10 or later and lxml, and says so if one of them is missing. Ctrl-C ends it. README.html explains
rem the options.
setlocal
rem Where Python is not installed, Windows may have a "python" that only opens the store: so each is tried.
set python=py -3
py -3 -c "import sys" >nul 2>nul
if not errorlevel 1 goto found
set python=python
python -c "import sys" >nul 2>nul
if not errorlevel 1 goto found
echo The simulator needs Python 3.10 or later, and this machine has none. Install it, then start this script again:
echo     winget install Python.Python.3.12
exit /b 1

:found
%python% -c "import lxml.etree" >nul 2>nul
if not errorlevel 1 goto start
echo The simulator needs lxml, and this Python does not have it. Install it, then start this script again:
echo     %python% -m pip install lxml
exit /b 1

:start
%python% "%~dp0lejis_simulator.py" --port 8080 --stop-after 86400 %*
