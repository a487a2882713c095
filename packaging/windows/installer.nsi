; The installer for one person: it needs no administrator, and the documents are never its business.
; The program is for 64 bits, so this is too.
Target amd64-unicode
SetCompressor /SOLID lzma

!include MUI2.nsh
!include FileFunc.nsh

!define NAME "Tavrel Writer"
!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\${NAME}"

Name "${NAME}"
OutFile "${OUTPUT}"
RequestExecutionLevel user
InstallDir "$LOCALAPPDATA\Programs\${NAME}"
InstallDirRegKey HKCU "${UNINSTALL_KEY}" "InstallLocation"
ManifestDPIAware true
ManifestSupportedOS Win10

VIProductVersion "${VERSION}"
VIAddVersionKey "ProductName" "${NAME}"
VIAddVersionKey "FileDescription" "${NAME} setup"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "LegalCopyright" "MIT licence"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_FINISHPAGE_RUN "$INSTDIR\tavrel_writer.exe"
!insertmacro MUI_PAGE_WELCOME
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

BrandingText "${NAME} ${VERSION}"

; A program that runs cannot be replaced or removed. Nothing else is touched then.
!macro STOP_IF_RUNNING
  !define SECTION_ID ${__LINE__}
  IfFileExists "$INSTDIR\tavrel_writer.exe" 0 go_on_${SECTION_ID}
  ClearErrors
  FileOpen $0 "$INSTDIR\tavrel_writer.exe" a
  IfErrors 0 close_${SECTION_ID}
  MessageBox MB_OK|MB_ICONEXCLAMATION "${NAME} is running, or you may not change it. Close it and try again." /SD IDOK
  SetErrorLevel 2
  Quit
  close_${SECTION_ID}:
  FileClose $0
  go_on_${SECTION_ID}:
  !undef SECTION_ID
!macroend

Section "Install"
  !insertmacro STOP_IF_RUNNING
  SetOutPath "$INSTDIR"
  File "${PROGRAM}\tavrel_writer.exe"
  File "${PROGRAM}\tavrel-notes.exe"
  File "${PROGRAM}\Licence.txt"
  File "${PROGRAM}\Third parties.txt"
  File "${PROGRAM}\Notices.txt"
  File "${PROGRAM}\GNU LGPL 3.txt"
  File "${PROGRAM}\GNU GPL 3.txt"
  WriteUninstaller "$INSTDIR\Uninstall.exe"
  CreateShortcut "$SMPROGRAMS\${NAME}.lnk" "$INSTDIR\tavrel_writer.exe"

  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayName" "${NAME}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\tavrel_writer.exe"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "Publisher" "The Tavrel Writer developers"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\Uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\Uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoRepair" 1
  ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "EstimatedSize" $0
SectionEnd

; Only what was installed goes. A folder in which a person has put something stays with it.
Section "Uninstall"
  !insertmacro STOP_IF_RUNNING
  Delete "$INSTDIR\tavrel_writer.exe"
  Delete "$INSTDIR\tavrel-notes.exe"
  Delete "$INSTDIR\Licence.txt"
  Delete "$INSTDIR\Third parties.txt"
  Delete "$INSTDIR\Notices.txt"
  Delete "$INSTDIR\GNU LGPL 3.txt"
  Delete "$INSTDIR\GNU GPL 3.txt"
  Delete "$INSTDIR\Uninstall.exe"
  RMDir "$INSTDIR"
  Delete "$SMPROGRAMS\${NAME}.lnk"
  DeleteRegKey HKCU "${UNINSTALL_KEY}"
SectionEnd
