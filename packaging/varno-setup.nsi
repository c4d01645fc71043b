; The installer: for one user, without administrator rights. Built by the target varno_setup, which defines
;   PROGRAM TOOL ENGINE HELP SAMPLES ICON PICTURE OUT VERSION    paths, and "7.1.0"
;
;   varno-setup.exe /S                silently
;   varno-setup.exe /WORK=C:\folder   another work folder than the one that is offered
;   varno-setup.exe /D=C:\folder      another folder for the program (last, without quotation marks)
;
; The program goes to the user's own programs, the work folder to the documents unless there is one from before. What
; lies in a work folder is the user's: nothing in it is replaced, and nothing but the sample engine, unchanged, removed.

Unicode true
SetCompressor /SOLID lzma
ManifestDPIAware true
ManifestSupportedOS Win10
RequestExecutionLevel user

!include "MUI2.nsh"
!include "FileFunc.nsh"
!include "LogicLib.nsh"

!define PRODUCT "Kalvora Tessaplan"
!define CASE_TYPE "Varno.Case"
!define OWN_KEY "Software\Kalvora\Varno"
!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Varno"
!define HELP_KEY "Software\Microsoft\Windows\Help"
!define OLD_WORK "C:\varnow\run"

Name "${PRODUCT}"
OutFile "${OUT}"
InstallDir "$LOCALAPPDATA\Programs\Varno"
InstallDirRegKey HKCU "${OWN_KEY}" "Program"
BrandingText "${PRODUCT} 7.10"
VIProductVersion "${VERSION}.0"
VIAddVersionKey /LANG=1053 "ProductName" "${PRODUCT}"
VIAddVersionKey /LANG=1053 "CompanyName" "Kalvora"
VIAddVersionKey /LANG=1053 "FileDescription" "Installation av ${PRODUCT}"
VIAddVersionKey /LANG=1053 "FileVersion" "7.10"
VIAddVersionKey /LANG=1053 "LegalCopyright" ""

Var WorkFolder
Var EngineTime
Var EngineSize

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_WELCOMEFINISHPAGE_BITMAP "${PICTURE}"
!define MUI_ABORTWARNING
!define MUI_DIRECTORYPAGE_VARIABLE $WorkFolder
!define MUI_DIRECTORYPAGE_TEXT_TOP "I arbetsmappen ligger indatafilerna, resultaten, varno.def och \
    beräkningsprogrammet varnowb.exe. Det som redan finns i mappen lämnas som det är."
!define MUI_DIRECTORYPAGE_TEXT_DESTINATION "Arbetsmapp"
!define MUI_PAGE_HEADER_TEXT "Arbetsmapp"
!define MUI_PAGE_HEADER_SUBTEXT "Välj den mapp som programmet arbetar i."
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!define MUI_FINISHPAGE_RUN
!define MUI_FINISHPAGE_RUN_TEXT "Starta ${PRODUCT}"
!define MUI_FINISHPAGE_RUN_FUNCTION startProgram
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "Swedish"

Function .onInit
    SetShellVarContext current
    ${GetParameters} $0
    ClearErrors
    ${GetOptions} $0 "/WORK=" $WorkFolder
    ${If} ${Errors}
        StrCpy $WorkFolder ""
        ReadRegStr $WorkFolder HKCU "${OWN_KEY}" "Work"
    ${EndIf}
    ${If} $WorkFolder == ""
        StrCpy $WorkFolder "$DOCUMENTS\Varno"
        ${If} ${FileExists} "${OLD_WORK}\varno.ini"
            StrCpy $WorkFolder "${OLD_WORK}"
        ${EndIf}
    ${EndIf}
FunctionEnd

Function startProgram
    SetOutPath "$WorkFolder"
    Exec '"$INSTDIR\varno.exe"'
FunctionEnd

; A program that is running cannot be replaced.
!macro FreeProgram
    try_again:
    ClearErrors
    Delete "$INSTDIR\varno.exe"
    ${If} ${Errors}
        MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION \
            "Programmet är igång: $INSTDIR\varno.exe kan inte ersättas. Avsluta det och försök igen." \
            /SD IDCANCEL IDRETRY try_again
        SetErrorLevel 2
        Quit
    ${EndIf}
!macroend

Section
    !insertmacro FreeProgram
    SetOutPath "$INSTDIR"
    File "/oname=varno.exe" "${PROGRAM}"
    File "/oname=varnotool.exe" "${TOOL}"
    File "${HELP}/Varno.HLP"
    File "${HELP}/Varno.cnt"
    SetOutPath "$INSTDIR\help"
    File /r "${HELP}/html/*.*"

    SetOutPath "$WorkFolder"
    ${If} ${Errors}
        MessageBox MB_OK|MB_ICONSTOP "Arbetsmappen $WorkFolder kan inte skapas. Välj en annan." /SD IDOK
        SetErrorLevel 2
        Quit
    ${EndIf}
    ${IfNot} ${FileExists} "$WorkFolder\varnowb.exe"
        File "/oname=varnowb.exe" "${ENGINE}"
        Call rememberEngine
    ${EndIf}
    ; A case, the default case or the settings that lie there are the user's own.
    SetOverwrite off
    File "${SAMPLES}/*.IND"
    File "${SAMPLES}/varno.def"
    SetOverwrite on
    ${IfNot} ${FileExists} "$WorkFolder\varno.ini"
        ; The quotation marks keep a folder with a comma whole.
        FileOpen $0 "$WorkFolder\varno.ini" w
        FileWrite $0 '"$WorkFolder"$\r$\n'
        FileClose $0
    ${EndIf}

    ; Started in the work folder, where the program looks for its settings.
    SetOutPath "$WorkFolder"
    CreateShortcut "$SMPROGRAMS\${PRODUCT}.lnk" "$INSTDIR\varno.exe" "" "$INSTDIR\varno.exe" 0 SW_SHOWNORMAL "" \
        "Kontinuerliga samverkansbjälklag"
    Call takeCases
    WriteRegStr HKCU "${HELP_KEY}" "varno.hlp" "$INSTDIR"
    WriteRegStr HKCU "${OWN_KEY}" "Program" "$INSTDIR"
    WriteRegStr HKCU "${OWN_KEY}" "Work" "$WorkFolder"
    Call writeUninstaller
