; The installer of one user, without administrator rights. tools/package.py names:
;   VERSION  three numbers with points between them
;   FOLDER   the program folder that is shipped
;   FILES    a script with the macro ShippedFiles, a line a file
;   BANNER   the picture of the last page, 164 x 314 pixels
;   OUTPUT   the installer to write
;   SIGN     (optional) the command that signs a file, whose name follows it
;
; Silent: /S and, in front of a last /D=<folder>, /AUTOSTART=1 or /AUTOSTART=0. The uninstaller knows
; /S and /REMOVESETTINGS, which takes the settings and the statistics too.
Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
RequestExecutionLevel user
ManifestDPIAware true
ManifestSupportedOS all

!include MUI2.nsh
!include FileFunc.nsh

!define PRODUCT "Korvane Tremolux"
!define PROGRAM "$INSTDIR\Tremolux.exe"
!define KEPT_KEY "Software\Korvane\Dravenlow"
!define PLACES_KEY "Software\BrisantoNET"
!define RUN_KEY "Software\Microsoft\Windows\CurrentVersion\Run"
!define RUN_VALUE "BrisantoXP"
!define APPS_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall"
!define UNINSTALL_KEY "${APPS_KEY}\Tremolux"
!define SHORTCUT "$SMPROGRAMS\${PRODUCT}.lnk"

Name "${PRODUCT}"
BrandingText "${PRODUCT} ${VERSION}"
OutFile "${OUTPUT}"
InstallDir "$LOCALAPPDATA\Programs\${PRODUCT}"
InstallDirRegKey HKCU "${UNINSTALL_KEY}" "InstallLocation"
!ifdef SIGN
  !uninstfinalize '${SIGN} "%1"'
!endif

VIProductVersion "${VERSION}.0"
VIFileVersion "${VERSION}.0"
VIAddVersionKey ProductName "${PRODUCT}"
VIAddVersionKey ProductVersion "${VERSION}.0"
VIAddVersionKey FileVersion "${VERSION}.0"
VIAddVersionKey FileDescription "${PRODUCT} Setup"
VIAddVersionKey LegalCopyright ""

!define MUI_ICON "..\tremolux.ico"
!define MUI_UNICON "..\tremolux.ico"
!define MUI_COMPONENTSPAGE_NODESC
!define MUI_WELCOMEFINISHPAGE_BITMAP "${BANNER}"
!define MUI_FINISHPAGE_RUN "${PROGRAM}"

Var meter_ran    ; 1 when a meter had to end for this
Var shipped_high ; the time of the program that is installed; empty when there is none
Var shipped_low
Var remove_settings ; 1 when the user wants it

!insertmacro MUI_PAGE_COMPONENTS
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!define MUI_PAGE_CUSTOMFUNCTION_SHOW FinishShown
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_COMPONENTS
!insertmacro MUI_UNPAGE_INSTFILES

; The languages of the program; the first one serves where the system speaks none of them.
!insertmacro MUI_LANGUAGE English
!insertmacro MUI_LANGUAGE French
!insertmacro MUI_LANGUAGE German
!insertmacro MUI_LANGUAGE Japanese
!insertmacro MUI_LANGUAGE Spanish
!insertmacro MUI_LANGUAGE Turkish
!include texts.nsh
!include "${FILES}"

; A meter that runs, wherever its folder is, since there is one at a time. It ends as it does with
; the Windows session: it stores what it has and asks nothing.
!macro EndMeterFunction UN
  Function ${UN}EndMeter
    StrCpy $meter_ran 0
    try:
    FindWindow $0 "T_frmBrisanto"
    IntPtrCmp $0 0 gone
    StrCpy $meter_ran 1
    System::Call 'user32::GetWindowThreadProcessId(p r0, *i .r1)'
    System::Call 'kernel32::OpenProcess(i 0x100000, i 0, i r1) p .r2' ; SYNCHRONIZE
    SendMessage $0 ${WM_QUERYENDSESSION} 0 1 /TIMEOUT=5000            ; ENDSESSION_CLOSEAPP
    SendMessage $0 ${WM_ENDSESSION} 1 1 /TIMEOUT=5000
    System::Call 'kernel32::WaitForSingleObject(p r2, i 10000) i .r3'
    System::Call 'kernel32::CloseHandle(p r2)'
    IntCmp $3 0 gone
    MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$(MeterStays)" /SD IDCANCEL IDRETRY try
    SetErrorLevel 2
    Quit
    gone:
  FunctionEnd
