; The Windows installer, for one user or for everybody. tools/release calls makensis with these definitions:
;   OUT_FILE        the installer to write
;   VERSION         such as 1.2.5
;   UNINSTALL_GUID  the registry key of the installation, in braces; the client's setting ORVANE_UNINSTALL_GUID
;   ICON            an .ico file
;   FILES_DIR       holds install.nsh and uninstall.nsh, the lists of the files to install and to remove
;   INSTALLED_KB    their size
;   NSIS_TARGET     amd64-unicode, or x86-unicode where this NSIS has no 64-bit stubs
;   SIGN_COMMAND    a program that signs the file that it is given; not needed
;
; Command line of installer and uninstaller (upper and lower case are the same but for /S and /D):
;   /S             asks and shows nothing
;   /allusers      for everybody; needs an administrator
;   /currentuser   for this user
;   /D=FOLDER      where to install; the last argument, without quotes
; Without a mode the installer updates the installation that it finds; if there is none, a silent one installs for
; everybody if it may.
;
; The installer runs with the rights of its caller and asks for more only for everybody: the client can then start it,
; and a per-user uninstaller, like any program.

Unicode true
Target ${NSIS_TARGET}
SetCompressor /SOLID lzma
ManifestDPIAware true
ManifestSupportedOS all
RequestExecutionLevel user
!ifdef SIGN_COMMAND
    !finalize '"${SIGN_COMMAND}" "%1"' = 0
    !uninstfinalize '"${SIGN_COMMAND}" "%1"' = 0
!endif

!include MUI2.nsh
!include LogicLib.nsh
!include FileFunc.nsh
!include nsDialogs.nsh

!define PRODUCT "Orvane"
!define PROGRAM "orvane.exe"
!define UNINSTALLER "Uninstall.exe"
!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\${UNINSTALL_GUID}"
; Windows' error codes, as exit codes of a silent run.
!define ERROR_SHARING_VIOLATION 32
!define ERROR_ELEVATION_REQUIRED 740
!define CLIENT_POLLS 60 ; of half a second

Name "${PRODUCT}"
OutFile "${OUT_FILE}"
BrandingText "${PRODUCT} ${VERSION}"
ShowInstDetails nevershow
ShowUninstDetails nevershow
VIProductVersion "${VERSION}.0"
VIAddVersionKey ProductName "${PRODUCT}"
VIAddVersionKey ProductVersion "${VERSION}"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey FileDescription "${PRODUCT} Setup"
VIAddVersionKey CompanyName "${PRODUCT}"
VIAddVersionKey LegalCopyright "${PRODUCT}"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_ABORTWARNING
!define MUI_FINISHPAGE_RUN
!define MUI_FINISHPAGE_RUN_FUNCTION startClient
!define MUI_FINISHPAGE_RUN_TEXT "$(RunClient)"

Page custom modePageCreate modePageLeave
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES

!insertmacro MUI_LANGUAGE English
!insertmacro MUI_LANGUAGE SimpChinese
!include "texts.nsh"

Var Mode ; allusers or currentuser
Var ModeGiven ; 1: by the command line
Var FolderGiven ; 1: by the command line
Var ModePageAll ; the radio button

