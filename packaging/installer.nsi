; The setup: for one user, without administrator's rights, with an uninstaller that leaves nothing but the user's own
; sheets. Setting up again repairs, and a later version takes the place and the settings of an earlier one.
; Defined by the build: NAME, VERSION, SERIES (2.0 for 2.0.1: the versions that share their settings), SITE, FILES (the
; folder of the files), OUTPUT, TARGET (the kind of the setup itself), ICON.
; Silent: /S; with it /D=FOLDER (the last one), /COMMA=1 or 0 for the decimal mark, /PATH=1 or 0 for calq.
; Exit status: 0 done, 1 cancelled, 2 Calquo or calq is running, 3 files could not be written.

Target ${TARGET}
Unicode true
RequestExecutionLevel user
ManifestDPIAware true
SetCompressor /SOLID lzma

!include MUI2.nsh
!include nsDialogs.nsh
!include LogicLib.nsh
!include FileFunc.nsh
!include WordFunc.nsh

!define RUNNING_STATUS 2
!define WRITING_STATUS 3
!define PROGRAMS_KEY "Software\Microsoft\Windows\CurrentVersion"
!define UNINSTALL_KEY "${PROGRAMS_KEY}\Uninstall\${NAME}"
!define APPLICATION_KEY "${PROGRAMS_KEY}\App Paths\${NAME}.exe"
!define SETTINGS_KEY "Software\${SITE}\${NAME}" ; with a key below for each series
!define KEPT_SHEETS "$LOCALAPPDATA\${SITE}\${NAME}\Kept Sheets"
!define INCOMING "$INSTDIR\Setup files" ; complete there before they take the old ones' places
!define REGISTRY_OF_USER -2147483647 ; HKEY_CURRENT_USER

Name "${NAME} ${VERSION}"
OutFile "${OUTPUT}"
InstallDir "$LOCALAPPDATA\Programs\${NAME}"
InstallDirRegKey HKCU "${UNINSTALL_KEY}" "InstallLocation"
VIProductVersion "${VERSION}.0"
VIAddVersionKey "ProductName" "${NAME}"
VIAddVersionKey "FileDescription" "${NAME} ${VERSION} setup"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "CompanyName" "${SITE}"
VIAddVersionKey "LegalCopyright" "Copyright the ${NAME} developers, MIT License"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_FINISHPAGE_RUN
!define MUI_FINISHPAGE_RUN_TEXT "&Start ${NAME}"
!define MUI_FINISHPAGE_RUN_FUNCTION startProgram
!define MUI_PAGE_CUSTOMFUNCTION_LEAVE refuseWhileRunning
!insertmacro MUI_PAGE_DIRECTORY
Page custom showChoices keepChoices
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!define MUI_PAGE_CUSTOMFUNCTION_LEAVE un.refuseWhileRunning
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

Var PreviousFolder ; where the program is installed by now, or empty
Var SettingsFrom   ; the series whose settings hold: this one, else the latest earlier one, else empty
Var Comma          ; 1 for the decimal comma, 0 for the point, empty to leave it
Var WasOnPath      ; 1 where the setup has put calq on the user's path by now
Var OnPath         ; 1 to have it there, 0 not to
Var CommaButton
Var PathBox

; Each file by its name: a folder that the user chose may hold files of the user's.
!macro FOR_EACH_FILE action
    !insertmacro ${action} "${NAME}.exe"
    !insertmacro ${action} "calq.exe"
    !insertmacro ${action} "${NAME}2.chm"
    !insertmacro ${action} "README.txt"
    !insertmacro ${action} "LICENSE.txt"
    !insertmacro ${action} "THIRD_PARTY.txt"
    !insertmacro ${action} "Uninstall.exe"
!macroend

; A folder of this name would not be ours to move; it makes the last step fail.
!macro PUT_IN_PLACE file
    ${If} ${FileExists} "$INSTDIR\${file}"
    ${AndIfNot} ${FileExists} "$INSTDIR\${file}\*.*"
        Rename "$INSTDIR\${file}" "${INCOMING}\${file}.old"
    ${EndIf}
    Rename "${INCOMING}\${file}" "$INSTDIR\${file}"
