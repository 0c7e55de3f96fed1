' Plays the companion workbook, as somebody else's client: everything goes by ProgID and IDispatch. Prints one line a
' check and their count; the exit status is the number of failed ones.
Option Explicit

Dim checks, failures
checks = 0
failures = 0

Sub Check(what, actual, expected)
    Dim same, shown
    checks = checks + 1
    If IsNull(actual) Or IsNull(expected) Then
        same = IsNull(actual) And IsNull(expected)
    Else
        same = (VarType(actual) = VarType(expected))
        If same Then same = (actual = expected)
    End If
    If IsNull(actual) Then shown = "Null" Else shown = CStr(actual)
    If same Then
        WScript.Echo "ok      " & what & ": " & shown
    Else
        failures = failures + 1
        WScript.Echo "FAILED  " & what & ": " & shown & " (" & TypeName(actual) & "), not " & expected
    End If
End Sub

' After a statement that must fail, under On Error Resume Next.
Sub CheckError(what, number, part)
    Check what & ": error", Err.Number, CLng(number)
    If part <> "" Then Check what & ": text", InStr(1, Err.Description, part, vbTextCompare) > 0, True
    Err.Clear
End Sub

Dim excel, book, sheet, entry, commands, others, cell, count, before

' The host, and what a client may leave out or write short.
Set excel = CreateObject("KestruneHost.Application")
Check "the host's name", excel.Name, "Microsoft Excel"
Set book = excel.Workbooks.Add
Set sheet = book.Worksheets(1)
sheet.Cells(2, 2) = 1234.5
Check "a cell by its default member", sheet.Range("B2") + 0, 1234.5
Check "its type", TypeName(sheet.Range("B2").Value), "Double"
sheet.Range("B3").Value = "text"
Check "a text", sheet.Cells(3, 2).Value, "text"
Check "an empty cell", IsEmpty(sheet.Range("A1").Value), True
Check "a missing first argument", sheet.Range("B2").Resize(, 3).Address, "$B$2:$D$2"
Check "a missing last argument", sheet.Range("B2").Resize(2).Address, "$B$2:$B$3"
sheet.Range("B2").Font.Bold = True
Check "what differs", sheet.Range("B2:B3").Font.Bold, Null
count = 0
For Each cell In sheet.Range("B2:D4")
    count = count + 1
Next
Check "cells one by one", count, 9

' The add-in before and after it is loaded.
Set entry = CreateObject("KestruneXL.iPublic")
Check "no commands before NewPublic", entry.NewGlobal() Is Nothing, True
Check "NewPublic answers the object itself", entry.NewPublic(excel, book) Is entry, True
Set commands = entry.NewGlobal()
Set others = entry.NewGlobal()
Check "commands after it", commands Is Nothing, False
Check "an object each time", commands Is others, False
Check "loading twice", entry.NewPublic(excel, book) Is entry, True

' Requests as texts, doubles and integers.
Const first_currency = "[$$-409]#,##0_);([$$-409]#,##0)"
sheet.Range("C5:D6").Select
Check "the selection", excel.Selection.Address, "$C$5:$D$6"
Check "20 as text runs", commands.RunMacro("20"), True
Check "a currency style", sheet.Range("C5").NumberFormat, first_currency
Check "on every cell", sheet.Range("C5:D6").NumberFormat, first_currency
Check "and on no other", sheet.Range("C7").NumberFormat, "General"
before = sheet.Range("C5").NumberFormat
Check "20 from another object runs", others.RunMacro("20"), True
Check "the next currency style", sheet.Range("C5").NumberFormat <> before, True
Check "19 as an integer runs", commands.RunMacro(19), True
Check "20.1 as a double runs", commands.RunMacro(20.1), True
Check "the currency style of that number", sheet.Range("C5").NumberFormat, first_currency
before = sheet.Range("C5").NumberFormat
Check "21 as a double runs", commands.RunMacro(CDbl(21)), True
Check "a percent style", InStr(sheet.Range("C5").NumberFormat, "%") > 0, True
Check "103 is no command, and no failure", commands.RunMacro("103"), True
Check "nor is -1", commands.RunMacro(-1), True
Check "nor a word", commands.RunMacro("word"), True
Check "which changed nothing", InStr(sheet.Range("C5").NumberFormat, "%") > 0, True