; What installer and uninstaller share; "un." is the prefix of an uninstaller's functions.
!macro sharedFunctions un
    ; Sets Mode and ModeGiven from the command line; Mode stays as it is if none is given there.
    Function ${un}readMode
        ${GetParameters} $R0
        StrCpy $ModeGiven 0
        ClearErrors
        ${GetOptions} $R0 "/allusers" $R1
        ${IfNot} ${Errors}
            StrCpy $Mode allusers
            StrCpy $ModeGiven 1
        ${EndIf}
        ClearErrors
        ${GetOptions} $R0 "/currentuser" $R1
        ${IfNot} ${Errors}
            StrCpy $Mode currentuser
            StrCpy $ModeGiven 1
        ${EndIf}
        ClearErrors
    FunctionEnd

    ; Where shortcuts and registry values of the mode are (SHCTX).
    Function ${un}useMode
        ${If} $Mode == allusers
            SetShellVarContext all
        ${Else}
            SetShellVarContext current
        ${EndIf}
    FunctionEnd

    ; $R0: 1 if this process may install for everybody.
    Function ${un}isAdministrator
        StrCpy $R0 0
        ClearErrors
        UserInfo::GetAccountType
        Pop $R1
        ${If} ${Errors} ; a Windows without accounts
        ${OrIf} $R1 == Admin
            StrCpy $R0 1
        ${EndIf}
        ClearErrors
    FunctionEnd

    ; Goes on as an administrator in another process and ends this one, or returns if the user does not agree.
    ; Silent: ends with an exit code.
    Function ${un}elevate
        ${If} ${Silent}
            SetErrorLevel ${ERROR_ELEVATION_REQUIRED}
            Quit
        ${EndIf}
        ClearErrors
        !if "${un}" == ""
            ExecShell "runas" "$EXEPATH" "/allusers"
        !else
            ExecShell "runas" "$INSTDIR\${UNINSTALLER}" "/allusers"
        !endif
        ${IfNot} ${Errors}
            Quit
        ${EndIf}
        ClearErrors
        MessageBox MB_ICONEXCLAMATION|MB_OK "$(NeedsAdministrator)"
    FunctionEnd

    ; A running client holds its program open. One that has just started this update ends within a moment.
    Function ${un}waitForClient
        StrCpy $R2 0
        ${DoWhile} ${FileExists} "$INSTDIR\${PROGRAM}"
            ClearErrors
            FileOpen $R1 "$INSTDIR\${PROGRAM}" a
            ${IfNot} ${Errors}
                FileClose $R1
                ${ExitDo}
            ${EndIf}
            ClearErrors
            IntOp $R2 $R2 + 1
            ${If} $R2 >= ${CLIENT_POLLS}
                ${If} ${Silent}
                    SetErrorLevel ${ERROR_SHARING_VIOLATION}
                    Quit
                ${EndIf}
                MessageBox MB_ICONEXCLAMATION|MB_RETRYCANCEL "$(ClientRuns)" IDRETRY +2
                Abort
                StrCpy $R2 0
            ${EndIf}
            Sleep 500
        ${Loop}
        ClearErrors
    FunctionEnd
!macroend
!insertmacro sharedFunctions ""
!insertmacro sharedFunctions "un."

; $R0: the folder of the installation that SHCTX's registry knows, or nothing.
Function installedFolder
    ReadRegStr $R0 SHCTX "${UNINSTALL_KEY}" InstallLocation
    ClearErrors
FunctionEnd

; The folder of the mode, unless the command line gave one.
Function chooseFolder
    ${If} $FolderGiven == 1
        Return
    ${EndIf}
    Call useMode
    Call installedFolder
    ${If} $R0 != ""
        StrCpy $INSTDIR $R0
    ${ElseIf} $Mode == allusers
        StrCpy $INSTDIR "$PROGRAMFILES64\${PRODUCT}"
    ${Else}
        StrCpy $INSTDIR "$LOCALAPPDATA\Programs\${PRODUCT}"
    ${EndIf}
FunctionEnd

; The mode when none is given: that of the installation that is there.
Function chooseMode
    SetShellVarContext all
    Call installedFolder
    ${If} $R0 != ""
        StrCpy $Mode allusers
        Return
    ${EndIf}
    SetShellVarContext current
    Call installedFolder
    ${If} $R0 != ""
        StrCpy $Mode currentuser
        Return
    ${EndIf}
    Call isAdministrator
    ${If} ${Silent}
    ${AndIf} $R0 != 1
        StrCpy $Mode currentuser
    ${Else}
        StrCpy $Mode allusers
    ${EndIf}
FunctionEnd

Function .onInit
    SetRegView 64
    StrCpy $FolderGiven 0
    ${If} $INSTDIR != ""
        StrCpy $FolderGiven 1
    ${EndIf}
    Call readMode
    ${If} $ModeGiven == 0
        Call chooseMode
    ${EndIf}
    Call useMode
    Call chooseFolder
    Call isAdministrator
    ${If} $Mode == allusers
    ${AndIf} $R0 != 1
        ${If} ${Silent}
        ${OrIf} $ModeGiven == 1
            Call elevate
            Quit
        ${EndIf}
    ${EndIf}
FunctionEnd

Function modePageCreate
    ${If} $ModeGiven == 1
        Abort
    ${EndIf}
    !insertmacro MUI_HEADER_TEXT "$(ModeTitle)" "$(ModeSubtitle)"
    nsDialogs::Create 1018
    Pop $R0
    ${NSD_CreateRadioButton} 0 10u 100% 12u "$(ModeAllUsers)"
    Pop $ModePageAll
    ${NSD_CreateRadioButton} 0 28u 100% 12u "$(ModeCurrentUser)"
    Pop $R1
    ${If} $Mode == allusers
        ${NSD_Check} $ModePageAll
    ${Else}
        ${NSD_Check} $R1
    ${EndIf}
    nsDialogs::Show
