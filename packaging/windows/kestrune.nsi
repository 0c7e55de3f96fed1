; The installer for one person, who need not be an administrator. makensis gets
;   ARCHITECTURE  amd64-unicode, or x86-unicode for Windows of 32 bits
;   VERSION       "0.1.0"
;   STAGE         the folder of what is installed: x64 and x86 with the DLLs, common with the rest
;   OUT           the installer's file
; Silent: setup.exe /S [/EXCEL=32|64] [/D=FOLDER]. Exit status 0, 2 when something failed, 3 when Excel is running.
Unicode true
Target ${ARCHITECTURE}
ManifestDPIAware true
SetCompressor /SOLID lzma
RequestExecutionLevel user

!include LogicLib.nsh
!include FileFunc.nsh
!include MUI2.nsh
!insertmacro GetParameters
!insertmacro GetOptions

Name "Kestrune"
OutFile "${OUT}"
InstallDir "$LOCALAPPDATA\Programs\Kestrune"
!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Kestrune"
InstallDirRegKey HKCU "${UNINSTALL_KEY}" "InstallLocation"
BrandingText "Kestrune ${VERSION}"

VIProductVersion "${VERSION}.0"
VIAddVersionKey "ProductName" "Kestrune"
VIAddVersionKey "CompanyName" "Brannoch"
VIAddVersionKey "FileDescription" "Kestrune for Microsoft Excel, setup"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "LegalCopyright" "MIT licence"

!define MUI_ABORTWARNING
!define MUI_WELCOMEPAGE_TEXT "Setup installs Kestrune for you alone; no administrator is needed.$\r$\n$\r$\nPlease close Excel before you go on."
!define MUI_FINISHPAGE_TITLE "Kestrune is installed"
!define MUI_FINISHPAGE_TEXT "Start Excel: Kestrune has a tab on its ribbon."
!insertmacro MUI_PAGE_WELCOME
!insertmacro MUI_PAGE_LICENSE "${STAGE}\common\LICENSE.txt"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

!define STATUS_FAILED 2
!define STATUS_EXCEL_RUNS 3
Var Width      ; of Excel, 32 or 64; empty when it is unknown
Var Regsvr32   ; the one that loads DLLs of that width

!include "ExcelWidth.nsh"
!include "ExcelAddIns.nsh"

!macro RegistrationFunctions prefix
    ; Excel keeps the list of add-ins in memory and the DLLs open.
    Function ${prefix}RequireNoExcel
        FindWindow $0 "XLMAIN"
        ${If} $0 <> 0
            MessageBox MB_OK|MB_ICONEXCLAMATION "Please close Excel first, then run this again." /SD IDOK
            SetErrorLevel ${STATUS_EXCEL_RUNS}
            Quit
        ${EndIf}
    FunctionEnd

    ; Each width of regsvr32 loads DLLs of its own width.
    Function ${prefix}FindRegsvr32
        StrCpy $Regsvr32 "$SYSDIR\regsvr32.exe"
        ${If} $Width == 64
        ${AndIf} ${FileExists} "$WINDIR\Sysnative\regsvr32.exe"
            StrCpy $Regsvr32 "$WINDIR\Sysnative\regsvr32.exe"
        ${ElseIf} $Width == 32
        ${AndIf} ${FileExists} "$WINDIR\SysWOW64\regsvr32.exe"
            StrCpy $Regsvr32 "$WINDIR\SysWOW64\regsvr32.exe"
        ${EndIf}
    FunctionEnd

    ; Takes back what is registered of an installation; DLLs that are not there are skipped.
    Function ${prefix}UnregisterLibraries
        Call ${prefix}FindRegsvr32
        ${If} ${FileExists} "$INSTDIR\KestruneXL.dll"
            ExecWait '"$Regsvr32" /s /u /n /i:user "$INSTDIR\KestruneXL.dll"'
        ${EndIf}
        ${If} ${FileExists} "$INSTDIR\BRXLLib.dll"
            ExecWait '"$Regsvr32" /s /u /n /i:user "$INSTDIR\BRXLLib.dll"'
        ${EndIf}
        ${If} ${FileExists} "$INSTDIR\BRVBLib.dll"
            ExecWait '"$Regsvr32" /s /u /n /i:user "$INSTDIR\BRVBLib.dll"'
        ${EndIf}
    FunctionEnd

    ; What an installation put into its folder, and nothing else.
    Function ${prefix}DeleteFiles
        Delete "$INSTDIR\KestruneXL.dll"
        Delete "$INSTDIR\BRXLLib.dll"
        Delete "$INSTDIR\BRVBLib.dll"
        Delete "$INSTDIR\Kestrune.xlam"
        Delete "$INSTDIR\Kestrune Help.html"
        Delete "$INSTDIR\LICENSE.txt"
        Delete "$INSTDIR\CHANGELOG.txt"
        Delete "$INSTDIR\Files\Kestrune Examples.xls"
        RMDir "$INSTDIR\Files"
        Delete "$INSTDIR\Uninstall.exe"
        RMDir "$INSTDIR"
    FunctionEnd