Check "gridlines", excel.ActiveWindow.DisplayGridlines, True
Check "98 as an integer runs", commands.RunMacro(98), True
Check "gridlines after 98", excel.ActiveWindow.DisplayGridlines, False
before = excel.ActiveWindow.Zoom
Check "87 runs", commands.RunMacro("87"), True
Check "a larger zoom", excel.ActiveWindow.Zoom > before, True
Check "the screen is shown again", excel.ScreenUpdating, True

commands.ApplySmartCycleStyle "4", 1, sheet.Range("F2")
Check "a step of a user's cycle", sheet.Range("F2").Interior.ColorIndex, CLng(6)
Check "leaves other cells alone", sheet.Range("F3").Interior.ColorIndex, CLng(-4142)

' Hot keys: the registry of any library object in the process reaches the add-in's call-back.
Dim registry, keys, entries, none
Set registry = CreateObject("BRVBLib.iPublic").iHotKeys.Registry
Set keys = registry.Callback("KestruneXL")
Check "whose call-back it is", keys.BRProductName, "Kestrune"
Check "its call-back for undo is another's", registry.Callback("Nobody") Is Nothing, True
entries = Array("first", "second")
keys.AddDefaultMacroArray entries
Check "an array by reference grows by the commands", UBound(entries), CLng(104)
Check "what was there stays", entries(0) & entries(1), "firstsecond"
Check "a command's name", entries(2 + 20)(0), "Currency SmartCycle"
Check "its key", entries(2 + 20)(2), "Ctrl+Shift+4"
Check "seven values an entry", UBound(entries(104)), CLng(6)
keys.AddDefaultMacroArray none
Check "so does a variable that is empty", UBound(none), CLng(102)
entries = "text"
keys.AddDefaultMacroArray entries
Check "what is no array stays", entries, "text"
keys.UpdateExamplesFile True
before = excel.ActiveWindow.DisplayGridlines
Check "98 by the call-back runs", keys.RunMacro(98), True
Check "which switched the gridlines", excel.ActiveWindow.DisplayGridlines, Not before
Check "a key's command runs", registry.RunKey("ctrl-shift-g"), True
Check "which switched them back", excel.ActiveWindow.DisplayGridlines, before
Check "a command's key", registry.Key(20), "Ctrl+Shift+4"
Check "what Excel does with it", registry.ExcelMeaning("Ctrl+$"), "gives the currency format with two decimals"
Check "every command is in the table", UBound(registry.Table, 1) >= 103, True

' Calls that cannot succeed, each with its own error.
On Error Resume Next
commands.NoSuchMember
CheckError "an unknown member", 438, ""
commands.RunMacro
CheckError "too few arguments", 449, ""
commands.RunMacro "20", 1
CheckError "too many arguments", 450, ""
commands.ApplySmartCycleStyle "no number", 1, Nothing
CheckError "an argument of another type", 13, ""
sheet.Range("No such range").Select
CheckError "the host's refusal", 1004, "range"
book.Worksheets(99).Name = "x"
' Excel's own code, which Visual Basic for Applications shows as 9 and Wine's VBScript as it is.
CheckError "an index outside", &H8002000B, ""
Dim unregistered
Set unregistered = CreateObject("KestruneXL.iNothing")
CheckError "an unregistered class", 429, ""
registry.SetKey 21, "Ctrl+Shift+4"
CheckError "a key that another command has", &H80020009, "Currency SmartCycle (20)"
Set unregistered = CreateObject("KestruneXL.iGlobal")
CheckError "a class that only iPublic makes", 429, ""
On Error Goto 0

' The companion workbook lets go in this order when Excel closes.
Set others = Nothing
Set commands = Nothing
Set entry = Nothing
Check "the call-back went with the add-in", registry.Callback("KestruneXL") Is Nothing, True
Set keys = Nothing
Set registry = Nothing
Check "the host outlives the add-in", excel.Workbooks.Count, CLng(1)

WScript.Echo checks & " checks, " & failures & " failed"
WScript.Quit failures
