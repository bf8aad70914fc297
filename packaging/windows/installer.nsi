; The installer: for one user, who needs no administrator. `FOLDER` holds what is installed, the
; files `install.nsh` and `uninstall.nsh` list it, and `OUT` is what is made.
Target amd64-unicode
Unicode true
SetCompressor /SOLID lzma
SetDateSave off
RequestExecutionLevel user
ManifestDPIAware true

!define NAME "Tombrello"
!define KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\${NAME}"
Name "${NAME}"
OutFile "${OUT}"
InstallDir "$LOCALAPPDATA\Programs\${NAME}"
InstallDirRegKey HKCU "${KEY}" "InstallLocation"
VIProductVersion "${VERSION}.0"
VIAddVersionKey /LANG=1040 "ProductName" "${NAME}"
VIAddVersionKey /LANG=1040 "FileDescription" "${NAME}"
VIAddVersionKey /LANG=1040 "FileVersion" "${VERSION}"
VIAddVersionKey /LANG=1040 "LegalCopyright" ""

!include MUI2.nsh
!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_FINISHPAGE_RUN "$INSTDIR\Tombrello.exe"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "Italian"
!insertmacro MUI_LANGUAGE "English"

LangString ASK ${LANG_ITALIAN} "Cancellare anche le impostazioni, i nomi e l'ultima mano?"
LangString ASK ${LANG_ENGLISH} "Delete the settings, the names and the last deal too?"

Section
  SetOutPath "$INSTDIR"
  !include "${FOLDER}/../install.nsh"
  WriteUninstaller "$INSTDIR\Uninstall.exe"
  CreateShortcut "$SMPROGRAMS\${NAME}.lnk" "$INSTDIR\Tombrello.exe"
  WriteRegStr HKCU "${KEY}" "DisplayName" "${NAME}"
  WriteRegStr HKCU "${KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${KEY}" "DisplayIcon" "$INSTDIR\Tombrello.exe"
  WriteRegStr HKCU "${KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${KEY}" "UninstallString" '"$INSTDIR\Uninstall.exe"'
  WriteRegStr HKCU "${KEY}" "QuietUninstallString" '"$INSTDIR\Uninstall.exe" /S'
  WriteRegDWORD HKCU "${KEY}" "NoModify" 1
  WriteRegDWORD HKCU "${KEY}" "NoRepair" 1
SectionEnd

; Tunes that the player has put there stay, and so do the settings, unless asked.
Section "Uninstall"
  !include "${FOLDER}/../uninstall.nsh"
  Delete "$INSTDIR\Uninstall.exe"
  Delete "$SMPROGRAMS\${NAME}.lnk"
  DeleteRegKey HKCU "${KEY}"
  MessageBox MB_YESNO|MB_DEFBUTTON2 "$(ASK)" /SD IDNO IDNO kept
  Delete "$INSTDIR\config.zvq"
  Delete "$INSTDIR\Players"
  Delete "$APPDATA\Tombrello\config.zvq"
  Delete "$APPDATA\Tombrello\Players"
  RMDir "$APPDATA\Tombrello"
kept:
  RMDir "$INSTDIR"
SectionEnd
