# What `make install` puts in place and what `make package` wraps into a Debian package.
include(GNUInstallDirs)

set(LOREKA_PACKAGING ${PROJECT_SOURCE_DIR}/packaging)
set(LOREKA_APP_ID org.qtloreka.qtLoreka)

install(FILES ${LOREKA_PACKAGING}/${LOREKA_APP_ID}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${LOREKA_PACKAGING}/${LOREKA_APP_ID}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${PROJECT_SOURCE_DIR}/resources/window/zq-icon-96.png
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/96x96/apps RENAME ${LOREKA_APP_ID}.png)
install(FILES ${LOREKA_PACKAGING}/loreka.bash
        DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME loreka)

# Debian wants manual pages and the changelog compressed without a time stamp.
find_program(GZIP_PROGRAM gzip REQUIRED)
set(LOREKA_GZIPPED)
foreach(source qtLoreka.1 loreka.1 changelog)
    set(gzipped ${CMAKE_CURRENT_BINARY_DIR}/packaging/${source}.gz)
    add_custom_command(OUTPUT ${gzipped}
                       COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_CURRENT_BINARY_DIR}/packaging
                       COMMAND ${GZIP_PROGRAM} -9n -c ${LOREKA_PACKAGING}/${source} > ${gzipped}
                       DEPENDS ${LOREKA_PACKAGING}/${source} VERBATIM)
    list(APPEND LOREKA_GZIPPED ${gzipped})
endforeach()
add_custom_target(packaging_files ALL DEPENDS ${LOREKA_GZIPPED})
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/packaging/qtLoreka.1.gz ${CMAKE_CURRENT_BINARY_DIR}/packaging/loreka.1.gz
        DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/packaging/changelog.gz ${LOREKA_PACKAGING}/copyright
        DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/qtloreka)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME qtloreka)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "qtLoreka developers <dev@qtloreka.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "editor for the data files of the role-playing game Arcanum")
string(CONCAT CPACK_PACKAGE_DESCRIPTION
    "qtLoreka edits the message, dialogue, script, sprite, palette and\n"
    "prototype files of Arcanum, loose or inside the game's archives, with\n"
    "undo on every page. The command-line companion loreka checks a whole\n"
    "game or mod, dumps, round-trips and exports files and handles archives.")
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION editors)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE "https://qtloreka.org")
include(CPack)
