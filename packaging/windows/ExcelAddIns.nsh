; Excel's list of add-ins, values OPEN, OPEN1, OPEN2 and so on without a gap, and its trusted folders, for every version
; of Excel that this person has used.

!define OFFICE "Software\Microsoft\Office"
!define TRUSTED "Security\Trusted Locations"
!define TRUSTED_KEY "${TRUSTED}\Kestrune"
!define DEFAULT_VERSION "16.0"

; Goes through the versions: keys called like 16.0 that have one called Excel below them, in $8.
!macro EachVersion action
    StrCpy $7 0
    ${Do}
        EnumRegKey $9 HKCU "${OFFICE}" $7
        ${If} $9 == ""
            ${ExitDo}
        ${EndIf}
        IntOp $7 $7 + 1
        StrCpy $8 $9 "" -2
        ${If} $8 == ".0"
            StrCpy $8 "${OFFICE}\$9\Excel"
            EnumRegKey $0 HKCU "$8" 0
            EnumRegValue $1 HKCU "$8" 0
            ${If} "$0$1" != ""
                ${action}
                ; A key that went makes room for the next one.
                IntOp $6 $7 - 1
                EnumRegKey $0 HKCU "${OFFICE}" $6
                ${If} $0 != $9
                    StrCpy $7 $6
                ${EndIf}
            ${EndIf}
        ${EndIf}
    ${Loop}
!macroend

!macro AddInFunctions prefix
    ; $0 is a key of Options; takes our add-in out of the list and closes the gap. $1 reads, $2 writes.
    Function ${prefix}CloseList
        StrCpy $1 0
        StrCpy $2 0
        ${Do}
            StrCpy $3 "OPEN"
            ${If} $1 > 0
                StrCpy $3 "OPEN$1"
            ${EndIf}
            ReadRegStr $4 HKCU "$0" "$3"
            ${If} $4 == ""
                ${ExitDo}
            ${EndIf}
            ${If} $4 != '"$INSTDIR\Kestrune.xlam"'
                StrCpy $5 "OPEN"
                ${If} $2 > 0
                    StrCpy $5 "OPEN$2"
                ${EndIf}
                ${If} $5 != $3
                    WriteRegStr HKCU "$0" "$5" "$4"
                ${EndIf}
                IntOp $2 $2 + 1
            ${EndIf}
            IntOp $1 $1 + 1
        ${Loop}
        ; What stands behind the last one has moved up.
        StrCpy $6 $2
        ${While} $6 < $1
            ${If} $6 > 0
                DeleteRegValue HKCU "$0" "OPEN$6"
            ${Else}
                DeleteRegValue HKCU "$0" "OPEN"
            ${EndIf}
            IntOp $6 $6 + 1
        ${EndWhile}
    FunctionEnd

    Function ${prefix}RemoveFromVersion
        StrCpy $0 "$8\Options"
        Call ${prefix}CloseList
        ; Where Excel remembers an add-in that was switched off.
        DeleteRegValue HKCU "$8\Add-in Manager" "$INSTDIR\Kestrune.xlam"
        DeleteRegKey HKCU "$8\${TRUSTED_KEY}"
        DeleteRegKey /ifempty HKCU "$8\${TRUSTED}"
        DeleteRegKey /ifempty HKCU "$8\Security"
        DeleteRegKey /ifempty HKCU "$8\Options"
        DeleteRegKey /ifempty HKCU "$8"
        DeleteRegKey /ifempty HKCU "${OFFICE}\$9"
    FunctionEnd

    Function ${prefix}RemoveFromExcel
        !insertmacro EachVersion "Call ${prefix}RemoveFromVersion"
        DeleteRegKey /ifempty HKCU "${OFFICE}"
    FunctionEnd
!macroend
!insertmacro AddInFunctions ""
!insertmacro AddInFunctions "un."

; $8 is the key of one version's Excel.
Function AddToVersion
    StrCpy $0 "$8\Options"
    Call CloseList
    ${If} $2 > 0
        WriteRegStr HKCU "$0" "OPEN$2" '"$INSTDIR\Kestrune.xlam"'
    ${Else}
        WriteRegStr HKCU "$0" "OPEN" '"$INSTDIR\Kestrune.xlam"'
    ${EndIf}
    WriteRegStr HKCU "$8\${TRUSTED_KEY}" "Path" "$INSTDIR\"
    WriteRegStr HKCU "$8\${TRUSTED_KEY}" "Description" "Kestrune"
    WriteRegDWORD HKCU "$8\${TRUSTED_KEY}" "AllowSubfolders" 1
FunctionEnd

Function AddToExcel
    Push 0
    !insertmacro EachVersion "Call AddAndCount"
    Pop $0
    ${If} $0 = 0
        ; Excel was never started by this person: the version that is installed, or the present one.
        ReadRegStr $0 HKCR "Excel.Application\CurVer" ""
        StrCpy $1 $0 18
        ${If} $1 == "Excel.Application."
            StrCpy $9 $0 "" 18
            StrCpy $9 "$9.0"
        ${Else}
            StrCpy $9 "${DEFAULT_VERSION}"
        ${EndIf}
        StrCpy $8 "${OFFICE}\$9\Excel"
        Call AddToVersion
    ${EndIf}
FunctionEnd

Function AddAndCount
    Call AddToVersion
    Pop $0
    IntOp $0 $0 + 1
    Push $0
FunctionEnd
