; The installer: both DLLs (on 32-bit Windows the 32-bit one), registered for all users or for one.
;
; scripts/package/installers.sh calls the compiler in the folder of the staged files and defines what is in capitals
; here. The files below GENERATED are made from the IDL and from what is staged.
;
;   /S             asks nothing
;   /AllUsers      for everybody, the default for who may; needs an administrator
;   /CurrentUser   for this user
;   /Samples       also the samples, when asking nothing
;   /D=FOLDER      where to; the last switch, without quotes
;
; Exit codes: 0 done, 1 cancelled, 2 failed, 3 a newer version is installed, 4 not for this Windows, 5 a file is in use.

Unicode true
Target ${TARGET}
SetCompressor /SOLID lzma
ManifestDPIAware true
XPStyle on

!define NAME "brxOpcDlgs6"
!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\${NAME}"
!define DLL "${NAME}.dll"
!define CLASS_KEY "Software\Classes\CLSID\${FIRST_CLASS}\InprocServer32"

!define MULTIUSER_EXECUTIONLEVEL Highest
!define MULTIUSER_MUI
!define MULTIUSER_INSTALLMODE_COMMANDLINE
!define MULTIUSER_INSTALLMODE_INSTDIR "${NAME}"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_KEY "${UNINSTALL_KEY}"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_VALUENAME "InstallLocation"
!if ${BITS} == 64
    !define MULTIUSER_USE_PROGRAMFILES64
!endif
!include MultiUser.nsh
!include MUI2.nsh
!include FileFunc.nsh
!include WordFunc.nsh
!include LogicLib.nsh
!include x64.nsh
!include Sections.nsh

Name "${NAME} ${VERSION}"
OutFile "${OUT}"
BrandingText "${NAME} ${VERSION}"
ShowInstDetails nevershow
ShowUninstDetails nevershow
!ifdef SIGN
    !uninstfinalize '${SIGN} "%1"'
!endif

VIProductVersion "${VERSION}.0"
VIAddVersionKey ProductName "${NAME}"
VIAddVersionKey ProductVersion "${VERSION}"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey FileDescription "Set-up of ${NAME}"
VIAddVersionKey CompanyName "${COMPANY}"
VIAddVersionKey LegalCopyright "${COPYRIGHT}"

!insertmacro MUI_PAGE_WELCOME
!insertmacro MUI_PAGE_LICENSE "LICENSE"
!insertmacro MULTIUSER_PAGE_INSTALLMODE
!insertmacro MUI_PAGE_COMPONENTS
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE English

; End MESSAGE CODE: tells and ends before anything was changed.
!macro End MESSAGE CODE
    MessageBox MB_OK|MB_ICONSTOP "${MESSAGE}" /SD IDOK
    SetErrorLevel ${CODE}
    Quit
!macroend

; A DLL that a program has loaded can be neither replaced nor removed.
!macro EndIfInUse ARCHITECTURE
    ${If} ${FileExists} "$INSTDIR\${ARCHITECTURE}\${DLL}"
        ClearErrors
        FileOpen $0 "$INSTDIR\${ARCHITECTURE}\${DLL}" a
        ${If} ${Errors}
            !insertmacro End "$INSTDIR\${ARCHITECTURE}\${DLL} is in use. Close the programs that use it." 5
        ${EndIf}
        FileClose $0
    ${EndIf}
!macroend

; Whether hosts find the classes in another file that is there: then the registration is that one's.
!macro UnlessAnothers VIEW REMOVAL
    SetRegView ${VIEW}
    ReadRegStr $0 SHCTX "${CLASS_KEY}" ""
    ${If} $0 == ""
    ${OrIf} $0 == "$INSTDIR\x64\${DLL}"
    ${OrIf} $0 == "$INSTDIR\x86\${DLL}"
    ${OrIfNot} ${FileExists} $0
        !include "${REMOVAL}"
    ${EndIf}
!macroend

!macro DecideTheView
    SetRegView ${BITS}
!macroend

