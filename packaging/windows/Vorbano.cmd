@echo off
rem I dati stanno nella cartella Vorbanet accanto a questo file.
set "VORBANET_ROOT=%~dp0Vorbanet"
"%~dp0Programmi\vorbano-install.exe" --window
if errorlevel 1 exit /b 1
start "" "%~dp0Programmi\vorbano.exe"
