# The Windows installer, by CPack's template, but for one person, who need not be an administrator.
set(CPACK_GENERATOR NSIS)
set(CPACK_PACKAGE_VENDOR "The Palace Lantern founders")
set(CPACK_PACKAGE_FILE_NAME palace-lantern-${PROJECT_VERSION}-setup)
set(CPACK_PACKAGE_INSTALL_DIRECTORY "Palace Lantern")
set(CPACK_PACKAGE_INSTALL_REGISTRY_KEY PalaceLantern)
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_NSIS_EXECUTABLE_PRE_ARGUMENTS "XTarget\\ amd64-unicode")  # with the "-" that CPack puts before it
set(CPACK_NSIS_MUI_ICON ${PROJECT_BINARY_DIR}/palace-lantern.ico)
set(CPACK_NSIS_MUI_UNIICON ${PROJECT_BINARY_DIR}/palace-lantern.ico)
set(CPACK_NSIS_INSTALLED_ICON_NAME palace-lantern.exe)
set(CPACK_NSIS_EXECUTABLES_DIRECTORY .)
set(CPACK_NSIS_MUI_FINISHPAGE_RUN palace-lantern.exe)
set(CPACK_NSIS_MANIFEST_DPI_AWARE ON)
set(CPACK_NSIS_IGNORE_LICENSE_PAGE ON)
# Wine, unlike Windows, does not show a person's classes in HKCR.
set(CPACK_NSIS_DEFINES [[
    RequestExecutionLevel user
    InstallDir "$LOCALAPPDATA\Programs\Palace Lantern"
    InstallDirRegKey HKCU "Software\The Palace Lantern founders\PalaceLantern" ""
    !macro Class KEY VALUE
        WriteRegStr HKCU "Software\Classes\${KEY}" "" '${VALUE}'
        WriteRegStr HKCR "${KEY}" "" '${VALUE}'
    !macroend]])
# A program that is running can't be replaced or taken away.
set(CPACK_NSIS_EXTRA_PREINSTALL_COMMANDS [[
    SetShellVarContext current
    ClearErrors
    Delete "$INSTDIR\palace-lantern.exe"
    IfErrors 0 +3
    MessageBox MB_RETRYCANCEL "Palace Lantern is running. Close it first." /SD IDCANCEL IDRETRY -3
    Abort]])
# The shortcut's folder is where the program's file dialogs begin.
set(CPACK_NSIS_CREATE_ICONS_EXTRA [[
    SetOutPath $DOCUMENTS
    CreateShortCut "$SMPROGRAMS\$STARTMENU_FOLDER\Palace Lantern.lnk" "$INSTDIR\palace-lantern.exe"]])
set(CPACK_NSIS_EXTRA_INSTALL_COMMANDS [[
    !insertmacro Class PalaceLantern.Chart "Palace Lantern chart"
    !insertmacro Class PalaceLantern.Chart\DefaultIcon "$INSTDIR\palace-lantern.exe,0"
    !insertmacro Class PalaceLantern.Chart\shell\open\command '"$INSTDIR\palace-lantern.exe" "%1"'
    !insertmacro Class .plf PalaceLantern.Chart
    System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)']])
# HKCR goes first: without the person's own key in HKCU it would show one in HKLM, which may be another program's.
string(CONCAT CPACK_NSIS_EXTRA_UNINSTALL_COMMANDS "${CPACK_NSIS_EXTRA_PREINSTALL_COMMANDS}\n" [[
    ReadRegStr $START_MENU HKCU Software\Microsoft\Windows\CurrentVersion\Uninstall\PalaceLantern StartMenu
    ReadRegStr $0 HKCR .plf ""
    StrCmp $0 PalaceLantern.Chart 0 +5 ; unless another program has it by now
    DeleteRegValue HKCR .plf ""
    DeleteRegKey /ifempty HKCR .plf
    DeleteRegValue HKCU Software\Classes\.plf ""
    DeleteRegKey /ifempty HKCU Software\Classes\.plf
    DeleteRegKey HKCR PalaceLantern.Chart
    DeleteRegKey HKCU Software\Classes\PalaceLantern.Chart
    RMDir /r "$LOCALAPPDATA\palace-lantern"
    DeleteRegKey HKCU Software\QtProject\OrganizationDefaults\FileDialog
    DeleteRegKey /ifempty HKCU Software\QtProject\OrganizationDefaults
    DeleteRegKey /ifempty HKCU Software\QtProject]])
set(CPACK_NSIS_DELETE_ICONS_EXTRA [[
    Delete "$SMPROGRAMS\$MUI_TEMP\Palace Lantern.lnk"
    DeleteRegKey /ifempty HKCU "Software\The Palace Lantern founders"]])
include(CPack)

find_package(Qt6 REQUIRED COMPONENTS Widgets PrintSupport)
install(TARGETS palace-lantern Bmp2Jpeg RUNTIME DESTINATION . LIBRARY DESTINATION .)
install(IMPORTED_RUNTIME_ARTIFACTS Qt6::Core Qt6::Gui Qt6::Widgets Qt6::PrintSupport DESTINATION .)
install(IMPORTED_RUNTIME_ARTIFACTS Qt6::QWindowsIntegrationPlugin DESTINATION platforms)
install(IMPORTED_RUNTIME_ARTIFACTS Qt6::QWindowsVistaStylePlugin DESTINATION styles)
install(DIRECTORY ${PROJECT_BINARY_DIR}/libraries/bin/ DESTINATION . FILES_MATCHING PATTERN lib*.dll)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/help ${PROJECT_BINARY_DIR}/libraries/licences DESTINATION .)
