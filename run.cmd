@echo off
rem Builds the program and starts it in build\work. Needs on the PATH: CMake, Ninja and a 32-bit MinGW-w64, and for the
rem help Halibut and Python 3.
setlocal
cd /d "%~dp0"
cmake --preset windows-host
if errorlevel 1 exit /b 1
cmake --build --preset windows-host
if errorlevel 1 exit /b 1

set "work=%CD%\build\work"
if not exist "%work%" mkdir "%work%"
for /r build\windows %%f in (varno*.exe) do (
    if /i "%%~nxf"=="varno.exe" copy /y "%%f" "%work%\" >nul
    if /i "%%~nxf"=="varnowb.exe" copy /y "%%f" "%work%\" >nul
)
if not exist "%work%\varno.exe" exit /b 1
if not exist "%work%\varnowb.exe" exit /b 1
for %%f in (Varno.HLP Varno.cnt) do copy /y "build\windows\help\%%f" "%work%\" >nul
xcopy /e /i /y /q build\windows\help\html "%work%\help" >nul
rem A case that already lies in the work folder is the user's own.
for %%f in (samples\*.IND samples\varno.def) do (
    if not exist "%work%\%%~nxf" copy "%%f" "%work%\" >nul
)

rem The program reads single bytes of Windows-1252; the quotation marks keep a folder with a comma whole.
for /f "tokens=2 delims=:" %%c in ('chcp') do set "codepage=%%c"
chcp 1252 >nul
>"%work%\varno.ini" echo "%work%"
chcp %codepage% >nul

start "" /d "%work%" "%work%\varno.exe"
