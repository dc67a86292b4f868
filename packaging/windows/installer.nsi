; The installer: for the user who runs it, without an administrator. packaging/windows/build.sh passes
;   VERSION  of the program
;   FOLDER   what is installed
;   OUTPUT   the file to write
;   FILELIST the commands that remove it again, file by file: nothing else that lies there is touched
;   SIZE     of the folder, kB
Unicode true
Target amd64-unicode
ManifestDPIAware true
SetCompressor /SOLID lzma

!include MUI2.nsh
!include FileFunc.nsh
!include x64.nsh

Name "Tarnvik ${VERSION}"
OutFile "${OUTPUT}"
RequestExecutionLevel user
InstallDir "$LOCALAPPDATA\Programs\Tarnvik"
InstallDirRegKey HKCU "Software\Tarnvik" "Folder"
BrandingText " "

VIProductVersion "${VERSION}.0"
VIAddVersionKey ProductName "Tarnvik"
VIAddVersionKey ProductVersion "${VERSION}"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey FileDescription "Tarnvik"
VIAddVersionKey LegalCopyright "2026 Tarnvik developers"

!define MUI_ICON tarnvik.ico
!define MUI_UNICON tarnvik.ico
!define MUI_ABORTWARNING
!define MUI_LANGDLL_REGISTRY_ROOT HKCU
!define MUI_LANGDLL_REGISTRY_KEY "Software\Tarnvik"
!define MUI_LANGDLL_REGISTRY_VALUENAME "Language"
!define MUI_FINISHPAGE_RUN "$INSTDIR\tarnvik.exe"

!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE English
!insertmacro MUI_LANGUAGE Norwegian
!insertmacro MUI_RESERVEFILE_LANGDLL

LangString project ${LANG_ENGLISH} "Tarnvik project"
LangString project ${LANG_NORWEGIAN} "Tarnvik-prosjekt"
LangString description ${LANG_ENGLISH} "Bolted timber connections to EN 1995-1-1"
LangString description ${LANG_NORWEGIAN} "Boltede treforbindelser etter EN 1995-1-1"
LangString runs ${LANG_ENGLISH} "Tarnvik is running. Please end it first."
LangString runs ${LANG_NORWEGIAN} "Tarnvik kjører. Avslutt programmet først."
LangString old ${LANG_ENGLISH} "Tarnvik needs 64-bit Windows 10 or later."
LangString old ${LANG_NORWEGIAN} "Tarnvik trenger 64-bits Windows 10 eller nyere."

!define UNINSTALL "Software\Microsoft\Windows\CurrentVersion\Uninstall\Tarnvik"
!define CLASSES "Software\Classes"

; A program that runs cannot be written over: its file says so.
!macro STOP_WHERE_IT_RUNS
  IfFileExists "$INSTDIR\tarnvik.exe" 0 free
  ClearErrors
  FileOpen $0 "$INSTDIR\tarnvik.exe" a
  IfErrors 0 not_running
    MessageBox MB_OK|MB_ICONEXCLAMATION "$(runs)" /SD IDOK
    SetErrorLevel 3
    Quit
  not_running:
  FileClose $0
  free:
!macroend

Function .onInit
  ${IfNot} ${RunningX64}
    MessageBox MB_OK|MB_ICONSTOP "$(old)" /SD IDOK
    SetErrorLevel 2
    Quit
  ${EndIf}
  !insertmacro MUI_LANGDLL_DISPLAY
FunctionEnd

Function un.onInit
  !insertmacro MUI_UNGETLANGUAGE
FunctionEnd

Section
  !insertmacro STOP_WHERE_IT_RUNS
  SetOutPath "$INSTDIR"
  File /r "${FOLDER}/*"
  WriteUninstaller "$INSTDIR\uninstall.exe"

  SetOutPath "$DOCUMENTS" ; where the program starts, and so looks for projects
  CreateShortCut "$SMPROGRAMS\Tarnvik.lnk" "$INSTDIR\tarnvik.exe" "" "" "" SW_SHOWNORMAL "" "$(description)"

  WriteRegStr HKCU "Software\Tarnvik" "Folder" "$INSTDIR"
  WriteRegStr HKCU "${CLASSES}\Tarnvik.Project" "" "$(project)"
  WriteRegStr HKCU "${CLASSES}\Tarnvik.Project\DefaultIcon" "" "$INSTDIR\tarnvik.exe,0"
  WriteRegStr HKCU "${CLASSES}\Tarnvik.Project\shell\open\command" "" '"$INSTDIR\tarnvik.exe" "%1"'
  WriteRegStr HKCU "${CLASSES}\.tnvik" "" "Tarnvik.Project"

  WriteRegStr HKCU "${UNINSTALL}" "DisplayName" "Tarnvik"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL}" "Publisher" "Tarnvik developers"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayIcon" "$INSTDIR\tarnvik.exe,0"
  WriteRegStr HKCU "${UNINSTALL}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL}" "EstimatedSize" ${SIZE}
  WriteRegDWORD HKCU "${UNINSTALL}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL}" "NoRepair" 1
  ${RefreshShellIcons}
SectionEnd

; The user's own stay: projects, and the tables and recovery files in %LOCALAPPDATA%\tarnvik.
Section Uninstall
  !insertmacro STOP_WHERE_IT_RUNS
  !include "${FILELIST}"
  Delete "$INSTDIR\uninstall.exe"
  RMDir "$INSTDIR"
  Delete "$SMPROGRAMS\Tarnvik.lnk"

  ReadRegStr $0 HKCU "${CLASSES}\.tnvik" ""
  StrCmp $0 "Tarnvik.Project" 0 +2
    DeleteRegValue HKCU "${CLASSES}\.tnvik" ""
  DeleteRegKey /ifempty HKCU "${CLASSES}\.tnvik"
  DeleteRegKey HKCU "${CLASSES}\Tarnvik.Project"
  DeleteRegKey HKCU "${UNINSTALL}"
  DeleteRegKey HKCU "Software\Tarnvik"
  DeleteRegKey HKCU "Software\Tarn-Vik"
  ${RefreshShellIcons}
SectionEnd
