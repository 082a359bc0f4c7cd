; The files, each by its name, so that the uninstaller takes these and no others.
;
; What users may change (curves of their authority's, samples, examples) is told from ours by its time: a file that differs
; from the one that was installed is the user's, and stays. A new version first takes the former one away; of what users may
; change it then writes only what is not there.
Var InUse

!macro EachFile PROGRAM_MACRO USER_MACRO FOLDER_MACRO
  !define EACH_FILE ${PROGRAM_MACRO}
  !define EACH_USER_FILE ${USER_MACRO}
  !define EACH_FOLDER ${FOLDER_MACRO}
  !include "${GENERATED}/files.nsh"
  !undef EACH_FILE
  !undef EACH_USER_FILE
  !undef EACH_FOLDER
!macroend

!macro PutFile FOLDER NAME
  SetOutPath "$INSTDIR${FOLDER}"
  File "${STAGE}${FOLDER}\${NAME}"
!macroend

!macro PutUserFile FOLDER NAME
  SetOverwrite off
  !insertmacro PutFile "${FOLDER}" "${NAME}"
  SetOverwrite on
!macroend

!macro TakeFile FOLDER NAME
  Delete "$INSTDIR${FOLDER}\${NAME}"
!macroend

!macro TakeUserFile FOLDER NAME
  GetFileTime "$INSTDIR${FOLDER}\${NAME}" $0 $1
  ${If} "$0 $1" == "${FILE_TIME}"
    Delete "$INSTDIR${FOLDER}\${NAME}"
  ${EndIf}
!macroend

; A folder goes when nothing is left in it.
!macro TakeFolder FOLDER
  RMDir "$INSTDIR${FOLDER}"
!macroend

!macro SkipFile FOLDER NAME
!macroend
!macro SkipFolder FOLDER
!macroend

; A file that a running program has loaded cannot be opened for writing.
!macro CheckUse NAME
  ${If} ${FileExists} "$INSTDIR\${NAME}"
    ClearErrors
    FileOpen $0 "$INSTDIR\${NAME}" a
    ${If} ${Errors}
      StrCpy $InUse "${NAME}"
    ${Else}
      FileClose $0
    ${EndIf}
  ${EndIf}
!macroend

; Waits until nothing in $INSTDIR is in use; ends with exit code 32 where the user, or nobody, helps.
!macro RefuseWhileInUse
  ${Do}
    StrCpy $InUse ""
    !insertmacro CheckUse StReuse.exe
    !insertmacro CheckUse StReuse.dll
    !insertmacro CheckUse StReuse32.dll
    !insertmacro CheckUse kav.exe
    ${If} $InUse == ""
      ${ExitDo}
    ${EndIf}
    ${If} ${Cmd} `MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$InUse is in use.$\r$\n$\r$\nClose the stormwater harvesting window and the programs that use the module, then try again." /SD IDCANCEL IDCANCEL`
      SetErrorLevel 32
      Quit
    ${EndIf}
  ${Loop}
  ClearErrors
!macroend