Section "Dialogs" DIALOGS
    SectionIn RO
    !if ${BITS} == 64
        !insertmacro EndIfInUse x64
    !endif
    !insertmacro EndIfInUse x86
    ; What an earlier version had and this one has not must not stay.
    !insertmacro DecideTheView
    ReadRegStr $1 SHCTX "${UNINSTALL_KEY}" "InstallLocation"
    ${If} $1 != ""
    ${AndIf} ${FileExists} "$1\uninstall.exe"
        ExecWait '"$1\uninstall.exe" /S /$MultiUser.InstallMode _?=$1' $0
        ${If} $0 != 0
            !insertmacro End "The version that is installed could not be removed." 2
        ${EndIf}
        Delete "$1\uninstall.exe"
        RMDir "$1"
    ${EndIf}

    ClearErrors
    !include "${GENERATED}/files.nsh"
    WriteUninstaller "$INSTDIR\uninstall.exe"
    !include "${GENERATED}/register.nsh"
    !insertmacro DecideTheView
    WriteRegStr SHCTX "${UNINSTALL_KEY}" "DisplayName" "${NAME}"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" "Publisher" "${COMPANY}"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe" /$MultiUser.InstallMode'
    WriteRegStr SHCTX "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S /$MultiUser.InstallMode'
    WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "NoModify" 1
    WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "EstimatedSize" ${KILOBYTES}
    ${If} ${Errors}
        MessageBox MB_OK|MB_ICONSTOP "Not everything could be written. Remove what is there and try again." /SD IDOK
        SetErrorLevel 2
    ${EndIf}
SectionEnd

Section /o "Samples" SAMPLES
    !include "${GENERATED}/samples.nsh"
SectionEnd

Function .onInit
    !insertmacro DecideTheView
    !if ${BITS} == 32
        ${If} ${RunningX64}
            !insertmacro End "This is for 32-bit Windows. The other installer has both, for 64-bit Windows." 4
        ${EndIf}
    !endif

    ; What MultiUser would ask although nobody is there.
    ${GetParameters} $R0
    ClearErrors
    ${GetOptions} $R0 "/AllUsers" $R1
    ${IfNot} ${Errors}
        UserInfo::GetAccountType
        Pop $0
        ${If} $0 != "Admin"
            !insertmacro End "An administrator has to install this for all users." 2
        ${EndIf}
    ${EndIf}
    StrCpy $R2 $INSTDIR ; what /D names, which MultiUser would forget
    !insertmacro MULTIUSER_INIT
    ${If} $R2 != ""
        StrCpy $INSTDIR $R2
    ${EndIf}

    !insertmacro DecideTheView
    ReadRegStr $0 SHCTX "${UNINSTALL_KEY}" "DisplayVersion"
    ${If} $0 != ""
        ${VersionCompare} "$0" "${VERSION}" $1
        ${If} $1 == 1
            !insertmacro End "Version $0 is installed, which is newer than ${VERSION}." 3
        ${EndIf}
    ${EndIf}

    ; Samples that are there are not taken away by a new version.
    ClearErrors
    ${GetOptions} $R0 "/Samples" $R1
    ${IfNot} ${Errors}
    ${OrIf} ${FileExists} "$INSTDIR\samples\*.*"
        SectionSetFlags ${SAMPLES} ${SF_SELECTED}
    ${EndIf}
FunctionEnd

Function un.onInit
    !insertmacro DecideTheView
    !insertmacro MULTIUSER_UNINIT
    !insertmacro DecideTheView
    !if ${BITS} == 64
        !insertmacro EndIfInUse x64
    !endif
    !insertmacro EndIfInUse x86
FunctionEnd

Section Uninstall
    !include "${GENERATED}/unregister.nsh"
    !include "${GENERATED}/remove.nsh"
    Delete "$INSTDIR\uninstall.exe"
    RMDir "$INSTDIR"
    ${If} $MultiUser.InstallMode == "CurrentUser"
        RMDir "$LOCALAPPDATA\Programs" ; where this was the only one
    ${EndIf}
    !insertmacro DecideTheView
    DeleteRegKey SHCTX "${UNINSTALL_KEY}"
SectionEnd
