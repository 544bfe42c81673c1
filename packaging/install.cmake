# What is installed where, and the Debian package of it. Program and converter lie together in a folder of their
# own, with a link on the path; the help pages are found from there as ../../share/palace-lantern/help.
set(PALACE_LANTERN_FOLDER lib/palace-lantern)
install(TARGETS palace-lantern RUNTIME DESTINATION ${PALACE_LANTERN_FOLDER})
install(TARGETS Bmp2Jpeg LIBRARY DESTINATION ${PALACE_LANTERN_FOLDER})
file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/packaging)
file(CREATE_LINK ../${PALACE_LANTERN_FOLDER}/palace-lantern ${CMAKE_BINARY_DIR}/packaging/palace-lantern SYMBOLIC)
install(FILES ${CMAKE_BINARY_DIR}/packaging/palace-lantern DESTINATION bin)

set(PACKAGING ${CMAKE_CURRENT_LIST_DIR})
install(FILES ${PACKAGING}/palace-lantern.desktop DESTINATION share/applications)
install(FILES ${PACKAGING}/palace-lantern.mime.xml DESTINATION share/mime/packages RENAME palace-lantern.xml)
install(FILES ${PACKAGING}/palace-lantern.metainfo.xml DESTINATION share/metainfo
        RENAME org.example.palacelantern.metainfo.xml)
install(FILES ${PACKAGING}/palace-lantern.svg DESTINATION share/icons/hicolor/scalable/apps)
foreach(size 16 22 24 32 48 64 128 256)
    install(FILES ${PACKAGING}/icons/palace-lantern-${size}.png
            DESTINATION share/icons/hicolor/${size}x${size}/apps RENAME palace-lantern.png)
endforeach()
install(DIRECTORY ${PROJECT_SOURCE_DIR}/help DESTINATION share/palace-lantern)
install(FILES ${PACKAGING}/debian-copyright DESTINATION share/doc/palace-lantern RENAME copyright)

function(install_compressed source destination name)
    execute_process(COMMAND gzip -9nc ${PACKAGING}/${source} OUTPUT_FILE ${CMAKE_BINARY_DIR}/packaging/${name}
                    COMMAND_ERROR_IS_FATAL ANY)
    install(FILES ${CMAKE_BINARY_DIR}/packaging/${name} DESTINATION ${destination})
endfunction()
install_compressed(changelog share/doc/palace-lantern changelog.gz)
install_compressed(palace-lantern.1 share/man/man1 palace-lantern.1.gz)

# What the libraries ask for is computed. No library says that these are needed: the typeface that stands in for
# Verdana, the opener of the help pages, and the plugin for desktops that have Wayland alone.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME palace-lantern)
set(CPACK_PACKAGE_CONTACT "The Palace Lantern founders <palace-lantern@localhost.invalid>")
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-dejavu-core, xdg-utils")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS qt6-wayland)
# CPack 3.25 adds scripts that call ldconfig, since the converter looks to it like a library for all programs.
# It adds none where the package names its own; these two names have no file, so the package gets no script.
set(CPACK_DEBIAN_PACKAGE_CONTROL_EXTRA ${PACKAGING}/postinst ${PACKAGING}/postrm)
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Palace Lantern casts a Zi Wei Dou Shu birth chart for one person and
explains it in English. A name and a birth date and time go in at a form;
out come a square of twelve palaces, an analysis of each, a printed page,
a picture and a small chart file.")
include(CPack)
