# What is installed where, and the Debian package of it. A link on the path leads to the program.
install(TARGETS palace-lantern RUNTIME DESTINATION ${PROGRAM_FOLDER})
install(TARGETS Bmp2Jpeg LIBRARY DESTINATION ${PROGRAM_FOLDER})
file(RELATIVE_PATH PROGRAM_FROM_PATH ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR}/palace-lantern)
file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/packaging)
file(CREATE_LINK ${PROGRAM_FROM_PATH}/palace-lantern ${CMAKE_BINARY_DIR}/packaging/palace-lantern SYMBOLIC)
install(FILES ${CMAKE_BINARY_DIR}/packaging/palace-lantern DESTINATION ${CMAKE_INSTALL_BINDIR})

set(PACKAGING ${CMAKE_CURRENT_LIST_DIR})
install(FILES ${PACKAGING}/palace-lantern.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${PACKAGING}/palace-lantern.mime.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages
        RENAME palace-lantern.xml)
install(FILES ${PACKAGING}/palace-lantern.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo
        RENAME org.example.palacelantern.metainfo.xml)
set(ICONS ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
install(FILES ${PACKAGING}/palace-lantern.svg DESTINATION ${ICONS}/scalable/apps)
foreach(size 16 22 24 32 48 64 128 256)
    install(FILES ${PACKAGING}/icons/palace-lantern-${size}.png
            DESTINATION ${ICONS}/${size}x${size}/apps RENAME palace-lantern.png)
endforeach()
install(DIRECTORY ${PROJECT_SOURCE_DIR}/help/ DESTINATION ${HELP_FOLDER})
install(FILES ${PACKAGING}/debian-copyright DESTINATION ${CMAKE_INSTALL_DOCDIR} RENAME copyright)
install(FILES ${PACKAGING}/changelog DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(FILES ${PACKAGING}/palace-lantern.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)

# What the libraries ask for is computed. No library says that these are needed: the typeface that stands in for
# Verdana, the opener of the help pages, and the plugin for desktops that have Wayland alone.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_CONTACT "The Palace Lantern founders <palace-lantern@localhost.invalid>")
set(CPACK_STRIP_FILES ON)
set(CPACK_PRE_BUILD_SCRIPTS ${PACKAGING}/compress.cmake)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-dejavu-core, xdg-utils")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS qt6-wayland)
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Palace Lantern casts a Zi Wei Dou Shu birth chart for one person and
explains it in English. A name and a birth date and time go in at a form;
out come a square of twelve palaces, an analysis of each, a printed page,
a picture and a small chart file.")
include(CPack)
