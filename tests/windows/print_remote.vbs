' Prints a project of each kind of mode without a window, as a script of a host does it: on the default printer and on one by its
' name. Ends with the line "printed".
'   cscript //nologo print_remote.vbs
Option Explicit

' `given` is what follows the site in this mode.
Function Project(mode, given)
  Dim line
  For Each line In Array("KAV3.3.01", "ORVIK Stormwater Harvesting Module", "Scripted pond", "Printed by a script", "26-040", _
                         "An engineer", "A chief", "04-17-2026", "22", "Tampa", mode, "10", "0.5", "5")
    Project = Project & line & vbCrLf
  Next
  For Each line In given
    Project = Project & line & vbCrLf
  Next
End Function

Dim reuse
Set reuse = CreateObject("StReuse.clsStReuse")
reuse.Print_Remote Nothing, 1, "", Project("0", Array("1", "0.2", "3"))
reuse.Print_Remote Nothing, 1, "", Project("1", Array("1.25", "0.875"))
reuse.Print_Remote "PDF", 2, "", Project("2", Array("60", "0.875"))
WScript.Echo "printed"
