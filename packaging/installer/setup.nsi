; The installer. packaging/make-packages gives STAGE (the files), GENERATED (their list), FILE_TIME
; (of all of them), VERSION, SIZE (in KB), ICON and OUTPUT.
;
; It is a 64-bit program: it serves 64-bit Windows, and so it is tested where 32-bit programs do not run. For 32-bit Windows
; there is the zip.
Target amd64-unicode
Unicode true
ManifestDPIAware true
RequestExecutionLevel user
SetCompressor /SOLID lzma
AllowSkipFiles off
ShowInstDetails nevershow
ShowUninstDetails nevershow

!define PRODUCT "ORVIK Stormwater Harvesting"

Name "${PRODUCT}"
Caption "${PRODUCT} ${VERSION} Setup"
BrandingText "${PRODUCT} ${VERSION}"
OutFile "${OUTPUT}"

VIProductVersion "${VERSION}.0"
VIFileVersion "${VERSION}.0"
VIAddVersionKey "CompanyName" "ORVIK"
VIAddVersionKey "ProductName" "${PRODUCT}"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "FileDescription" "${PRODUCT} Setup"
VIAddVersionKey "LegalCopyright" "MIT licence"

!include MUI2.nsh
!include LogicLib.nsh
!include FileFunc.nsh
!include WinVer.nsh
!include nsDialogs.nsh

!include scope.nsh
!include registration.nsh
!include association.nsh
!include files.nsh

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_WELCOMEFINISHPAGE_BITMAP "side.bmp"
!define MUI_ABORTWARNING
!define MUI_FINISHPAGE_RUN
!define MUI_FINISHPAGE_RUN_TEXT "Open the stormwater harvesting window"
!define MUI_FINISHPAGE_RUN_FUNCTION StartProgram

!insertmacro MUI_PAGE_LICENSE "${STAGE}/LICENSE.txt"
Page custom ScopePage LeaveScopePage
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

; Through the shell, so that it runs with the user's own rights also after an installation with an administrator's.
Function StartProgram
  Exec '"$WINDIR\explorer.exe" "$INSTDIR\StReuse.exe"'
FunctionEnd

Function .onInit
  SetRegView 64
  ${IfNot} ${AtLeastWin10}
    MessageBox MB_OK|MB_ICONEXCLAMATION "${PRODUCT} needs Windows 10 or later." /SD IDOK
    SetErrorLevel 1150
    Quit
  ${EndIf}
  Call ChooseScope
  ${If} ${Silent}
    !insertmacro RequireRights "$EXEPATH"
  ${EndIf}
FunctionEnd

Function un.onInit
  SetRegView 64
  ; Without a word on the command line: for all users, if this is the copy that is registered for them.
  StrCpy $Scope CurrentUser
  ReadRegStr $0 HKLM "${SETTINGS}" "InstallLocation"
  ${If} $0 == $INSTDIR
    StrCpy $Scope AllUsers
  ${EndIf}
  !insertmacro ReadScopeFromCommandLine
  !insertmacro RequireRights "$INSTDIR\uninstall.exe"
  !insertmacro UseScope
FunctionEnd

; Waits for it, and leaves its exit code in $0. So called it runs where it lies, and cannot delete itself.
!macro RunUninstaller FOLDER
  SetOutPath "$TEMP" ; a folder that a program works in cannot go
  ExecWait '"${FOLDER}\uninstall.exe" /S /$Scope _?=${FOLDER}' $0
  ${If} $0 = 0
    Delete "${FOLDER}\uninstall.exe"
    RMDir "${FOLDER}"
  ${EndIf}
!macroend

; The version that is there goes first, so that no file or key of it is left behind.
!macro RemoveFormerVersion
  ReadRegStr $4 SHCTX "${SETTINGS}" "InstallLocation"
  ${If} $4 != ""
  ${AndIf} ${FileExists} "$4\uninstall.exe"
    !insertmacro RunUninstaller $4
    ${If} $0 <> 0
      SetErrorLevel $0
      Abort "The former version cannot be removed (code $0)."
    ${EndIf}
  ${EndIf}
!macroend

