; For whom it is installed: for the present user, which needs no rights, or for all users, which needs an administrator's.
; /CurrentUser and /AllUsers on the command line choose; SHCTX and the folders of the shell then follow.
Var Scope
Var FolderIsGiven

; What Windows shows under "Installed apps".
!define ALL_SETTINGS "Software\Microsoft\Windows\CurrentVersion\Uninstall"
!define SETTINGS "${ALL_SETTINGS}\${PRODUCT}"

!macro UseScope
  ${If} $Scope == AllUsers
    SetShellVarContext all
  ${Else}
    SetShellVarContext current
  ${EndIf}
!macroend

; Sets $Scope from the command line, and leaves it where nothing is said there.
!macro ReadScopeFromCommandLine
  ${GetParameters} $0
  ClearErrors
  ${GetOptions} $0 "/AllUsers" $1
  ${IfNot} ${Errors}
    StrCpy $Scope AllUsers
  ${EndIf}
  ClearErrors
  ${GetOptions} $0 "/CurrentUser" $1
  ${IfNot} ${Errors}
    StrCpy $Scope CurrentUser
  ${EndIf}
  ClearErrors
!macroend

; "Admin" on the stack for a process that has an administrator's rights.
!macro PushRights
  UserInfo::GetAccountType
!macroend

; Starts PROGRAM again with an administrator's rights and ends; goes on where the user refuses them.
!macro RestartElevated PROGRAM
  ClearErrors
  ExecShell "runas" "${PROGRAM}" "/AllUsers"
  ${IfNot} ${Errors}
    Quit
  ${EndIf}
!macroend

; A silent run for all users cannot ask for rights: exit code 740, as Windows numbers it.
!macro RequireRights PROGRAM
  ${If} $Scope == AllUsers
    !insertmacro PushRights
    Pop $0
    ${If} $0 != Admin
      ${IfNot} ${Silent}
        !insertmacro RestartElevated "${PROGRAM}"
      ${EndIf}
      SetErrorLevel 740
      Quit
    ${EndIf}
  ${EndIf}
!macroend

; Where the former version lies, else the usual place. A folder that the command line gives (/D=) stays.
Function ChooseFolder
  ${If} $FolderIsGiven == yes
    Return
  ${EndIf}
  ReadRegStr $INSTDIR SHCTX "${SETTINGS}" "InstallLocation"
  ${If} $INSTDIR != ""
    Return
  ${EndIf}
  ${If} $Scope == AllUsers
    StrCpy $INSTDIR "$PROGRAMFILES64\${PRODUCT}"
  ${Else}
    StrCpy $INSTDIR "$LOCALAPPDATA\Programs\${PRODUCT}"
  ${EndIf}
FunctionEnd

Function ChooseScope
  StrCpy $FolderIsGiven yes
  ${If} $INSTDIR == ""
    StrCpy $FolderIsGiven no
  ${EndIf}
  StrCpy $Scope CurrentUser
  ReadRegStr $0 HKLM "${SETTINGS}" "InstallLocation"
  ReadRegStr $1 HKCU "${SETTINGS}" "InstallLocation"
  ${If} $0 != ""
  ${AndIf} $1 == ""
    StrCpy $Scope AllUsers
  ${EndIf}
  !insertmacro ReadScopeFromCommandLine
  !insertmacro UseScope
  Call ChooseFolder
FunctionEnd

; The page that asks.
Var ForAll

Function ScopePage
  !insertmacro MUI_HEADER_TEXT "For whom" "Choose who can use ${PRODUCT} on this computer."
  nsDialogs::Create 1018
  Pop $0
  ${NSD_CreateRadioButton} 0 0 100% 12u "Only for &me"
  Pop $1
  ${NSD_CreateLabel} 12u 14u 90% 20u "Needs no administrator. Scripts and programs that you start can use the module."
  Pop $0
  ${NSD_CreateRadioButton} 0 42u 100% 12u "For &all users of this computer"
  Pop $ForAll
  ${NSD_CreateLabel} 12u 56u 90% 20u "Needs an administrator's rights; Windows will ask for them."
  Pop $0
  ${If} $Scope == AllUsers
    ${NSD_Check} $ForAll
    ${NSD_SetFocus} $ForAll
  ${Else}
    ${NSD_Check} $1
    ${NSD_SetFocus} $1
  ${EndIf}
  nsDialogs::Show
FunctionEnd

Function LeaveScopePage
  ${NSD_GetState} $ForAll $0
  StrCpy $Scope CurrentUser
  ${If} $0 == ${BST_CHECKED}
    StrCpy $Scope AllUsers
    !insertmacro PushRights
    Pop $0
    ${If} $0 != Admin
      !insertmacro RestartElevated "$EXEPATH"
      Abort
    ${EndIf}
  ${EndIf}
  !insertmacro UseScope
  Call ChooseFolder
FunctionEnd
