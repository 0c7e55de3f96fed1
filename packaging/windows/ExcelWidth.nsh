; Whether Excel is a 32-bit or a 64-bit program, whatever Windows is.

!define WIDTH_32 0  ; what kernel32 answers for programs of each width
!define WIDTH_64 6

; $Width from the program whose path is $0, when there is one.
Function WidthOfProgram
    ${If} $0 == ""
        Return
    ${EndIf}
    ${If} ${FileExists} "$0"
        System::Call 'kernel32::GetBinaryTypeW(w r0, *i .r1) i .r2'
        ${If} $2 <> 0
        ${AndIf} $1 == ${WIDTH_64}
            StrCpy $Width 64
        ${ElseIf} $2 <> 0
        ${AndIf} $1 == ${WIDTH_32}
            StrCpy $Width 32
        ${EndIf}
    ${EndIf}
FunctionEnd

!macro TryPath root key value file
    ${If} $Width == ""
        ReadRegStr $0 ${root} "${key}" "${value}"
        ${If} $0 != ""
            StrCpy $0 "$0${file}"
            Call WidthOfProgram
        ${EndIf}
    ${EndIf}
!macroend

; Where Excel tells Windows that it lies, then where each version of Office does, in both halves of the registry.
!macro TryRegistry
    !insertmacro TryPath HKCU "Software\Microsoft\Windows\CurrentVersion\App Paths\excel.exe" "" ""
    !insertmacro TryPath HKLM "Software\Microsoft\Windows\CurrentVersion\App Paths\excel.exe" "" ""
    !insertmacro TryPath HKLM "Software\Microsoft\Office\16.0\Excel\InstallRoot" "Path" "EXCEL.EXE"
    !insertmacro TryPath HKLM "Software\Microsoft\Office\15.0\Excel\InstallRoot" "Path" "EXCEL.EXE"
    !insertmacro TryPath HKLM "Software\Microsoft\Office\14.0\Excel\InstallRoot" "Path" "EXCEL.EXE"
    !insertmacro TryPath HKLM "Software\Microsoft\Office\12.0\Excel\InstallRoot" "Path" "EXCEL.EXE"
!macroend

Function DetectWidth
    StrCpy $Width ""
    SetRegView 64
    !insertmacro TryRegistry
    SetRegView 32
    !insertmacro TryRegistry
    SetRegView lastused
FunctionEnd

; $Width from the command line, from Excel, or from the person; silent, and without Excel, 64.
Function DecideWidth
    ${GetParameters} $0
    ClearErrors
    ${GetOptions} $0 "/EXCEL=" $1
    ${IfNot} ${Errors}
        ${If} $1 != 32
        ${AndIf} $1 != 64
            MessageBox MB_OK|MB_ICONSTOP "/EXCEL=$1: Excel's width is 32 or 64." /SD IDOK
            SetErrorLevel ${STATUS_FAILED}
            Quit
        ${EndIf}
        StrCpy $Width $1
        Return
    ${EndIf}
    Call DetectWidth
    ${If} $Width == ""
        ${If} ${Cmd} `MessageBox MB_YESNO|MB_ICONQUESTION "Setup did not find Excel on this computer.$\r$\n$\r$\nInstall Kestrune for 64-bit Excel? (No installs it for 32-bit Excel.)" /SD IDYES IDYES`
            StrCpy $Width 64
        ${Else}
            StrCpy $Width 32
        ${EndIf}
    ${EndIf}
FunctionEnd
