# Installation and the Debian package.
#
# hostcli finds libzekcli.so through $ORIGIN and libzekcli.so opens
# libhbaclient.so from the folder of the running program, so the programs and
# libraries live together in a private folder, libexec/zekcli (outside the
# library folders, so the system's library cache has nothing to do with it). The commands on
# PATH are links into it: the loader resolves $ORIGIN, and the system the
# program's folder, through the link to the real file.
include(GNUInstallDirs)
set(ZEK_PRIVATE_DIR ${CMAKE_INSTALL_LIBEXECDIR}/zekcli)

install(TARGETS hostcli hbasim RUNTIME DESTINATION ${ZEK_PRIVATE_DIR})
# Shared objects are mapped, not run: they carry no execute bits.
install(TARGETS zekcli hbaclient LIBRARY DESTINATION ${ZEK_PRIVATE_DIR}
  PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
foreach(program hostcli hbasim)
  install(CODE "
    file(MAKE_DIRECTORY \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_BINDIR}\")
    file(CREATE_LINK ../${ZEK_PRIVATE_DIR}/${program}
         \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_BINDIR}/${program}\" SYMBOLIC)")
endforeach()

# What every Debian package carries beside its files.
set(ZEK_DOC_DIR ${CMAKE_INSTALL_DATADIR}/doc/zekcli)
install(FILES ${CMAKE_SOURCE_DIR}/cmake/packaging/copyright DESTINATION ${ZEK_DOC_DIR})
set(ZEK_CHANGELOG ${CMAKE_BINARY_DIR}/packaging/changelog.gz)
add_custom_command(OUTPUT ${ZEK_CHANGELOG}
  COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/packaging
  COMMAND gzip -9nc ${CMAKE_SOURCE_DIR}/cmake/packaging/changelog > ${ZEK_CHANGELOG}
  DEPENDS ${CMAKE_SOURCE_DIR}/cmake/packaging/changelog)
add_custom_target(zek-changelog ALL DEPENDS ${ZEK_CHANGELOG})
install(FILES ${ZEK_CHANGELOG} DESTINATION ${ZEK_DOC_DIR})

set(CPACK_PACKAGE_NAME zekcli)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "zekcli developers <zekcli@example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "management CLI for caching Fibre Channel host bus adapters")
set(CPACK_PACKAGE_DESCRIPTION
  "zekcli manages a family of Fibre Channel host bus adapters that cache SAN\n"
  "LUNs on their own SSDs: adapters, clusters, LUN caching, drives and pools,\n"
  "ports and targets, logs, health and statistics. This package carries the\n"
  "device simulator in place of the vendor's management library, its manual\n"
  "pages, bash completion and the result-file decoder zekcli-result.")
string(REPLACE ";" "" CPACK_PACKAGE_DESCRIPTION "${CPACK_PACKAGE_DESCRIPTION}")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_PACKAGE_SECTION admin)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_BINARY_DIR}/bin)
# Only what this project installs goes into the package.
set(CPACK_INSTALL_CMAKE_PROJECTS "${CMAKE_BINARY_DIR};${PROJECT_NAME};ALL;/")
include(CPack)
