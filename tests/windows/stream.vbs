' The stream as a script host uses it: every operation, by-reference arguments included.
'   cscript //nologo stream.vbs FOLDER WORDS
' FOLDER is empty. WORDS is a file of UTF-8 text: a file name and a sentence, both with foreign letters.
' One line for each check; the exit code is the number of failures.
Option Explicit

Const None = 0, AsciiFileInput = 1, AsciiFileOutput = 2, AsciiBufferInput = 3, AsciiBufferOutput = 4

Dim passed, failed
passed = 0
failed = 0

Sub Check(name, expected, found)
  If TypeName(expected) = TypeName(found) Then
    If expected = found Then
      passed = passed + 1
      WScript.Echo "ok: " & name
      Exit Sub
    End If
  End If
  failed = failed + 1
  WScript.Echo "FAILED: " & name & ": expected " & TypeName(expected) & " " & expected & ", found " & _
    TypeName(found) & " " & found
End Sub

Function NewStream()
  Set NewStream = CreateObject("StReuse.clsIOStream")
End Function

Sub CheckNewStream()
  Dim stream
  Set stream = NewStream()
  Check "a new stream is closed", False, stream.IsOpened()
  Check "a new stream is at its end", True, stream.EndOfFile()
  Check "a new stream has no file name", "", stream.FileName
  Check "a new stream has no text", "", stream.Buffer
  Check "a new stream has nothing to close", False, stream.CloseFile()
  Check "nothing can be written to it", False, stream.WriteString("text")
  Check "mode None is refused", False, stream.OpenFile("text", None)
End Sub

Sub CheckBufferOutput()
  Dim stream
  Set stream = NewStream()
  Check "an output buffer opens", True, stream.OpenFile("", AsciiBufferOutput)
  Check "it is open", True, stream.IsOpened()
  Check "an empty one does not close", False, stream.CloseFile()
  Check "a line is written", True, stream.WriteString("A")
  Check "a number is written as text", True, stream.WriteString(12)
  Check "the text has its line ends", "A" & vbCrLf & "12" & vbCrLf, stream.Buffer
  Check "an output is at its end", True, stream.EndOfFile()
  Check "it closes", True, stream.CloseFile()
  Check "its text is gone", "", stream.Buffer
End Sub

Sub CheckBufferInput()
  Dim stream, line, single_, whole, kept
  Set stream = NewStream()
  Check "an empty text is refused", False, stream.OpenFile("", AsciiBufferInput)
  Check "an input buffer opens", True, _
    stream.OpenFile("first" & vbCr & vbCrLf & " 12.5 " & vbCrLf & "letters" & vbCrLf & "-7" & vbCrLf & "x" & vbLf & "y", _
                    AsciiBufferInput)
  Check "it has no file name", "", stream.FileName
  Check "it is not at its end", False, stream.EndOfFile()
  Check "a line is read", True, stream.ScanString(line)
  Check "the line", "first", line
  Check "an empty line is read", True, stream.ScanString(line)
  Check "the empty line", "", line
  Check "a single is read", True, stream.ScanSingle(single_)
  Check "the single", CSng(12.5), single_
  kept = "5"
  Check "letters are no whole number", False, stream.ScanInteger(kept)
  Check "the variable is as it was", "5", kept
  Check "a whole number is read", True, stream.ScanInteger(whole)
  Check "the whole number", -7, whole
  Check "a line feed is part of a line", True, stream.ScanString(line)
  Check "the line with it", "x" & vbLf & "y", line
  Check "the text is at its end", True, stream.EndOfFile()
  Check "nothing more is read", False, stream.ScanString(line)
  Check "the line is as it was", "x" & vbLf & "y", line
End Sub

Sub CheckFiles(folder, words)
  Dim stream, name, path, text, line, single_, whole, files
  Set stream = NewStream()
  stream.OpenFile words, AsciiFileInput
  stream.ScanString name
  stream.ScanString text
  path = folder & "\" & name
  Check "the name and the sentence are there", True, Len(name) = 9 And Len(text) = 12
  Check "an output file opens", True, stream.OpenFile(path, AsciiFileOutput)
  Check "it has its name", path, stream.FileName
  Check "a line is written to it", True, stream.WriteString(text)
  Check "numbers are written to it", True, stream.WriteString("2.5, 3 -4")
  Check "it closes", True, stream.CloseFile()
  Check "it is closed", False, stream.IsOpened()
  Set files = CreateObject("Scripting.FileSystemObject")
  Check "others see the file under its name", True, files.FileExists(path)

  Check "an input file opens", True, stream.OpenFile(path, AsciiFileInput)
  Check "its line is read", True, stream.ScanString(line)
  Check "its line", text, line
  Check "its single is read", True, stream.ScanSingle(single_)
  Check "its single", CSng(2.5), single_
  Check "its whole number is read", True, stream.ScanInteger(whole)
  Check "its whole number", 3, whole
  whole = "a variable of another type"
  whole = 0.1
  Check "the next one into a Double", True, stream.ScanInteger(whole)
  Check "it has the argument's type", -4, whole
  Check "the file is at its end", True, stream.EndOfFile()
  Check "reading on is answered True", True, stream.ScanInteger(whole)
  Check "and changes nothing", -4, whole
End Sub

Sub CheckFileIsClosedWithItsObject(folder)
  Dim stream, files, path
  path = folder & "\left-open.txt"
  Set stream = NewStream()
  stream.OpenFile path, AsciiFileOutput
  stream.WriteString "kept"
  Set stream = Nothing
  Set files = CreateObject("Scripting.FileSystemObject")
  files.DeleteFile path
  Check "a file left open can be deleted when its object is gone", False, files.FileExists(path)
End Sub

Sub CheckArgumentTypes()
  Dim stream, mode, items(1)
  Set stream = NewStream()
  mode = "3"
  Check "a mode as text", True, stream.OpenFile("text", mode)
  mode = 3.0
  Check "a mode as Double", True, stream.OpenFile("text", mode)
  mode = CLng(4)
  Check "a mode as Long", True, stream.OpenFile("text", mode)
  items(0) = Empty
  stream.OpenFile "9", AsciiBufferInput
  Check "a value given by value is taken", True, stream.ScanSingle((items(0)))
  Check "its variable is as it was", True, IsEmpty(items(0))
End Sub

Sub CheckErrors()
  Dim stream
  Set stream = NewStream()
  On Error Resume Next
  stream.OpenFile "text", 70000
  Check "a mode beyond 16 bits is an overflow", True, Err.Number <> 0
  Err.Clear
  stream.OpenFile "text", "letters"
  Check "a mode of letters is a type mismatch", True, Err.Number <> 0
  Err.Clear
  stream.OpenFile "text"
  Check "a missing argument is an error", True, Err.Number <> 0
  Err.Clear
  stream.NoSuchMember
  Check "an unknown member is an error", True, Err.Number <> 0
  Err.Clear
  On Error GoTo 0
  Check "the stream is still closed", False, stream.IsOpened()
End Sub

CheckNewStream
CheckBufferOutput
CheckBufferInput
CheckFiles WScript.Arguments(0), WScript.Arguments(1)
CheckFileIsClosedWithItsObject WScript.Arguments(0)
CheckArgumentTypes
CheckErrors
WScript.Echo passed & " passed, " & failed & " failed"
WScript.Quit failed
