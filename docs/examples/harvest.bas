Attribute VB_Name = "Harvest"
' Excel: sizes the reuse pond of the active sheet in the stormwater harvesting window. Where the user saves, the results and
' the project go into the sheet, and the next call goes on from there.
'   B1 basin area (acres)     B4 reuse rate (gal/day)      B8 the project's text
'   B2 runoff coefficient     B5 efficiency (%)
'                             B6 storage volume (ac-ft)
Option Explicit
Const InHostProject = 2

Sub SizeReusePond()
    Dim reuse As Object
    Dim own As String, basin As String, project As String
    Set reuse = CreateObject("StReuse.clsStReuse")
    ' Str writes a period whatever the system's settings are, as the module reads it.
    basin = Trim(Str(Range("B1").Value)) & vbCrLf & Trim(Str(Range("B2").Value))
    project = Range("B8").Value
    own = ""
    If reuse.Show(InHostProject, own, basin, project) = 0 Then Exit Sub
    Range("B8").Value = project
    ShowResults Split(basin, vbCrLf)
End Sub

' A result that the project does not have is an empty line, and stays an empty cell.
Private Sub ShowResults(lines As Variant)
    Dim i As Integer
    For i = 0 To 2
        If lines(i) = "" Then
            Range("B" & (4 + i)).Value = ""
        Else
            Range("B" & (4 + i)).Value = Val(lines(i))
        End If
    Next
End Sub