SectionEnd

; To know, when it is removed, that it is still the sample that was put there.
Function rememberEngine
    GetFileTime "$WorkFolder\varnowb.exe" $0 $1
    WriteRegStr HKCU "${OWN_KEY}" "EngineTime" "$0 $1"
    ${GetSize} "$WorkFolder" "/M=varnowb.exe /S=0B /G=0" $0 $1 $2
    WriteRegStr HKCU "${OWN_KEY}" "EngineSize" "$0"
FunctionEnd

Function takeCases
    ReadRegStr $0 HKCU "Software\Classes\.IND" ""
    ${If} $0 != "${CASE_TYPE}"
        WriteRegStr HKCU "${OWN_KEY}" "CasesBefore" "$0"
    ${EndIf}
    WriteRegStr HKCU "Software\Classes\.IND" "" "${CASE_TYPE}"
    WriteRegStr HKCU "Software\Classes\.IND\OpenWithProgids" "${CASE_TYPE}" ""
    WriteRegStr HKCU "Software\Classes\${CASE_TYPE}" "" "Indata till ${PRODUCT}"
    WriteRegStr HKCU "Software\Classes\${CASE_TYPE}\DefaultIcon" "" "$INSTDIR\varno.exe,0"
    ; A double click starts the program in the folder of the file, and its settings lie in the work folder.
    WriteRegStr HKCU "Software\Classes\${CASE_TYPE}\shell\open\command" "" \
        '"$INSTDIR\varno.exe" /work "$WorkFolder" "%1"'
    ${RefreshShellIcons}
FunctionEnd

Function writeUninstaller
    WriteUninstaller "$INSTDIR\uninstall.exe"
    ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
    WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayName" "${PRODUCT}"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayVersion" "7.10"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\varno.exe"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "Publisher" "Kalvora"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
    WriteRegStr HKCU "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
    WriteRegDWORD HKCU "${UNINSTALL_KEY}" "EstimatedSize" $0
    WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoModify" 1
    WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoRepair" 1
FunctionEnd

Function un.onInit
    SetShellVarContext current
    ReadRegStr $WorkFolder HKCU "${OWN_KEY}" "Work"
FunctionEnd

Section "un."
    !insertmacro FreeProgram
    Delete "$INSTDIR\varnotool.exe"
    Delete "$INSTDIR\Varno.HLP"
    Delete "$INSTDIR\Varno.cnt"
    ; What the viewer of the help leaves beside it.
    Delete "$INSTDIR\Varno.GID"
    RMDir /r "$INSTDIR\help"
    Delete "$INSTDIR\uninstall.exe"
    RMDir "$INSTDIR"
    Delete "$SMPROGRAMS\${PRODUCT}.lnk"
    Call un.removeEngine
    Call un.giveCasesBack
    DeleteRegValue HKCU "${HELP_KEY}" "varno.hlp"
    DeleteRegKey HKCU "${UNINSTALL_KEY}"
    DeleteRegKey HKCU "${OWN_KEY}"
    DeleteRegKey /ifempty HKCU "Software\Kalvora"
SectionEnd

; The sample goes when nobody has put another one in its place.
Function un.removeEngine
    ReadRegStr $EngineTime HKCU "${OWN_KEY}" "EngineTime"
    ReadRegStr $EngineSize HKCU "${OWN_KEY}" "EngineSize"
    ${If} $EngineTime == ""
    ${OrIfNot} ${FileExists} "$WorkFolder\varnowb.exe"
        Return
    ${EndIf}
    GetFileTime "$WorkFolder\varnowb.exe" $0 $1
    StrCpy $3 "$0 $1"
    ${un.GetSize} "$WorkFolder" "/M=varnowb.exe /S=0B /G=0" $0 $1 $2
    ${If} $3 == $EngineTime
    ${AndIf} $0 == $EngineSize
        Delete "$WorkFolder\varnowb.exe"
    ${EndIf}
FunctionEnd

Function un.giveCasesBack
    ReadRegStr $0 HKCU "Software\Classes\.IND" ""
    ${If} $0 == "${CASE_TYPE}"
        ReadRegStr $1 HKCU "${OWN_KEY}" "CasesBefore"
        ${If} $1 == ""
            DeleteRegValue HKCU "Software\Classes\.IND" ""
        ${Else}
            WriteRegStr HKCU "Software\Classes\.IND" "" "$1"
        ${EndIf}
    ${EndIf}
    DeleteRegValue HKCU "Software\Classes\.IND\OpenWithProgids" "${CASE_TYPE}"
    DeleteRegKey /ifempty HKCU "Software\Classes\.IND\OpenWithProgids"
    DeleteRegKey /ifempty HKCU "Software\Classes\.IND"
    DeleteRegKey HKCU "Software\Classes\${CASE_TYPE}"
    ${un.RefreshShellIcons}
FunctionEnd
