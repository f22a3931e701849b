; The installer: for one user, without administrator's rights, and with an uninstaller that leaves nothing behind but
; the user's own sheets. Defined by the build: NAME, VERSION, SITE, FILES (the folder of the files), OUTPUT, TARGET (the
; kind of the installer itself).

Target ${TARGET}
Unicode true
RequestExecutionLevel user
ManifestDPIAware true
SetCompressor /SOLID lzma

Name "${NAME} ${VERSION}"
OutFile "${OUTPUT}"
InstallDir "$LOCALAPPDATA\Programs\${NAME}"
InstallDirRegKey HKCU "Software\Microsoft\Windows\CurrentVersion\Uninstall\${NAME}" "InstallLocation"
Icon "${ICON}"
UninstallIcon "${ICON}"
VIProductVersion "${VERSION}.0.0"
VIAddVersionKey "ProductName" "${NAME}"
VIAddVersionKey "FileDescription" "${NAME} ${VERSION} setup"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "LegalCopyright" "${SITE}"

!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\${NAME}"

Page directory
Page instfiles
UninstPage uninstConfirm
UninstPage instfiles

; A program that runs can be neither replaced nor removed, and would write its settings again when it ends.
!macro WAIT_FOR_END
again:
    FindWindow $0 "${NAME} ${VERSION} - ${SITE}" ; its window's class
    StrCmp $0 0 ended
    MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "${NAME} is running. Please end it, then try again." /SD IDCANCEL IDRETRY again
    SetErrorLevel 2
    Quit
ended:
!macroend

Function .onInit
    !insertmacro WAIT_FOR_END
FunctionEnd

Function un.onInit
    !insertmacro WAIT_FOR_END
FunctionEnd

Section
    SetOutPath "$INSTDIR"
    File "${FILES}\*.*"
    WriteUninstaller "$INSTDIR\Uninstall.exe"

    ; Started from the menu, the program has its default sheet among the user's documents.
    SetOutPath "$DOCUMENTS"
    CreateShortcut "$SMPROGRAMS\${NAME}.lnk" "$INSTDIR\${NAME}.exe"

    WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayName" "${NAME} ${VERSION}"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "Publisher" "${SITE}"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\${NAME}.exe"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\Uninstall.exe"'
    WriteRegStr HKCU "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\Uninstall.exe" /S'
    WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoModify" 1
    WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoRepair" 1
SectionEnd

Section "Uninstall"
    ; Each file by its name: a folder that the user chose may hold files of the user's.
    Delete "$INSTDIR\${NAME}.exe"
    Delete "$INSTDIR\calq.exe"
    Delete "$INSTDIR\${NAME}2.chm"
    Delete "$INSTDIR\README.txt"
    Delete "$INSTDIR\LICENSE.txt"
    Delete "$INSTDIR\THIRD_PARTY.txt"
    Delete "$INSTDIR\Uninstall.exe"
    RMDir "$INSTDIR"
    RMDir "$LOCALAPPDATA\Programs" ; where nothing else stands in it
    Delete "$SMPROGRAMS\${NAME}.lnk"

    DeleteRegKey HKCU "${UNINSTALL_KEY}"
    ; The settings of this version, and the keys above them that are empty then.
    DeleteRegKey HKCU "Software\${SITE}\${NAME}\${VERSION}"
    DeleteRegKey /ifempty HKCU "Software\${SITE}\${NAME}"
    DeleteRegKey /ifempty HKCU "Software\${SITE}"
SectionEnd