!macroend

!macro PUT_BACK file
    ${IfNot} ${FileExists} "${INCOMING}\${file}"
        Delete "$INSTDIR\${file}"
    ${EndIf}
    ${If} ${FileExists} "${INCOMING}\${file}.old"
        Rename "${INCOMING}\${file}.old" "$INSTDIR\${file}"
    ${EndIf}
!macroend

!macro DELETE_FROM_R0 file
    Delete "$R0\${file}"
!macroend

; Removes the programs from the folder $R0, and it and the folder of all programs where nothing else stands in them.
!macro DELETE_PROGRAMS
    !insertmacro FOR_EACH_FILE DELETE_FROM_R0
    RMDir "$R0"
    RMDir "$LOCALAPPDATA\Programs"
!macroend

; What both the setup and the uninstaller do; the names of the latter's functions begin with "un.".
!macro SHARED_FUNCTIONS un

; Returns $0: the program that runs in this session of the system, of any version and from any folder, or nothing.
; An entry of the system's list holds the process's number at offset 8, and its file's name after 9 fields, of which
; one is a pointer.
Function ${un}findRunning
    !if "${TARGET}" == "amd64-unicode"
        !define ENTRY_SIZE 568
        !define NAME_PLACE 44
    !else
        !define ENTRY_SIZE 556
        !define NAME_PLACE 36
    !endif
    StrCpy $0 ""
    System::Call 'kernel32::GetCurrentProcessId() i .r1'
    System::Call 'kernel32::ProcessIdToSessionId(i r1, *i .r5)'
    System::Call 'kernel32::CreateToolhelp32Snapshot(i 2, i 0) p .r1'
    System::Alloc ${ENTRY_SIZE}
    Pop $2
    System::Call '*$2(i ${ENTRY_SIZE})'
    System::Call 'kernel32::Process32FirstW(p r1, p r2) i .r3'
    ${While} $3 <> 0
        IntPtrOp $3 $2 + ${NAME_PLACE}
        System::Call 'kernel32::lstrcpynW(w .r4, p r3, i 260) p'
        ${If} $4 == "${NAME}.exe"
        ${OrIf} $4 == "calq.exe"
            IntPtrOp $3 $2 + 8
            System::Call '*$3(i .r3)'
            System::Call 'kernel32::ProcessIdToSessionId(i r3, *i .r6)'
            ${If} $6 = $5
                StrCpy $0 $4 -4
            ${EndIf}
        ${EndIf}
        System::Call 'kernel32::Process32NextW(p r1, p r2) i .r3'
    ${EndWhile}
    System::Free $2
    System::Call 'kernel32::CloseHandle(p r1)'
    !undef ENTRY_SIZE
    !undef NAME_PLACE
FunctionEnd

; A program that runs can be neither replaced nor removed, and would write its settings again when it ends.
Function ${un}refuseWhileRunning
    ${Do}
        Call ${un}findRunning
        ${If} $0 == ""
            Return
        ${EndIf}
        MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$0 is running. Please end it, then try again." /SD IDCANCEL IDRETRY +3
            SetErrorLevel ${RUNNING_STATUS}
            Quit
    ${Loop}
FunctionEnd

