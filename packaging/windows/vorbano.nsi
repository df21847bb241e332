; The installer. makensis gets VERSION, DIST (the folder of what the clerk gets), ICON, SIDE (the picture beside the first and
; last page), REMOVED (what a removal deletes) and OUTPUT.
; Programs go to "Vorbano"; the office's data lie in "Vorbanet", which neither an upgrade nor a removal touches.
Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
!include MUI2.nsh
!include x64.nsh

Name "Vorbano ${VERSION}"
OutFile "${OUTPUT}"
InstallDir "$PROGRAMFILES64\Vorbano"
RequestExecutionLevel admin
BrandingText "Gestione dei Rendiconti Elettorali"

!define DATA "$PROGRAMFILES64\Vorbanet"
!define REMOVAL "Software\Microsoft\Windows\CurrentVersion\Uninstall\Vorbano"

VIProductVersion "${VERSION}.0"
VIAddVersionKey "ProductName" "Vorbano"
VIAddVersionKey "FileDescription" "Installazione di Vorbano"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "CompanyName" "Vorbano"
VIAddVersionKey "LegalCopyright" "Vorbano"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_WELCOMEFINISHPAGE_BITMAP "${SIDE}"
!define MUI_ABORTWARNING
!define MUI_WELCOMEPAGE_TEXT "$Welcome"
!define MUI_FINISHPAGE_TEXT "$Done"
!define MUI_FINISHPAGE_RUN "$INSTDIR\vorbano.exe"
!define MUI_FINISHPAGE_RUN_TEXT "Apri Vorbano"
!define MUI_UNCONFIRMPAGE_TEXT_TOP "I programmi di Vorbano saranno tolti. I dati dell'ufficio nella cartella ${DATA} restano dove sono."
Var Welcome
Var Done
Var Before

!insertmacro MUI_PAGE_WELCOME
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "Italian"

; A program that is open cannot be replaced or removed, and half of it must not be either.
!macro EndIfOpen
  IfFileExists "$INSTDIR\vorbano.exe" 0 free
  ClearErrors
  FileOpen $0 "$INSTDIR\vorbano.exe" a
  IfErrors 0 close
  MessageBox MB_OK|MB_ICONEXCLAMATION "Vorbano è aperto. Chiuderlo, poi riprovare." /SD IDOK
  SetErrorLevel 2
  Quit
close:
  FileClose $0
free:
!macroend

Function .onInit
  SetRegView 64
  SetShellVarContext all
  ${IfNot} ${RunningX64}
    MessageBox MB_OK|MB_ICONSTOP "Vorbano richiede Windows a 64 bit." /SD IDOK
    SetErrorLevel 2
    Quit
  ${EndIf}
  ReadRegStr $Before HKLM "${REMOVAL}" "DisplayVersion"
  StrCpy $Welcome "Vorbano sarà installato in $INSTDIR.$\r$\n$\r$\nI dati dell'ufficio staranno nella cartella ${DATA}."
  ${If} $Before != ""
    StrCpy $Welcome "È già installato Vorbano $Before, che sarà sostituito dalla versione ${VERSION}.$\r$\n$\r$\nI dati dell'ufficio nella cartella ${DATA} (parametri, elezioni, modelli di stampa) restano come sono."
  ${ElseIf} ${FileExists} "${DATA}\*.*"
    StrCpy $Welcome "Vorbano sarà installato in $INSTDIR.$\r$\n$\r$\nNella cartella ${DATA} ci sono già dei dati: restano come sono, e si aggiunge solo quello che manca."
  ${EndIf}
FunctionEnd

Section
  !insertmacro EndIfOpen
  SetOutPath "$INSTDIR"
  File /r "${DIST}\*.*"

  ; The data are the clerk's to write, whoever installed: "Users", by the number that it has in every language.
  CreateDirectory "${DATA}"
  nsExec::Exec '"$SYSDIR\icacls.exe" "${DATA}" /grant *S-1-5-32-545:(OI)(CI)M'
  Pop $0
  ${If} $0 != "0"
    MessageBox MB_OK|MB_ICONEXCLAMATION "Non è stato possibile dare agli utenti il diritto di scrivere in ${DATA}: lo faccia chi amministra questa macchina." /SD IDOK
  ${EndIf}
  ; What is there already stays as it is.
  System::Call 'kernel32::SetEnvironmentVariable(t "VORBANET_ROOT", t "${DATA}")'
  nsExec::Exec '"$INSTDIR\vorbano-install.exe"'
  Pop $0
  ${If} $0 != "0"
    MessageBox MB_OK|MB_ICONSTOP "Non è stato possibile preparare la cartella ${DATA}." /SD IDOK
    SetErrorLevel 3
    Abort "La cartella ${DATA} non è pronta."
  ${EndIf}

  SetOutPath "$INSTDIR"
  CreateDirectory "$SMPROGRAMS\Vorbano"
  CreateShortcut "$SMPROGRAMS\Vorbano\Vorbano.lnk" "$INSTDIR\vorbano.exe"
  CreateShortcut "$SMPROGRAMS\Vorbano\Manuale di Vorbano.lnk" "$INSTDIR\Manuale\index.html"
  CreateShortcut "$SMPROGRAMS\Vorbano\Togli Vorbano.lnk" "$INSTDIR\Togli Vorbano.exe"
  WriteUninstaller "$INSTDIR\Togli Vorbano.exe"
  WriteRegStr HKLM "${REMOVAL}" "DisplayName" "Vorbano, Gestione dei Rendiconti Elettorali"
  WriteRegStr HKLM "${REMOVAL}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKLM "${REMOVAL}" "DisplayIcon" "$INSTDIR\vorbano.exe"
  WriteRegStr HKLM "${REMOVAL}" "Publisher" "Vorbano"
  WriteRegStr HKLM "${REMOVAL}" "UninstallString" '"$INSTDIR\Togli Vorbano.exe"'
  WriteRegStr HKLM "${REMOVAL}" "QuietUninstallString" '"$INSTDIR\Togli Vorbano.exe" /S'
  WriteRegDWORD HKLM "${REMOVAL}" "NoModify" 1
  WriteRegDWORD HKLM "${REMOVAL}" "NoRepair" 1

  StrCpy $Done "Vorbano ${VERSION} è installato.$\r$\n$\r$\nI dati dell'ufficio stanno in ${DATA}: è la cartella da copiare per averne una riserva."
  ${If} $Before != ""
    StrCpy $Done "Vorbano $Before è stato sostituito da Vorbano ${VERSION}.$\r$\n$\r$\nI dati dell'ufficio in ${DATA} sono rimasti come erano."
  ${EndIf}
SectionEnd

Function un.onInit
  SetRegView 64
  SetShellVarContext all
FunctionEnd

Section "Uninstall"
  !insertmacro EndIfOpen
  ; One by one what was installed: the folder goes only when nothing else was put into it.
  !include "${REMOVED}"
  Delete "$INSTDIR\Togli Vorbano.exe"
  RMDir "$INSTDIR"
  Delete "$SMPROGRAMS\Vorbano\Vorbano.lnk"
  Delete "$SMPROGRAMS\Vorbano\Manuale di Vorbano.lnk"
  Delete "$SMPROGRAMS\Vorbano\Togli Vorbano.lnk"
  RMDir "$SMPROGRAMS\Vorbano"
  DeleteRegKey HKLM "${REMOVAL}"
  MessageBox MB_OK|MB_ICONINFORMATION "Vorbano è stato tolto. I dati dell'ufficio sono rimasti in ${DATA}." /SD IDOK
SectionEnd
