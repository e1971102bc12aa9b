# SPDX-License-Identifier: MIT
# What is installed on Linux, and the Debian package of it. script/package builds everything first.
include(GNUInstallDirs)

set(orrerix_programs orrerix-cli orrerix-demo)
if(ORRERIX_WITH_QT)
  list(PREPEND orrerix_programs orrerix)
endif()
install(TARGETS ${orrerix_programs})

set(linux ${CMAKE_SOURCE_DIR}/packaging/linux)
set(documents ${CMAKE_INSTALL_DATADIR}/doc/orrerix)
install(FILES ${linux}/io.github.orrerix.Orrerix.desktop
  DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${linux}/io.github.orrerix.Orrerix.metainfo.xml
  DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${CMAKE_SOURCE_DIR}/assets/pictures/application.svg
  DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps RENAME orrerix.svg)
install(FILES ${linux}/copyright DESTINATION ${documents})
install(FILES ${CMAKE_SOURCE_DIR}/docs/manual.md ${CMAKE_SOURCE_DIR}/docs/command-line.md
  DESTINATION ${documents})
install(DIRECTORY ${CMAKE_SOURCE_DIR}/docs/images DESTINATION ${documents})

# Made by script/package before it packs.
install(DIRECTORY ${CMAKE_BINARY_DIR}/package/share/ DESTINATION ${CMAKE_INSTALL_DATADIR} OPTIONAL)

configure_file(${linux}/changelog.in ${CMAKE_BINARY_DIR}/package/changelog @ONLY)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME orrerix)
set(CPACK_PACKAGE_CONTACT "The Orrerix authors <authors@orrerix.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "star map of a game's universe")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Reads the data files of an installed copy of the space game Freelancer, or of
a mod, and shows its universe as a star map that can be zoomed. Finds ways,
trades, ships and equipment, and checks the files of a mod for mistakes. Comes
with a command line and a program that writes a made-up game to try it with.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR})
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-dejavu-core, fonts-liberation")
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
include(CPack)
