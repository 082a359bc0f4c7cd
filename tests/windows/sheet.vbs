' A sheet for the Visual Basic sample, which runs here as a script: its cells, and what Visual Basic has beyond VBScript.
Class Cell
  Public Value
End Class

Dim cells
Function Range(address)
  If IsEmpty(cells) Then Set cells = CreateObject("Scripting.Dictionary")
  If Not cells.Exists(address) Then cells.Add address, New Cell
  Set Range = cells.Item(address)
End Function

' Numbers with a period.
Function Str(number)
  Str = " " & Replace(CStr(number), ",", ".")
End Function

Function Val(text)
  Val = CDbl(text)
End Function

Range("B1").Value = 10
Range("B2").Value = 0.5
Range("B8").Value = ReadProject(WScript.Arguments(0))
SizeReusePond
Dim row
For row = 4 To 6
  WScript.Echo "B" & row & ": " & Range("B" & row).Value
Next
Dim projectLines
projectLines = Split(Range("B8").Value, vbCrLf)
WScript.Echo projectLines(9)

Function ReadProject(path)
  Dim stream, line
  Set stream = CreateObject("StReuse.clsIOStream")
  stream.OpenFile path, 1
  Do Until stream.EndOfFile()
    stream.ScanString line
    ReadProject = ReadProject & line & vbCrLf
  Loop
End Function