!macroend
!insertmacro EndMeterFunction ""
!insertmacro EndMeterFunction "un."

; All files of a release have one time. A file with another than the program's was changed by the
; user, who keeps it. Result: $0 is 1 then.
!macro IsChangedFunction UN
  Function ${UN}IsChanged
    Exch $2
    StrCpy $0 0
    ${If} $shipped_high != ""
    ${AndIf} ${FileExists} "$2"
      GetFileTime "$2" $3 $4
      ${If} $3 != $shipped_high
      ${OrIf} $4 != $shipped_low
        StrCpy $0 1
      ${EndIf}
    ${EndIf}
    Pop $2
  FunctionEnd
!macroend
!insertmacro IsChangedFunction ""
!insertmacro IsChangedFunction "un."

!macro ReadShippedTime
  StrCpy $shipped_high ""
  ${If} ${FileExists} "${PROGRAM}"
    GetFileTime "${PROGRAM}" $shipped_high $shipped_low
  ${EndIf}
!macroend

!macro InstallFile SUBFOLDER NAME
  SetOutPath "$INSTDIR${SUBFOLDER}"
  Push "$OUTDIR\${NAME}"
  Call IsChanged
  ${If} $0 == 0
    File "${FOLDER}${SUBFOLDER}\${NAME}"
  ${EndIf}
!macroend

!macro RemoveFile SUBFOLDER NAME
  Push "$INSTDIR${SUBFOLDER}\${NAME}"
  Call un.IsChanged
  ${If} $0 == 0
  ${OrIf} $remove_settings == 1
    Delete "$INSTDIR${SUBFOLDER}\${NAME}"
  ${EndIf}
!macroend

!macro RemoveFolder SUBFOLDER
  RMDir "$INSTDIR${SUBFOLDER}" ; stays while there is a file of the user's in it
!macroend

Section "${PRODUCT}" SECTION_PROGRAM
  SectionIn RO
  Call EndMeter
  !insertmacro ReadShippedTime
  !insertmacro ShippedFiles InstallFile
  SetOutPath "$INSTDIR"
  File "${FOLDER}\Tremolux.exe" ; last: until it is new, the time of the former release is known
  WriteUninstaller "$INSTDIR\uninstall.exe"
  CreateShortcut "${SHORTCUT}" "${PROGRAM}"

  ; Whoever starts on this machine finds the program speaking as the installer does.
  EnumRegValue $0 HKCU "${KEPT_KEY}\Settings" 0
  ${If} $0 == ""
    WriteRegStr HKCU "${KEPT_KEY}\Settings" "Language" "$(LanguageFile)"
  ${EndIf}

  SectionGetSize ${SECTION_PROGRAM} $0
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayName" "${PRODUCT}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayIcon" "${PROGRAM}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "Publisher" "Korvane"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "EstimatedSize" $0
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoRepair" 1
SectionEnd

; What the program's own option does.
Section /o "$(AutoStart)" SECTION_AUTOSTART
  WriteRegStr HKCU "${RUN_KEY}" "${RUN_VALUE}" "${PROGRAM}"
  WriteRegDWORD HKCU "${KEPT_KEY}\Settings" "AutoStart" 1
SectionEnd

