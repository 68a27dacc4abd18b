; The installer. build.sh gives VERSION, SOURCE (the folder with all files), OUTPUT, the size and
; two lists that it makes from SOURCE: what to remove again, file by file and folder by folder.
;
;   setup.exe [/S] [/CurrentUser | /AllUsers] [/D=FOLDER]     /S asks and shows nothing
;   Uninstall.exe [/S]

Target amd64-unicode
SetCompressor /SOLID lzma
ManifestDPIAware true
ManifestSupportedOS Win10

!define MULTIUSER_EXECUTIONLEVEL Highest
!define MULTIUSER_MUI
!define MULTIUSER_INSTALLMODE_COMMANDLINE
!define MULTIUSER_USE_PROGRAMFILES64
!define MULTIUSER_INSTALLMODE_INSTDIR "Orravane"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Orravane"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_VALUENAME "InstallLocation"
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_KEY "${MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_KEY}"
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_VALUENAME "UninstallString"
!include MultiUser.nsh
!include MUI2.nsh

Name "Orravane"
OutFile "${OUTPUT}"
BrandingText "Orravane ${VERSION}"
VIProductVersion "${VERSION}.0"
VIAddVersionKey ProductName "Orravane"
VIAddVersionKey ProductVersion "${VERSION}"
VIAddVersionKey FileDescription "Installs Orravane"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey LegalCopyright "Orravane maintainers"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!insertmacro MULTIUSER_PAGE_INSTALLMODE
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!define MUI_FINISHPAGE_RUN "$INSTDIR\orravane.exe"
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

!define UNINSTALL_KEY "${MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_KEY}"

; A program that runs cannot be replaced nor removed.
!macro REFUSE_WHILE_RUNNING
  IfFileExists "$INSTDIR\orravane.exe" 0 notRunning
  retry:
  ClearErrors
  FileOpen $0 "$INSTDIR\orravane.exe" a
  IfErrors 0 closed
  MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "Orravane is running. Close it first." /SD IDCANCEL IDRETRY retry
  SetErrorLevel 2
  Quit
  closed:
  FileClose $0
  notRunning:
!macroend

Function .onInit
  !insertmacro MULTIUSER_INIT
FunctionEnd

Function un.onInit
  !insertmacro MULTIUSER_UNINIT
FunctionEnd

Section
  !insertmacro REFUSE_WHILE_RUNNING
  SetOutPath "$INSTDIR"
  ClearErrors
  File /r "${SOURCE}/*"
  IfErrors 0 +3
  SetErrorLevel 3
  Abort "The files could not be written."
  WriteUninstaller "$INSTDIR\Uninstall.exe"
  CreateShortCut "$SMPROGRAMS\Orravane.lnk" "$INSTDIR\orravane.exe" "" "" "" SW_SHOWNORMAL "" "Numerology reports"
  CreateShortCut "$SMPROGRAMS\Orravane Document.lnk" "$INSTDIR\orravane-document.exe" "" "" "" SW_SHOWNORMAL "" "Numerology documents"

  WriteRegStr SHCTX "${UNINSTALL_KEY}" "DisplayName" "Orravane"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\orravane.exe"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "Publisher" "Orravane maintainers"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\Uninstall.exe" /$MultiUser.InstallMode'
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\Uninstall.exe" /$MultiUser.InstallMode /S'
  WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "EstimatedSize" ${SIZE}
  WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "NoModify" 1
  WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "NoRepair" 1
SectionEnd

Section "Uninstall"
  !insertmacro REFUSE_WHILE_RUNNING
  ; Only what was installed: the folder can hold files of the user.
  !include "${REMOVE}"
  Delete "$INSTDIR\Uninstall.exe"
  RMDir "$INSTDIR"
  Delete "$SMPROGRAMS\Orravane.lnk"
  Delete "$SMPROGRAMS\Orravane Document.lnk"
  DeleteRegKey SHCTX "${UNINSTALL_KEY}"

  ; What the program has kept for this user: the day of the update question, and its locks.
  SetShellVarContext current
  DeleteRegKey HKCU "Software\orravane\orravane"
  DeleteRegKey /ifempty HKCU "Software\orravane"
  Delete "$LOCALAPPDATA\orravane\orravane\instance.lock"
  RMDir "$LOCALAPPDATA\orravane\orravane"
  RMDir "$LOCALAPPDATA\orravane"
  Delete "$TEMP\orravane-*.lock"
SectionEnd
