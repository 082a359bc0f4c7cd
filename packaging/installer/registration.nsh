; The classes of the library, in the part of the registry that the scope of the installation names (SHCTX).
;
; The installer writes what regsvr32 would have the library write: so it needs no 32-bit program to make the 32-bit library
; known, and a test holds the two against each other. Programs of each bitness see classes and interfaces in a view of
; their own; names of classes and type libraries are the same for both.
Var LibraryPath
Var LibraryIsOurs

!define CLASSES "Software\Classes"
; The system's own marshaller for interfaces that a type library describes.
!define AUTOMATION_MARSHALLER "{00020424-0000-0000-C000-000000000046}"

; Goes through the classes and interfaces with one macro for each kind.
!macro EachType CLASS_MACRO INTERFACE_MACRO
  !define EACH_CLASS ${CLASS_MACRO}
  !define EACH_INTERFACE ${INTERFACE_MACRO}
  !include "${GENERATED}/registration.nsh"
  !undef EACH_CLASS
  !undef EACH_INTERFACE
!macroend

!macro SkipClass CLSID PROGID NAME
!macroend
!macro SkipInterface IID NAME
!macroend

!macro WriteClass CLSID PROGID NAME
  WriteRegStr SHCTX "${CLASSES}\CLSID\${CLSID}" "" "${NAME}"
  WriteRegStr SHCTX "${CLASSES}\CLSID\${CLSID}\InprocServer32" "" "$LibraryPath"
  WriteRegStr SHCTX "${CLASSES}\CLSID\${CLSID}\InprocServer32" "ThreadingModel" "Apartment"
  WriteRegStr SHCTX "${CLASSES}\CLSID\${CLSID}\ProgID" "" "${PROGID}"
  WriteRegStr SHCTX "${CLASSES}\CLSID\${CLSID}\TypeLib" "" "${LIBRARY_ID}"
  WriteRegStr SHCTX "${CLASSES}\CLSID\${CLSID}\Version" "" "${LIBRARY_VERSION}"
  WriteRegStr SHCTX "${CLASSES}\CLSID\${CLSID}\Programmable" "" ""
!macroend

!macro WriteInterface IID NAME
  WriteRegStr SHCTX "${CLASSES}\Interface\${IID}" "" "${NAME}"
  WriteRegStr SHCTX "${CLASSES}\Interface\${IID}\ProxyStubClsid32" "" "${AUTOMATION_MARSHALLER}"
  WriteRegStr SHCTX "${CLASSES}\Interface\${IID}\TypeLib" "" "${LIBRARY_ID}"
  WriteRegStr SHCTX "${CLASSES}\Interface\${IID}\TypeLib" "Version" "${LIBRARY_VERSION}"
!macroend

!macro WriteProgId CLSID PROGID NAME
  WriteRegStr SHCTX "${CLASSES}\${PROGID}" "" "${NAME}"
  WriteRegStr SHCTX "${CLASSES}\${PROGID}\CLSID" "" "${CLSID}"
!macroend

!macro RegisterTypes BITS FILE
  SetRegView ${BITS}
  StrCpy $LibraryPath "$INSTDIR\${FILE}"
  !insertmacro EachType WriteClass WriteInterface
  SetRegView 64
!macroend

; The 64-bit library comes last: where the two views are one, it is the one that counts.
!macro RegisterLibraries
  !insertmacro RegisterTypes 32 StReuse32.dll
  !insertmacro RegisterTypes 64 StReuse.dll
  !insertmacro EachType WriteProgId SkipInterface
  StrCpy $LibraryPath "${CLASSES}\TypeLib\${LIBRARY_ID}\${LIBRARY_VERSION}"
  WriteRegStr SHCTX "$LibraryPath" "" "${LIBRARY_NAME}"
  WriteRegStr SHCTX "$LibraryPath\0\win64" "" "$INSTDIR\StReuse.dll"
  WriteRegStr SHCTX "$LibraryPath\0\win32" "" "$INSTDIR\StReuse32.dll"
  WriteRegStr SHCTX "$LibraryPath\FLAGS" "" "0"
  WriteRegStr SHCTX "$LibraryPath\HELPDIR" "" "$INSTDIR"
!macroend

; Takes a class away where it leads to our file; another copy of the library that was registered since stays registered.
!macro RemoveClass CLSID PROGID NAME
  ReadRegStr $0 SHCTX "${CLASSES}\CLSID\${CLSID}\InprocServer32" ""
  ${If} $0 == $LibraryPath
    DeleteRegKey SHCTX "${CLASSES}\CLSID\${CLSID}"
  ${Else}
    StrCpy $LibraryIsOurs no
  ${EndIf}
!macroend

!macro RemoveInterface IID NAME
  DeleteRegKey SHCTX "${CLASSES}\Interface\${IID}"
!macroend

; The name leads programs of both bitnesses to the class.
!macro RemoveProgId CLSID PROGID NAME
  SetRegView 32
  ReadRegStr $0 SHCTX "${CLASSES}\CLSID\${CLSID}\InprocServer32" ""
  SetRegView 64
  ReadRegStr $1 SHCTX "${CLASSES}\CLSID\${CLSID}\InprocServer32" ""
  ${If} "$0$1" == ""
    DeleteRegKey SHCTX "${CLASSES}\${PROGID}"
  ${EndIf}
!macroend

!macro UnregisterTypes BITS FILE
  SetRegView ${BITS}
  StrCpy $LibraryPath "$INSTDIR\${FILE}"
  StrCpy $LibraryIsOurs yes
  !insertmacro EachType RemoveClass SkipInterface
  ${If} $LibraryIsOurs == yes
    !insertmacro EachType SkipClass RemoveInterface
  ${EndIf}
  ; A user's own part of the registry may not have had these before.
  ${If} $Scope == CurrentUser
    DeleteRegKey /ifempty HKCU "${CLASSES}\CLSID"
    DeleteRegKey /ifempty HKCU "${CLASSES}\Interface"
  ${EndIf}
  SetRegView 64
!macroend

!macro RemovePlatform PLATFORM FILE
  ReadRegStr $0 SHCTX "$LibraryPath\0\${PLATFORM}" ""
  ${If} $0 == "$INSTDIR\${FILE}"
    DeleteRegKey SHCTX "$LibraryPath\0\${PLATFORM}"
  ${EndIf}
!macroend

!macro UnregisterLibraries
  !insertmacro UnregisterTypes 32 StReuse32.dll
  !insertmacro UnregisterTypes 64 StReuse.dll
  !insertmacro EachType RemoveProgId SkipInterface
  StrCpy $LibraryPath "${CLASSES}\TypeLib\${LIBRARY_ID}\${LIBRARY_VERSION}"
  !insertmacro RemovePlatform win64 StReuse.dll
  !insertmacro RemovePlatform win32 StReuse32.dll
  DeleteRegKey /ifempty SHCTX "$LibraryPath\0"
  EnumRegKey $0 SHCTX "$LibraryPath\0" 0
  ${If} $0 == ""
    DeleteRegKey SHCTX "$LibraryPath"
  ${EndIf}
  DeleteRegKey /ifempty SHCTX "${CLASSES}\TypeLib\${LIBRARY_ID}"
  ${If} $Scope == CurrentUser
    DeleteRegKey /ifempty HKCU "${CLASSES}\TypeLib"
    DeleteRegKey /ifempty HKCU "${CLASSES}\Wow6432Node"
  ${EndIf}
!macroend