; Takes the folder $R1 off the user's path, and puts the folder $R2 there, where they are not empty. Works in memory of
; the path's own length, since it may be longer than a variable of this language. Returns $0: 1 if $R1 was there.
Function ${un}changePath
    StrCpy $R9 0
    System::Call 'advapi32::RegCreateKeyExW(p ${REGISTRY_OF_USER}, w "Environment", i 0, p 0, i 0, i 0x2001F, p 0, *p .r1, p 0) i .r0'
    ${If} $0 <> 0
        Return
    ${EndIf}
    StrCpy $2 0 ; its length in bytes
    StrCpy $3 2 ; its type: one that may name other variables
    System::Call 'advapi32::RegQueryValueExW(p r1, w "Path", p 0, *i .r3, p 0, *i .r2) i .r0'
    IntOp $4 $2 + 4096
    System::Alloc $4
    Pop $5
    ; Framed in semicolons, each folder looks the same.
    System::Call 'kernel32::lstrcatW(p r5, w ";") p'
    IntPtrOp $6 $5 + 2
    ${If} $2 > 2
        System::Call 'advapi32::RegQueryValueExW(p r1, w "Path", p 0, p 0, p r6, *i r2) i .r0'
        System::Call 'kernel32::lstrcatW(p r5, w ";") p'
    ${Else}
        StrCpy $3 2
        StrCpy $0 0
    ${EndIf}
    ${If} $0 = 0
        StrCpy $7 ";$R1;"
        StrLen $8 $R1
        IntOp $8 $8 * 2
        IntOp $8 $8 + 2
        ${Do}
            System::Call 'shlwapi::StrStrIW(p r5, w r7) p .r4'
            ${If} $4 P= 0
            ${OrIf} $R1 == ""
                ${Break}
            ${EndIf}
            StrCpy $R9 1
            IntPtrOp $9 $4 + $8
            System::Call 'kernel32::lstrlenW(p r9) i .r0'
            IntOp $0 $0 * 2
            IntOp $0 $0 + 2
            System::Call 'kernel32::RtlMoveMemory(p r4, p r9, p r0)'
        ${Loop}
        ${If} $R2 != ""
            StrCpy $7 "$R2;"
            System::Call 'kernel32::lstrcatW(p r5, w r7) p'
        ${EndIf}
        ${If} $R9 = 1
        ${OrIf} $R2 != ""
            ; Without the frame again.
            System::Call 'kernel32::lstrlenW(p r5) i .r0'
            IntOp $0 $0 - 1
            ${If} $0 > 0
                IntOp $4 $0 * 2
                IntPtrOp $4 $5 + $4
                System::Call '*$4(&i2 0)'
                IntOp $0 $0 * 2
                System::Call 'advapi32::RegSetValueExW(p r1, w "Path", i 0, i r3, p r6, i r0) i .r0'
            ${Else}
                System::Call 'advapi32::RegDeleteValueW(p r1, w "Path") i .r0'
            ${EndIf}
            SendMessage ${HWND_BROADCAST} ${WM_SETTINGCHANGE} 0 "STR:Environment" /TIMEOUT=2000
        ${EndIf}
    ${EndIf}
    System::Free $5
    System::Call 'advapi32::RegCloseKey(p r1)'
    StrCpy $0 $R9
FunctionEnd

!macroend
!insertmacro SHARED_FUNCTIONS ""
!insertmacro SHARED_FUNCTIONS "un."

; Finds $SettingsFrom.
Function findSettings
    StrCpy $SettingsFrom ""
    StrCpy $1 0
    ${Do}
        EnumRegKey $2 HKCU "${SETTINGS_KEY}" $1
        ${If} $2 == ""
            ${Break}
        ${EndIf}
        IntOp $1 $1 + 1
        ${VersionCompare} $2 ${SERIES} $3 ; 1: later, 2: earlier
        ${If} $3 <> 1
            ${VersionCompare} $2 "0$SettingsFrom" $3
            ${If} $3 = 1
                StrCpy $SettingsFrom $2
            ${EndIf}
        ${EndIf}
    ${Loop}
FunctionEnd

Function .onInit
    Call refuseWhileRunning
    ReadRegStr $PreviousFolder HKCU "${UNINSTALL_KEY}" "InstallLocation"
    Call findSettings

    StrCpy $Comma ""
    ReadRegDWORD $WasOnPath HKCU "${UNINSTALL_KEY}" "OnPath"
    StrCpy $OnPath $WasOnPath
    ${GetParameters} $0
    ClearErrors
    ${GetOptions} $0 "/COMMA=" $1
    ${IfNot} ${Errors}
        StrCpy $Comma $1
    ${EndIf}
    ClearErrors
    ${GetOptions} $0 "/PATH=" $1
    ${IfNot} ${Errors}
        StrCpy $OnPath $1
    ${EndIf}
