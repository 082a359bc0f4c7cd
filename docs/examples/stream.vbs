' Writes a small table of rain depths to a file, reads it back and prints the sum.
'   cscript //nologo stream.vbs FILE
Option Explicit
Const AsciiFileInput = 1, AsciiFileOutput = 2

Dim stream, title, depth, sum
Set stream = CreateObject("StReuse.clsIOStream")

stream.OpenFile WScript.Arguments(0), AsciiFileOutput
stream.WriteString "Rain in inches"
stream.WriteString "1.25, 0.5"
stream.WriteString "2"
stream.CloseFile

stream.OpenFile WScript.Arguments(0), AsciiFileInput
If stream.EndOfFile() Then
  WScript.Echo "The file cannot be read."
  WScript.Quit 1
End If
stream.ScanString title
sum = 0
Do Until stream.EndOfFile()
  stream.ScanSingle depth
  sum = sum + depth
Loop
stream.CloseFile
WScript.Echo title & ": " & sum
