Attribute VB_Name = "mDOM"
Option Explicit

'What Excel's menus, keys and ribbon call. Every macro hands over to an object of KestruneXL.dll; nothing is decided
'here. When this workbook is made, a macro follows for each member of iGlobal that has none below.

Private Const Title As String = "Brannoch Kestrune"

Private entry As Object         'KestruneXL.iPublic: the add-in lives as long as it is held
Private commandObject As Object 'KestruneXL.iGlobal
Private complained As Boolean

'The version of Kestrune that this workbook came with.
Public Function Version() As String
    Version = "@VERSION@"
End Function

Public Sub StartKestrune()
    If Commands() Is Nothing Then Exit Sub
    Forward "CreateBRMenus"
End Sub

Public Sub StopKestrune()
    If entry Is Nothing Then Exit Sub
    Forward "DeleteBRMenus"
    Set commandObject = Nothing
    Set entry = Nothing
End Sub

'The add-in's commands, loaded when they are not: a macro of somebody else's that ends with End takes every variable of
'every project away. Nothing when the add-in cannot be loaded, which is told once.
Private Function Commands() As Object
    On Error Resume Next
    If commandObject Is Nothing Then
        If entry Is Nothing Then Set entry = CreateObject("KestruneXL.iPublic")
        If entry Is Nothing Then
            If Not complained Then MsgBox NotRegistered(), vbExclamation, Title
            complained = True
        Else
            entry.NewPublic Application, ThisWorkbook
            Set commandObject = entry.NewGlobal()
        End If
    End If
    Set Commands = commandObject
End Function

Private Function NotRegistered() As String
    Dim bits As String
    bits = "32-bit"
    If InStr(Application.OperatingSystem, "64-bit") > 0 Then bits = "64-bit"
    NotRegistered = "Kestrune cannot be started: KestruneXL.dll is not registered for you, or not for " & bits & _
        " Excel." & vbCrLf & vbCrLf & "Please run the Kestrune installer, or register.cmd in Kestrune's folder, again."
End Function

'Members fail without a word, as everything that the add-in does.
Private Sub Forward(ByVal member As String)
    On Error Resume Next
    Dim target As Object
    Set target = Commands()
    If Not target Is Nothing Then CallByName target, member, vbMethod
End Sub

'The parameter of the menu item that was clicked; empty when none was.
Private Function ClickedParameter() As String
    On Error Resume Next
    ClickedParameter = Application.CommandBars.ActionControl.Parameter
End Function

'Runs a command by its request, "20" or "20.3": the hot keys say it, menu items have it as their parameter.
Public Sub RunMacro(Optional ByVal Request As Variant)
    On Error Resume Next
    Dim target As Object
    If IsMissing(Request) Then Request = ClickedParameter()
    If Len(CStr(Request)) = 0 Then Exit Sub
    Set target = Commands()
    If Not target Is Nothing Then target.RunMacro Request
End Sub

'Opens a lesson by its file name, that of the clicked menu item.
Public Sub ShowLesson(Optional ByVal Lesson As Variant)
    On Error Resume Next
    Dim target As Object
    If IsMissing(Lesson) Then Lesson = ClickedParameter()
    If Len(CStr(Lesson)) = 0 Then Exit Sub
    Set target = Commands()
    If Not target Is Nothing Then target.ShowLesson Lesson
End Sub

Public Function LessonPath() As String
    On Error Resume Next
    Dim target As Object
    Set target = Commands()
    If Not target Is Nothing Then LessonPath = target.LessonPath
End Function

Public Sub ApplySmartCycleStyle(ByVal CycleNumber As Long, ByVal Position As Long, ByVal Range As Object)
    On Error Resume Next
    Dim target As Object
    Set target = Commands()
    If Not target Is Nothing Then target.ApplySmartCycleStyle CycleNumber, Position, Range
End Sub

'A button of the ribbon's tab: its tag is a command request or a member of iGlobal.
Public Sub RunRibbonButton(control As Object)
    If IsNumeric(Left$(control.Tag, 1)) Then
        RunMacro control.Tag
    Else
        Forward control.Tag
    End If
End Sub
