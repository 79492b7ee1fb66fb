@echo off
rem check.cmd [http://HOST:PORT] [--only RUN]: tries the library on this Windows and writes report.html and report.json
rem beside itself. The address is that of the simulator; never give that of a true LEJIS: the tests empty its index.
rem Start it as administrator, where no TVLejisCore is installed.
"%~dp0kit.exe" %*