; Last of all, when the settings are as they shall be.
Section "-end"
  ${IfNot} ${SectionIsSelected} ${SECTION_AUTOSTART}
    ReadRegStr $0 HKCU "${RUN_KEY}" "${RUN_VALUE}"
    ReadRegDWORD $1 HKCU "${KEPT_KEY}\Settings" "AutoStart"
    ${If} "$0$1" != "0"
    ${AndIf} "$0$1" != ""
      DeleteRegValue HKCU "${RUN_KEY}" "${RUN_VALUE}"
      WriteRegDWORD HKCU "${KEPT_KEY}\Settings" "AutoStart" 0
    ${EndIf}
  ${EndIf}
  ${If} $meter_ran == 1
    Exec '"${PROGRAM}"'
  ${EndIf}
SectionEnd

Function .onInstFailed
  ${If} $meter_ran == 1
    Exec '"${PROGRAM}"' ; what is left of the former one serves better than none
  ${EndIf}
FunctionEnd

; An upgrade leaves the start with Windows as it is, and so does an installation upon settings that
; were kept, unless one is told otherwise.
Function .onInit
  ReadRegStr $0 HKCU "${RUN_KEY}" "${RUN_VALUE}"
  ReadRegDWORD $1 HKCU "${KEPT_KEY}\Settings" "AutoStart"
  ${If} $0 != ""
  ${OrIf} $1 > 0
    !insertmacro SelectSection ${SECTION_AUTOSTART}
  ${EndIf}
  ${GetParameters} $0
  ${GetOptions} $0 "/AUTOSTART=" $1
  ${If} $1 == 1
    !insertmacro SelectSection ${SECTION_AUTOSTART}
  ${ElseIf} $1 == 0
    !insertmacro UnselectSection ${SECTION_AUTOSTART}
  ${EndIf}
FunctionEnd

; A meter that was started again needs no offer to start it.
Function FinishShown
  ${If} $meter_ran == 1
    SendMessage $mui.FinishPage.Run ${BM_SETCHECK} ${BST_UNCHECKED} 0
    ShowWindow $mui.FinishPage.Run ${SW_HIDE}
  ${EndIf}
FunctionEnd

Section "un.${PRODUCT}"
  SectionIn RO
  Call un.EndMeter
SectionEnd

Section /o "un.$(StatisticsAndSettings)" SECTION_SETTINGS
  StrCpy $remove_settings 1
  DeleteRegKey HKCU "${KEPT_KEY}"
  DeleteRegKey /ifempty HKCU "Software\Korvane"
  DeleteRegKey HKCU "${PLACES_KEY}"
  DeleteRegValue HKCU "${RUN_KEY}" "${RUN_VALUE}"
  Delete "$INSTDIR\WindowTitles.tit"
  Delete "$INSTDIR\err.log"
  Delete "$INSTDIR\err.old.log"
SectionEnd

Section "-un.files"
  !insertmacro ReadShippedTime
  !insertmacro ShippedFiles RemoveFile
  Delete "${PROGRAM}"
  Delete "$INSTDIR\uninstall.exe"
  Delete "${SHORTCUT}"
  ; Another copy of the program may be the one that starts with Windows.
  ReadRegStr $0 HKCU "${RUN_KEY}" "${RUN_VALUE}"
  ${If} $0 == "${PROGRAM}"
    DeleteRegValue HKCU "${RUN_KEY}" "${RUN_VALUE}"
  ${EndIf}
  DeleteRegKey HKCU "${UNINSTALL_KEY}"
  DeleteRegKey /ifempty HKCU "${APPS_KEY}" ; that and the folder of programs may not have been there
  SetOutPath "$TEMP" ; nobody removes the folder that he stands in
  !insertmacro ShippedFolders RemoveFolder
  RMDir "$INSTDIR"
  RMDir "$LOCALAPPDATA\Programs"
SectionEnd

Function un.onInit
  StrCpy $remove_settings 0
  ${GetParameters} $0
  ClearErrors
  ${GetOptions} $0 "/REMOVESETTINGS" $1
  ${IfNot} ${Errors}
    !insertmacro SelectSection ${SECTION_SETTINGS}
  ${EndIf}
FunctionEnd
