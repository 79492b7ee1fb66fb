@echo off
rem simulator.cmd [OPTION...]: starts the LEJIS Interface simulator at http://localhost:8080/, for this machine alone.
rem It needs Python 3 and lxml (py -3 -m pip install lxml). Ctrl-C ends it. README.html tells the options.
setlocal
set python=py -3
where py >nul 2>nul
if errorlevel 1 set python=python
%python% "%~dp0lejis_simulator.py" --port 8080 --stop-after 86400 %*