!macro WriteSettings
  WriteRegStr SHCTX "${SETTINGS}" "DisplayName" "${PRODUCT}"
  WriteRegStr SHCTX "${SETTINGS}" "DisplayVersion" "${VERSION}"
  WriteRegStr SHCTX "${SETTINGS}" "Publisher" "ORVIK"
  WriteRegStr SHCTX "${SETTINGS}" "DisplayIcon" "$INSTDIR\StReuse.exe"
  WriteRegStr SHCTX "${SETTINGS}" "InstallLocation" "$INSTDIR"
  WriteRegStr SHCTX "${SETTINGS}" "UninstallString" '"$INSTDIR\uninstall.exe" /$Scope'
  WriteRegStr SHCTX "${SETTINGS}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /$Scope /S'
  WriteRegDWORD SHCTX "${SETTINGS}" "EstimatedSize" ${SIZE}
  WriteRegDWORD SHCTX "${SETTINGS}" "NoModify" 1
  WriteRegDWORD SHCTX "${SETTINGS}" "NoRepair" 1
!macroend

!macro WriteShortcuts
  SetOutPath "$INSTDIR"
  CreateDirectory "$SMPROGRAMS\${PRODUCT}"
  CreateShortCut "$SMPROGRAMS\${PRODUCT}\Stormwater Harvesting.lnk" "$INSTDIR\StReuse.exe"
  CreateShortCut "$SMPROGRAMS\${PRODUCT}\Help.lnk" "$INSTDIR\Help\Contents.htm"
  CreateShortCut "$SMPROGRAMS\${PRODUCT}\Sample projects.lnk" "$INSTDIR\samples"
  CreateShortCut "$SMPROGRAMS\${PRODUCT}\Uninstall.lnk" "$INSTDIR\uninstall.exe" "/$Scope"
!macroend

!macro RemoveShortcuts
  Delete "$SMPROGRAMS\${PRODUCT}\Stormwater Harvesting.lnk"
  Delete "$SMPROGRAMS\${PRODUCT}\Help.lnk"
  Delete "$SMPROGRAMS\${PRODUCT}\Sample projects.lnk"
  Delete "$SMPROGRAMS\${PRODUCT}\Uninstall.lnk"
  RMDir "$SMPROGRAMS\${PRODUCT}"
!macroend

Section "Install"
  !insertmacro RefuseWhileInUse
  !insertmacro RemoveFormerVersion
  !insertmacro EachFile PutFile PutUserFile SkipFolder
  SetOutPath "$INSTDIR"
  WriteUninstaller "$INSTDIR\uninstall.exe"
  !insertmacro WriteAssociation
  ClearErrors
  !insertmacro RegisterLibraries
  !insertmacro WriteSettings
  ${If} ${Errors}
    !insertmacro RunUninstaller "$INSTDIR" ; takes back what was done
    SetErrorLevel 5
    Abort "The registry cannot be written."
  ${EndIf}
  !insertmacro WriteShortcuts
  !insertmacro TellShell
SectionEnd

; Folders that the program made for the user's projects, if nothing was put into them.
!macro RemoveEmptyProjectFolders
  SetShellVarContext current
  RMDir "$DOCUMENTS\ORVIK33\StormwaterReuse"
  RMDir "$DOCUMENTS\ORVIK33"
  !insertmacro UseScope
!macroend

Section "Uninstall"
  !insertmacro RefuseWhileInUse
  SetOutPath "$TEMP" ; a folder that a program works in cannot go
  !insertmacro UnregisterLibraries
  !insertmacro RemoveAssociation
  !insertmacro RemoveShortcuts
  !insertmacro EachFile TakeFile TakeUserFile TakeFolder
  !insertmacro RemoveEmptyProjectFolders
  DeleteRegKey SHCTX "${SETTINGS}"
  ${If} $Scope == CurrentUser
    DeleteRegKey /ifempty HKCU "${ALL_SETTINGS}" ; a user may not have had any before
  ${EndIf}
  !insertmacro TellShell
  ; Last of all what tells that it has ended.
  Delete "$INSTDIR\uninstall.exe"
  RMDir "$INSTDIR"
  ${If} $Scope == CurrentUser
    RMDir "$LOCALAPPDATA\Programs"
  ${EndIf}
SectionEnd
