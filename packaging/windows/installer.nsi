; SPDX-License-Identifier: MIT
; Installs Orrerix for one user, without any rights. makensis gets -DVERSION=1.2.3, -DFILES=FOLDER with
; what is to be installed, and -DOUTPUT=FILE. "/S" installs without questions.
; 64 bit, as the programs are.
Target amd64-unicode
SetCompressor lzma
RequestExecutionLevel user

!include MUI2.nsh
!include LogicLib.nsh

!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Orrerix"

Name "Orrerix ${VERSION}"
OutFile "${OUTPUT}"
InstallDir "$LOCALAPPDATA\Programs\Orrerix"
InstallDirRegKey HKCU "Software\Orrerix" "Folder"
BrandingText " "

VIProductVersion "${VERSION}.0"
VIAddVersionKey /LANG=0 "ProductName" "Orrerix"
VIAddVersionKey /LANG=0 "ProductVersion" "${VERSION}"
VIAddVersionKey /LANG=0 "FileDescription" "Orrerix Setup"
VIAddVersionKey /LANG=0 "FileVersion" "${VERSION}"
VIAddVersionKey /LANG=0 "LegalCopyright" "MIT licence"

!define MUI_ICON "orrerix.ico"
!define MUI_UNICON "orrerix.ico"
; A part of the star map with the program's icon, 164 by 314 pixels in 256 colours.
!define MUI_WELCOMEFINISHPAGE_BITMAP "installer.bmp"
; The language is asked for once: a newer version and the uninstaller take the same.
!define MUI_LANGDLL_REGISTRY_ROOT HKCU
!define MUI_LANGDLL_REGISTRY_KEY "Software\Orrerix"
!define MUI_LANGDLL_REGISTRY_VALUENAME "Language"
!define MUI_ABORTWARNING
!define MUI_FINISHPAGE_RUN "$INSTDIR\orrerix.exe"
!define MUI_COMPONENTSPAGE_NODESC

!insertmacro MUI_PAGE_COMPONENTS
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_COMPONENTS
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES

!insertmacro MUI_LANGUAGE "English"
!insertmacro MUI_LANGUAGE "German"
!insertmacro MUI_LANGUAGE "French"

LangString PROGRAM ${LANG_ENGLISH} "Program"
LangString PROGRAM ${LANG_GERMAN} "Programm"
LangString PROGRAM ${LANG_FRENCH} "Programme"
LangString DESKTOP_LINK ${LANG_ENGLISH} "Shortcut on the desktop"
LangString DESKTOP_LINK ${LANG_GERMAN} "Verknüpfung auf dem Desktop"
LangString DESKTOP_LINK ${LANG_FRENCH} "Raccourci sur le bureau"
LangString UNIVERSES ${LANG_ENGLISH} "Delete universe files, too"
LangString UNIVERSES ${LANG_GERMAN} "Auch die Universumsdateien löschen"
LangString UNIVERSES ${LANG_FRENCH} "Supprimer aussi les fichiers d'univers"
LangString IS_RUNNING ${LANG_ENGLISH} "Orrerix is running. Close it, then try again."
LangString IS_RUNNING ${LANG_GERMAN} "Orrerix läuft. Schließe es und versuche es noch einmal."
LangString IS_RUNNING ${LANG_FRENCH} "Orrerix est en cours d'exécution. Fermez-le, puis réessayez."
LangString CONSOLE_LINK ${LANG_ENGLISH} "Orrerix command line"
LangString CONSOLE_LINK ${LANG_GERMAN} "Orrerix Befehlszeile"
LangString CONSOLE_LINK ${LANG_FRENCH} "Orrerix ligne de commande"

; A running program cannot be replaced or deleted.
!macro REQUIRE_CLOSED
  ${If} ${FileExists} "$INSTDIR\orrerix.exe"
    ClearErrors
    FileOpen $0 "$INSTDIR\orrerix.exe" a
    ${If} ${Errors}
      MessageBox MB_OK|MB_ICONEXCLAMATION "$(IS_RUNNING)" /SD IDOK
      SetErrorLevel 2
      Quit
    ${EndIf}
    FileClose $0
  ${EndIf}
!macroend

!macro DELETE_PROGRAM FOLDER
  Delete "${FOLDER}\orrerix.exe"
  Delete "${FOLDER}\orrerix-cli.exe"
  Delete "${FOLDER}\orrerix-demo.exe"
  Delete "${FOLDER}\LICENSE.txt"
  RMDir /r "${FOLDER}\docs"
!macroend

Section "$(PROGRAM)" SectionProgram
  SectionIn RO
  !insertmacro REQUIRE_CLOSED
  !insertmacro DELETE_PROGRAM "$INSTDIR"
  SetOutPath "$INSTDIR"
  File /r "${FILES}/*"
  WriteUninstaller "$INSTDIR\uninstall.exe"
  ; Shortcuts of an earlier installation may have names in another language.
  RMDir /r "$SMPROGRAMS\Orrerix"
  CreateDirectory "$SMPROGRAMS\Orrerix"
  CreateShortcut "$SMPROGRAMS\Orrerix\Orrerix.lnk" "$INSTDIR\orrerix.exe"
  CreateShortcut "$SMPROGRAMS\Orrerix\$(CONSOLE_LINK).lnk" "$SYSDIR\cmd.exe" '/k "cd /d $INSTDIR && orrerix-cli --help"'
  WriteRegStr HKCU "Software\Orrerix" "Folder" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayName" "Orrerix"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\orrerix.exe"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoRepair" 1
SectionEnd

Section /o "$(DESKTOP_LINK)" SectionDesktop
  CreateShortcut "$DESKTOP\Orrerix.lnk" "$INSTDIR\orrerix.exe"
SectionEnd

Section "un.$(PROGRAM)" UninstallProgram
  SectionIn RO
  !insertmacro REQUIRE_CLOSED
  !insertmacro DELETE_PROGRAM "$INSTDIR"
  ; What the program writes beside itself.
  Delete "$INSTDIR\FLOX-Settings.mdb"
  Delete "$INSTDIR\FLOX-Language.mdb"
  Delete "$INSTDIR\Orrerix-Tools.ini"
  Delete "$INSTDIR\uninstall.exe"
  RMDir "$INSTDIR"
  RMDir /r "$SMPROGRAMS\Orrerix"
  Delete "$DESKTOP\Orrerix.lnk"
  DeleteRegKey HKCU "${UNINSTALL_KEY}"
  DeleteRegKey HKCU "Software\Orrerix"
SectionEnd

Section /o "un.$(UNIVERSES)" UninstallUniverses
  StrCpy $0 "$DOCUMENTS\My Games\Freelancer\Accts\SinglePlayer"
  Delete "$0\Orrerix.fl"
  Delete "$0\Orrerix.fl.game"
  Delete "$0\Orrerix.fl.log"
  RMDir /r "$0\Orrerix Games"
SectionEnd

Function .onInit
  !insertmacro MUI_LANGDLL_DISPLAY
FunctionEnd

Function un.onInit
  !insertmacro MUI_UNGETLANGUAGE
FunctionEnd
