# What `cmake --install` puts on a machine, and the Debian package made of it.
# The program goes to bin/, its read-only data to share/zafro/, and the desktop's
# own files (menu entry, icons, metainfo) where the freedesktop conventions expect them.

set(_dist ${PROJECT_SOURCE_DIR}/dist)
set(_icons ${PROJECT_SOURCE_DIR}/assets/icons)

install(TARGETS zafrosuite RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(FILES ${CMAKE_BINARY_DIR}/zafromdata.zfx DESTINATION ${CMAKE_INSTALL_DATADIR}/zafro)
install(FILES ${_dist}/zafrosuite.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${_dist}/io.github.zafro.ZafroSuite.metainfo.xml
        DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${_icons}/zafrosuite.svg
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
foreach(_size 16 32 48 64 128 256)
  install(FILES ${_icons}/zafrosuite-${_size}.png
          DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${_size}x${_size}/apps
          RENAME zafrosuite.png)
endforeach()

# The manual page and the Debian changelog go in compressed, without time stamps, so
# that two builds of one version give the same files.
find_program(GZIP_PROGRAM gzip REQUIRED)
set(_man ${CMAKE_BINARY_DIR}/zafrosuite.1.gz)
# A native package (no Debian revision) names it changelog.gz.
set(_changelog ${CMAKE_BINARY_DIR}/changelog.gz)
add_custom_command(OUTPUT ${_man}
  COMMAND ${GZIP_PROGRAM} -9 -n -c ${_dist}/zafrosuite.1 > ${_man}
  DEPENDS ${_dist}/zafrosuite.1 VERBATIM)
add_custom_command(OUTPUT ${_changelog}
  COMMAND ${GZIP_PROGRAM} -9 -n -c ${_dist}/debian/changelog > ${_changelog}
  DEPENDS ${_dist}/debian/changelog VERBATIM)
add_custom_target(zafro_dist_files ALL DEPENDS ${_man} ${_changelog})
install(FILES ${_man} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES ${_dist}/debian/copyright ${_changelog}
        DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/zafrosuite)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME zafrosuite)
set(CPACK_PACKAGE_VENDOR Tirsamontes)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "collection of small maths and everyday tools")
set(CPACK_PACKAGE_DESCRIPTION
    "Zafro Suite gathers twenty-eight small tools behind one launcher window:\n"
    "graphs of curves, matrices, quadratic equations, the digits of pi, Roman\n"
    "numerals, the Spanish NIF letter and ISBN check characters, the dating of\n"
    "Spanish vehicle plates, a loan calculator, a currency converter, three games,\n"
    "Morse code and a stopwatch. It speaks Spanish, English and Valencian.")
string(REPLACE ";" "" CPACK_PACKAGE_DESCRIPTION "${CPACK_PACKAGE_DESCRIPTION}")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES TRUE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "Zafro Suite <dev@zafrosuite.com>")
set(CPACK_DEBIAN_PACKAGE_SECTION math)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE "http://www.zafrosuite.com")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Loaded by Qt at run time, so the library scan cannot see it: the X11 platform plugin.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-qpa-plugins")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION TRUE)
include(CPack)