FunctionEnd

Function modePageLeave
    ${NSD_GetState} $ModePageAll $R0
    ${If} $R0 == ${BST_CHECKED}
        StrCpy $Mode allusers
        Call isAdministrator
        ${If} $R0 != 1
            Call elevate ; returns only if it was refused
            Abort
        ${EndIf}
    ${Else}
        StrCpy $Mode currentuser
    ${EndIf}
    Call useMode
    Call chooseFolder
FunctionEnd

; Explorer starts the client with the user's own rights, whatever this installer has.
Function startClient
    Exec '"$WINDIR\explorer.exe" "$INSTDIR\${PROGRAM}"'
FunctionEnd

; Removes the files of the version before, which this one may not have any more, but neither shortcuts nor registry
; values. Each uninstaller removes exactly what it has installed.
Function removeVersionBefore
    Call installedFolder
    ${If} $R0 == ""
    ${OrIfNot} ${FileExists} "$R0\${UNINSTALLER}"
        Return
    ${EndIf}
    StrCpy $R3 $R0
    ; With this last argument it runs where it is and can be waited for.
    ExecWait '"$R3\${UNINSTALLER}" /S /$Mode /replaced _?=$R3' $R1
    ${If} $R1 = ${ERROR_SHARING_VIOLATION}
        SetErrorLevel ${ERROR_SHARING_VIOLATION}
        Abort "$(ClientRuns)"
    ${EndIf}
    Delete "$R3\${UNINSTALLER}"
    RMDir "$R3" ; if nothing else is in it
    ClearErrors
FunctionEnd

Section
    Call useMode
    Call waitForClient
    Call installedFolder
    StrCpy $R9 $R0 ; nothing: a first installation
    Call removeVersionBefore

    !include "${FILES_DIR}/install.nsh"
    SetOutPath "$INSTDIR"
    WriteUninstaller "$INSTDIR\${UNINSTALLER}"

    CreateShortcut "$SMPROGRAMS\${PRODUCT}.lnk" "$INSTDIR\${PROGRAM}"
    ${If} $R9 == "" ; one that the user has removed does not come back
        CreateShortcut "$DESKTOP\${PRODUCT}.lnk" "$INSTDIR\${PROGRAM}"
    ${EndIf}

    WriteRegStr SHCTX "${UNINSTALL_KEY}" DisplayName "${PRODUCT}"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" DisplayVersion "${VERSION}"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" DisplayIcon "$INSTDIR\${PROGRAM}"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" Publisher "${PRODUCT}"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" InstallLocation "$INSTDIR"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" UninstallString '"$INSTDIR\${UNINSTALLER}" /$Mode'
    WriteRegStr SHCTX "${UNINSTALL_KEY}" QuietUninstallString '"$INSTDIR\${UNINSTALLER}" /$Mode /S'
    WriteRegDWORD SHCTX "${UNINSTALL_KEY}" EstimatedSize ${INSTALLED_KB}
    WriteRegDWORD SHCTX "${UNINSTALL_KEY}" NoModify 1
    WriteRegDWORD SHCTX "${UNINSTALL_KEY}" NoRepair 1
SectionEnd

Function un.onInit
    SetRegView 64
    SetShellVarContext all
    ReadRegStr $R0 SHCTX "${UNINSTALL_KEY}" InstallLocation
    ${If} $R0 == $INSTDIR
        StrCpy $Mode allusers
    ${Else}
        StrCpy $Mode currentuser
    ${EndIf}
    Call un.readMode
    Call un.useMode
    Call un.isAdministrator
    ${If} $Mode == allusers
    ${AndIf} $R0 != 1
        Call un.elevate
        Quit
    ${EndIf}
FunctionEnd

Section Uninstall
    Call un.waitForClient
    !include "${FILES_DIR}/uninstall.nsh"
    ${GetParameters} $R0
    ClearErrors
    ${GetOptions} $R0 "/replaced" $R1
    ${If} ${Errors}
        Delete "$SMPROGRAMS\${PRODUCT}.lnk"
        Delete "$DESKTOP\${PRODUCT}.lnk"
        DeleteRegKey SHCTX "${UNINSTALL_KEY}"
        Delete "$INSTDIR\${UNINSTALLER}"
        SetOutPath "$TEMP" ; a folder in use stays
        RMDir "$INSTDIR" ; files that are not the installer's stay, and their folder
    ${EndIf}
SectionEnd
