' Opens the stormwater harvesting window on a project, as a host program does. Where the user saves, the project goes back
' to its file and the three results are printed.
'   cscript //nologo harvest.vbs PROJECT.kav
Option Explicit
Const AsciiFileInput = 1, AsciiFileOutput = 2, InHostProject = 2

Dim reuse, path, own, results, project, lines
path = WScript.Arguments(0)
project = ReadText(path)
own = ""
results = ""
Set reuse = CreateObject("StReuse.clsStReuse")
If reuse.Show(InHostProject, own, results, project) = 0 Then
  WScript.Echo "Nothing was saved."
  WScript.Quit 1
End If
WriteText path, project
lines = Split(results, vbCrLf)
WScript.Echo "Reuse rate (gal/day): " & lines(0)
WScript.Echo "Efficiency (%): " & lines(1)
WScript.Echo "Storage volume (ac-ft): " & lines(2)

' The lines of a text file, each with its end.
Function ReadText(path)
  Dim stream, line
  Set stream = CreateObject("StReuse.clsIOStream")
  stream.OpenFile path, AsciiFileInput
  Do Until stream.EndOfFile()
    stream.ScanString line
    ReadText = ReadText & line & vbCrLf
  Loop
  stream.CloseFile
End Function

' Each line is written with its end; the last end is not a line of its own.
Sub WriteText(path, text)
  Dim stream, lines, i
  Set stream = CreateObject("StReuse.clsIOStream")
  stream.OpenFile path, AsciiFileOutput
  lines = Split(text, vbCrLf)
  For i = 0 To UBound(lines) - 1
    stream.WriteString lines(i)
  Next
  stream.CloseFile
End Sub