!macroend
!insertmacro RegistrationFunctions ""
!insertmacro RegistrationFunctions "un."

Function Fail
    ; $0 says what went wrong. Nothing half installed stays.
    DetailPrint $0
    MessageBox MB_OK|MB_ICONSTOP "$0" /SD IDOK
    Call UnregisterLibraries
    Call RemoveFromExcel
    Call DeleteFiles
    DeleteRegKey HKCU "${UNINSTALL_KEY}"
    SetErrorLevel ${STATUS_FAILED}
    Quit
FunctionEnd

Function .onInit
    Call DecideWidth
    Call RequireNoExcel
FunctionEnd

Section "Kestrune"
    ; What is there goes first: it may lie in another folder and be of another width.
    ReadRegStr $0 HKCU "${UNINSTALL_KEY}" "InstallLocation"
    ${If} $0 != ""
        Push $Width
        Push $INSTDIR
        StrCpy $INSTDIR $0
        ReadRegStr $Width HKCU "${UNINSTALL_KEY}" "ExcelWidth"
        Call UnregisterLibraries
        Call RemoveFromExcel
        Call DeleteFiles
        Pop $INSTDIR
        Pop $Width
    ${EndIf}

    SetOverwrite try
    ClearErrors
    SetOutPath "$INSTDIR"
    File /r "${STAGE}\common\*.*"
    ${If} $Width == 64
        File "${STAGE}\x64\*.dll"
    ${Else}
        File "${STAGE}\x86\*.dll"
    ${EndIf}
    ${If} ${Errors}
        StrCpy $0 "Setup cannot write into $INSTDIR."
        Call Fail
    ${EndIf}

    Call FindRegsvr32
    !macro RegisterLibrary name
        DetailPrint "Registering ${name}.dll ($Width-bit)"
        ExecWait '"$Regsvr32" /s /n /i:user "$INSTDIR\${name}.dll"' $1
        ${If} ${Errors}
        ${OrIf} $1 <> 0
            StrCpy $0 "${name}.dll cannot be registered for $Width-bit Excel ($Regsvr32 ended with $1)."
            Call Fail
        ${EndIf}
    !macroend
    !insertmacro RegisterLibrary BRVBLib
    !insertmacro RegisterLibrary BRXLLib
    !insertmacro RegisterLibrary KestruneXL

    Call AddToExcel
    WriteUninstaller "$INSTDIR\Uninstall.exe"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayName" "Kestrune for Microsoft Excel"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "Publisher" "Brannoch"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\Uninstall.exe"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "ExcelWidth" "$Width"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\Uninstall.exe"'
    WriteRegStr HKCU "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\Uninstall.exe" /S'
    WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoModify" 1
    WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoRepair" 1
SectionEnd

Function un.onInit
    ReadRegStr $Width HKCU "${UNINSTALL_KEY}" "ExcelWidth"
    Call un.RequireNoExcel
FunctionEnd

; The user's settings, styles and keys lie elsewhere and stay.
Section "Uninstall"
    Call un.UnregisterLibraries
    Call un.RemoveFromExcel
    SetOutPath "$TEMP"
    Call un.DeleteFiles
    DeleteRegKey HKCU "${UNINSTALL_KEY}"
    DeleteRegKey /ifempty HKCU "Software\Microsoft\Windows\CurrentVersion\Uninstall"
SectionEnd
