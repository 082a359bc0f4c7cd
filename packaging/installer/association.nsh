; The file type of projects: what a double click on a .kav file does, and its icon.
!define PROJECT_TYPE "ORVIK.StormwaterProject"

; The shell reads the file types again.
!macro TellShell
  System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0x1000, p 0, p 0)'
!macroend

; Where another program has the ending already, its users keep it and find ours under "Open with".
!macro WriteAssociation
  ReadRegStr $0 HKCR ".kav" ""
  ClearErrors
  ${If} $0 == ""
    WriteRegStr SHCTX "${CLASSES}\.kav" "" "${PROJECT_TYPE}"
  ${EndIf}
  WriteRegStr SHCTX "${CLASSES}\${PROJECT_TYPE}" "" "ORVIK Stormwater Harvesting project"
  WriteRegStr SHCTX "${CLASSES}\${PROJECT_TYPE}\DefaultIcon" "" "$INSTDIR\StReuse.exe,-2"
  WriteRegStr SHCTX "${CLASSES}\${PROJECT_TYPE}\shell" "" "open"
  WriteRegStr SHCTX "${CLASSES}\${PROJECT_TYPE}\shell\open\command" "" '"$INSTDIR\StReuse.exe" "%1"'
  WriteRegStr SHCTX "${CLASSES}\.kav\OpenWithProgids" "${PROJECT_TYPE}" ""
!macroend

!macro RemoveAssociation
  DeleteRegKey SHCTX "${CLASSES}\${PROJECT_TYPE}"
  DeleteRegValue SHCTX "${CLASSES}\.kav\OpenWithProgids" "${PROJECT_TYPE}"
  DeleteRegKey /ifempty SHCTX "${CLASSES}\.kav\OpenWithProgids"
  ReadRegStr $0 SHCTX "${CLASSES}\.kav" ""
  ${If} $0 == "${PROJECT_TYPE}"
    DeleteRegValue SHCTX "${CLASSES}\.kav" ""
  ${EndIf}
  DeleteRegKey /ifempty SHCTX "${CLASSES}\.kav"
!macroend
