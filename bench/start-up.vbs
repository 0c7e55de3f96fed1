' How long the add-in takes from its load to its answering commands, and to its menus standing, in milliseconds.
Option Explicit
Dim excel, book, entry, commands, start, ready
Set excel = CreateObject("KestruneHost.Application")
Set book = excel.Workbooks.Add
start = Timer
Set entry = CreateObject("KestruneXL.iPublic")
entry.NewPublic excel, book
Set commands = entry.NewGlobal()
ready = Timer
commands.CreateBRMenus
WScript.Echo "took " & CLng((ready - start) * 1000) & " " & CLng((Timer - ready) * 1000)