FunctionEnd

; The page of choices: what the settings say by now, or for a new user what the system's do.
Function showChoices
    !insertmacro MUI_HEADER_TEXT "Choose how you write" "You can run this setup again to change it."
    ${If} $Comma == ""
        ReadRegStr $0 HKCU "${SETTINGS_KEY}\$SettingsFrom" "Decimal Mark"
        ${If} $SettingsFrom == ""
            ReadRegStr $0 HKCU "Control Panel\International" "sDecimal"
        ${EndIf}
        StrCpy $Comma 0
        ${If} $0 == ","
            StrCpy $Comma 1
        ${EndIf}
    ${EndIf}
    nsDialogs::Create 1018
    Pop $0
    ${NSD_CreateLabel} 0 0 100% 12u "In numbers, ${NAME} is to read and write"
    Pop $0
    ${NSD_CreateRadioButton} 8u 16u 90% 12u "a decimal &point: 1,234.5"
    Pop $0
    ${NSD_CreateRadioButton} 8u 32u 90% 12u "a decimal &comma: 1.234,5"
    Pop $CommaButton
    ${If} $Comma = 1
        ${NSD_Check} $CommaButton
    ${Else}
        ${NSD_Check} $0
    ${EndIf}
    ${NSD_CreateLabel} 8u 48u 95% 20u "Items of lists have a semicolon between them in either case. The help uses the point."
    Pop $0
    ${NSD_CreateCheckBox} 0 80u 100% 12u "Find calq, the console program, from &every folder (puts it on your PATH)"
    Pop $PathBox
    ${If} $OnPath = 1
        ${NSD_Check} $PathBox
    ${EndIf}
    nsDialogs::Show
FunctionEnd

Function keepChoices
    Call refuseWhileRunning
    ${NSD_GetState} $CommaButton $Comma
    ${NSD_GetState} $PathBox $OnPath
FunctionEnd

; Started here or from the menu, the program has its default sheet among the user's documents.
Function startProgram
    SetOutPath "$DOCUMENTS"
    Exec '"$INSTDIR\${NAME}.exe"'
FunctionEnd

; Leaves what was there before.
Function failWriting
    SetOutPath "$TEMP"
    RMDir /r "${INCOMING}"
    RMDir "$INSTDIR"
    MessageBox MB_OK|MB_ICONSTOP "${NAME} ${VERSION} could not be written to $INSTDIR. Nothing has changed there." /SD IDOK
    SetErrorLevel ${WRITING_STATUS}
    Quit
FunctionEnd

; The system's own message about a full disk has been shown by then.
Function .onInstFailed
    RMDir /r "${INCOMING}"
    SetErrorLevel ${WRITING_STATUS}
FunctionEnd

