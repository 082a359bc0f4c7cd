' Uses the library as long as a file is there, which it makes.
'   cscript //nologo hold.vbs FILE
Option Explicit
Const AsciiFileOutput = 2
Dim stream, files
Set stream = CreateObject("StReuse.clsIOStream")
stream.OpenFile WScript.Arguments(0), AsciiFileOutput
stream.WriteString "in use"
stream.CloseFile
Set files = CreateObject("Scripting.FileSystemObject")
Do While files.FileExists(WScript.Arguments(0)) ' without a pause: not every script host has one
Loop
