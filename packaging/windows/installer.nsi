; Installs for the user who runs it, without administrator rights. packaging/windows/make hands the !defines over.
Target amd64-unicode
Unicode true
SetCompressor /SOLID lzma
RequestExecutionLevel user
!include MUI2.nsh

!define PROGRAM "tessary.exe"
!define DOCUMENT "Tessary.Words"
!define CLASSES "Software\Classes"
!define UNINSTALL "Software\Microsoft\Windows\CurrentVersion\Uninstall\${DISPLAY_NAME}"

Name "${DISPLAY_NAME}"
OutFile "${OUT}"
!uninstfinalize 'cp "%1" "${UNINSTALLER}"' ; so that its size can be reported
; Files here belong to the user, so the program can write its log beside itself.
InstallDir "$LOCALAPPDATA\Programs\${DISPLAY_NAME}"
InstallDirRegKey HKCU "${UNINSTALL}" "InstallLocation"

VIProductVersion "${VERSION}.0"
VIAddVersionKey "ProductName" "${DISPLAY_NAME}"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "FileDescription" "${DISPLAY_NAME} setup"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "LegalCopyright" "The ${DISPLAY_NAME} authors"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_FINISHPAGE_RUN "$INSTDIR\${PROGRAM}"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

; Windows keeps the file of a running program: nothing is half replaced or half removed then.
!macro RemoveProgram
  ClearErrors
  Delete "$INSTDIR\${PROGRAM}"
  ${If} ${Errors}
    SetErrorLevel 2
    MessageBox MB_OK|MB_ICONSTOP "${DISPLAY_NAME} is running. Close its window and try again." /SD IDOK
    Quit
  ${EndIf}
!macroend

; The shell looks at file types again.
!macro TellShell
  System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)'
!macroend

Section
  !insertmacro RemoveProgram
  SetOutPath "$INSTDIR"
  File "${FILES}\${PROGRAM}"
  File "${FILES}\LICENCES.txt"
  WriteUninstaller "$INSTDIR\uninstall.exe"
  CreateShortcut "$SMPROGRAMS\${DISPLAY_NAME}.lnk" "$INSTDIR\${PROGRAM}"

  ; Windows goes by what follows the last dot, so this is for *.words.tessary as well.
  WriteRegStr HKCU "${CLASSES}\.tessary" "" "${DOCUMENT}"
  WriteRegStr HKCU "${CLASSES}\.tessary\OpenWithProgids" "${DOCUMENT}" ""
  WriteRegStr HKCU "${CLASSES}\${DOCUMENT}" "" "${DISPLAY_NAME} Words document"
  WriteRegStr HKCU "${CLASSES}\${DOCUMENT}\DefaultIcon" "" "$INSTDIR\${PROGRAM},0"
  WriteRegStr HKCU "${CLASSES}\${DOCUMENT}\shell\open\command" "" '"$INSTDIR\${PROGRAM}" "%1"'

  WriteRegStr HKCU "${UNINSTALL}" "DisplayName" "${DISPLAY_NAME}"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayIcon" "$INSTDIR\${PROGRAM},0"
  WriteRegStr HKCU "${UNINSTALL}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL}" "EstimatedSize" ${SIZE}
  WriteRegDWORD HKCU "${UNINSTALL}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL}" "NoRepair" 1
  !insertmacro TellShell
SectionEnd

Section Uninstall
  !insertmacro RemoveProgram
  Delete "$SMPROGRAMS\${DISPLAY_NAME}.lnk"
  ; Where the web-view library has the browser runtime keep its caches. Documents are never there.
  RMDir /r "$APPDATA\${PROGRAM}"

  ReadRegStr $0 HKCU "${CLASSES}\.tessary" ""
  ${If} $0 == "${DOCUMENT}"
    DeleteRegValue HKCU "${CLASSES}\.tessary" ""
  ${EndIf}
  DeleteRegValue HKCU "${CLASSES}\.tessary\OpenWithProgids" "${DOCUMENT}"
  DeleteRegKey /ifempty HKCU "${CLASSES}\.tessary\OpenWithProgids"
  DeleteRegKey /ifempty HKCU "${CLASSES}\.tessary"
  DeleteRegKey HKCU "${CLASSES}\${DOCUMENT}"
  DeleteRegKey HKCU "${UNINSTALL}"
  !insertmacro TellShell

  ; Last, so that who waits for the end of it all can wait for the folder's.
  Delete "$INSTDIR\debug.log"
  Delete "$INSTDIR\LICENCES.txt"
  Delete "$INSTDIR\uninstall.exe"
  RMDir "$INSTDIR"
SectionEnd