Section "" programs
    Call refuseWhileRunning
    SetOverwrite try
    RMDir /r "${INCOMING}"
    ClearErrors
    SetOutPath "${INCOMING}"
    File "${FILES}\*.*"
    WriteUninstaller "${INCOMING}\Uninstall.exe"
    ${If} ${Errors}
        Call failWriting
    ${EndIf}
    SetOutPath "$INSTDIR"
    ClearErrors
    !insertmacro FOR_EACH_FILE PUT_IN_PLACE
    ${If} ${Errors}
        !insertmacro FOR_EACH_FILE PUT_BACK
        Call failWriting
    ${EndIf}
    RMDir /r "${INCOMING}"

    ${If} $PreviousFolder != ""
    ${AndIf} $PreviousFolder != $INSTDIR
        StrCpy $R0 $PreviousFolder
        !insertmacro DELETE_PROGRAMS
    ${EndIf}

    SetOutPath "$DOCUMENTS"
    CreateShortcut "$SMPROGRAMS\${NAME}.lnk" "$INSTDIR\${NAME}.exe"
    WriteRegStr HKCU "${APPLICATION_KEY}" "" "$INSTDIR\${NAME}.exe"

    WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayName" "${NAME} ${VERSION}"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "Publisher" "${SITE}"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "URLInfoAbout" "https://${SITE}/"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\${NAME}.exe"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\Uninstall.exe"'
    WriteRegStr HKCU "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\Uninstall.exe" /S'
    SectionGetSize ${programs} $0
    WriteRegDWORD HKCU "${UNINSTALL_KEY}" "EstimatedSize" $0 ; in units of 1024 bytes
    WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoModify" 1
    WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoRepair" 1

    StrCpy $R1 ""
    StrCpy $R2 ""
    ${If} $WasOnPath = 1
        StrCpy $R1 $PreviousFolder
    ${EndIf}
    ${If} $OnPath = 1
        StrCpy $R2 $INSTDIR
    ${EndIf}
    ${If} $R1 != $R2
        Call changePath
    ${EndIf}
    WriteRegDWORD HKCU "${UNINSTALL_KEY}" "OnPath" $OnPath

    ${If} $SettingsFrom != ""
    ${AndIf} $SettingsFrom != ${SERIES}
        System::Call 'advapi32::RegCreateKeyW(p ${REGISTRY_OF_USER}, w "${SETTINGS_KEY}\${SERIES}", *p .r1) i .r0'
        System::Call 'advapi32::RegCopyTreeW(p ${REGISTRY_OF_USER}, w "${SETTINGS_KEY}\$SettingsFrom", p r1) i .r0'
        System::Call 'advapi32::RegCloseKey(p r1)'
    ${EndIf}
    ; Marks that the user has set to others by hand stay where the choice agrees with them.
    ReadRegStr $0 HKCU "${SETTINGS_KEY}\${SERIES}" "Decimal Mark"
    ${If} $Comma == 1
    ${AndIf} $0 != ","
        WriteRegStr HKCU "${SETTINGS_KEY}\${SERIES}" "Decimal Mark" ","
        WriteRegStr HKCU "${SETTINGS_KEY}\${SERIES}" "Group Mark" "."
    ${ElseIf} $Comma == 0
    ${AndIf} $0 == ","
        WriteRegStr HKCU "${SETTINGS_KEY}\${SERIES}" "Decimal Mark" "."
        WriteRegStr HKCU "${SETTINGS_KEY}\${SERIES}" "Group Mark" ","
    ${EndIf}
SectionEnd

Function un.onInit
    Call un.refuseWhileRunning
FunctionEnd

Section "Uninstall"
    Call un.refuseWhileRunning
    StrCpy $R0 $INSTDIR
    !insertmacro DELETE_PROGRAMS
    Delete "$SMPROGRAMS\${NAME}.lnk"
    StrCpy $R1 $INSTDIR
    StrCpy $R2 ""
    Call un.changePath
    DeleteRegKey HKCU "${APPLICATION_KEY}"
    DeleteRegKey HKCU "${UNINSTALL_KEY}"
    ; The settings of all versions, and the key above them where it is empty then.
    DeleteRegKey HKCU "${SETTINGS_KEY}"
    DeleteRegKey /ifempty HKCU "Software\${SITE}"

    Delete "${KEPT_SHEETS}\Kept file name.txt" ; what the next start would have told of
    RMDir "${KEPT_SHEETS}" ; where it is empty
    ${If} ${FileExists} "${KEPT_SHEETS}\*.*"
        MessageBox MB_YESNO|MB_ICONQUESTION|MB_DEFBUTTON2 "${NAME} has kept sheets that you have not saved, in ${KEPT_SHEETS}.$\r$\n$\r$\nDelete them as well?" /SD IDNO IDNO leave
        RMDir /r "${KEPT_SHEETS}"
    leave:
    ${EndIf}
    RMDir "$LOCALAPPDATA\${SITE}\${NAME}"
    RMDir "$LOCALAPPDATA\${SITE}"
SectionEnd
