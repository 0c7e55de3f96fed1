Attribute VB_Name = "mPublic"
Option Explicit

'What Kestrune runs in this workbook: Init when it has just been opened, UpdateWorkbook when it was open already.

Private Const FirstRow As Long = 26     'of the commands on each sheet
Private Const NumberColumn As Long = 2
Private Const KeyColumn As Long = 3

Public Sub Init()
    On Error Resume Next
    UpdateWorkbook
    ThisWorkbook.Worksheets(1).Activate
    ThisWorkbook.Worksheets(1).Range("A1").Select
End Sub

'Shows this workbook, with the keys that the commands have now: people choose their own. A workbook in which nothing else
'was changed is closed without a question.
Public Sub UpdateWorkbook()
    On Error Resume Next
    Dim registry As Object
    Dim sheet As Object
    Dim row As Long
    Dim unchanged As Boolean
    ThisWorkbook.Activate
    unchanged = ThisWorkbook.Saved
    Set registry = CreateObject("BRVBLib.iPublic").iHotKeys.Registry
    If registry Is Nothing Then Exit Sub
    For Each sheet In ThisWorkbook.Worksheets
        row = FirstRow
        Do While Not IsEmpty(sheet.Cells(row, NumberColumn).Value)
            ShowKey registry, sheet, row
            row = row + 1
        Loop
    Next
    If unchanged Then ThisWorkbook.Saved = True
End Sub

Private Sub ShowKey(ByVal registry As Object, ByVal sheet As Object, ByVal row As Long)
    On Error Resume Next
    Dim key As String
    key = registry.key(CLng(sheet.Cells(row, NumberColumn).Value))
    If Err.Number = 0 Then sheet.Cells(row, KeyColumn).Value = key
End Sub

'How many commands the workbook shows.
Public Function CommandCount() As Long
    Dim sheet As Object
    Dim row As Long
    For Each sheet In ThisWorkbook.Worksheets
        row = FirstRow
        Do While Not IsEmpty(sheet.Cells(row, NumberColumn).Value)
            CommandCount = CommandCount + 1
            row = row + 1
        Loop
    Next
End Function
