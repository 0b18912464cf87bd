# Installing like a desktop game: the program and its launcher, the rival bands file, a menu
# entry, AppStream metadata and icons, each where the GNU install directories put it; and a
# .deb of the same through CPack (cpack -G DEB in the build folder).
set(TOURVANE_APP_ID io.github.tourvane.Tourvane)
set(TOURVANE_ICON_SIZES 16 22 24 32 48 64 128 256)

if(TARGET tourvane)
  # The icons are drawn at build time by the code that draws the icon in the game's windows.
  add_executable(tourvane-make-icons tools/make_icons.cpp)
  find_package(Qt6 REQUIRED COMPONENTS Svg)
  target_link_libraries(tourvane-make-icons PRIVATE tourvane_qt Qt6::Svg tourvane_warnings)
  set(icon_dir ${CMAKE_BINARY_DIR}/icons)
  set(icon_files ${icon_dir}/icon.svg)
  install(FILES ${icon_dir}/icon.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps
          RENAME ${TOURVANE_APP_ID}.svg)
  foreach(size IN LISTS TOURVANE_ICON_SIZES)
    list(APPEND icon_files ${icon_dir}/${size}x${size}.png)
    install(FILES ${icon_dir}/${size}x${size}.png
            DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps
            RENAME ${TOURVANE_APP_ID}.png)
  endforeach()
  add_custom_command(
    OUTPUT ${icon_files}
    COMMAND ${CMAKE_COMMAND} -E env ASAN_OPTIONS=detect_leaks=0
            $<TARGET_FILE:tourvane-make-icons> ${icon_dir} ${TOURVANE_ICON_SIZES}
    DEPENDS tourvane-make-icons
    COMMENT "Drawing the game's icons"
    VERBATIM)
  add_custom_target(tourvane-icons ALL DEPENDS ${icon_files})

  install(TARGETS tourvane RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
  # The menu entry starts the launcher, which runs the game in the player's own folder so
  # that saves never land in a system folder.
  install(PROGRAMS data/tourvane-launch DESTINATION ${CMAKE_INSTALL_BINDIR})
  install(FILES data/${TOURVANE_APP_ID}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
  install(FILES data/${TOURVANE_APP_ID}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
endif()
if(TARGET tourvane-script)
  install(TARGETS tourvane-script RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
endif()

# The manual pages, compressed as Debian keeps them (tourvane-launch's points at tourvane's),
# the machine-readable copyright file and the change log.
set(man_pages "")
foreach(page tourvane tourvane-launch tourvane-script)
  set(gz ${CMAKE_BINARY_DIR}/man/${page}.6.gz)
  add_custom_command(
    OUTPUT ${gz}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/man
    COMMAND sh -c "gzip -9n < \"$0\" > \"$1\"" ${CMAKE_CURRENT_SOURCE_DIR}/data/man/${page}.6 ${gz}
    DEPENDS data/man/${page}.6
    VERBATIM)
  list(APPEND man_pages ${gz})
endforeach()
add_custom_target(tourvane-man ALL DEPENDS ${man_pages})
install(FILES ${man_pages} DESTINATION ${CMAKE_INSTALL_MANDIR}/man6)
set(changelog ${CMAKE_BINARY_DIR}/changelog.gz)
add_custom_command(
  OUTPUT ${changelog}
  COMMAND sh -c "gzip -9n < \"$0\" > \"$1\"" ${CMAKE_CURRENT_SOURCE_DIR}/data/changelog ${changelog}
  DEPENDS data/changelog
  VERBATIM)
add_custom_target(tourvane-changelog ALL DEPENDS ${changelog})
install(FILES data/copyright ${changelog} DESTINATION ${CMAKE_INSTALL_DOCDIR})

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tourvane)
set(CPACK_PACKAGE_VENDOR "The Tourvane developers")
set(CPACK_PACKAGE_CONTACT "The Tourvane developers <tourvane@users.noreply.github.com>")
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "${CPACK_PACKAGE_CONTACT}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "rock band management game")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
    "Be the boss of a new four-piece rock band: hire members, write songs,\n\
play gigs, send demos to the record label, release singles and watch them\n\
climb the chart. One player, one week a click, until the band can no longer\n\
pay its wages.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Beside the libraries found by dpkg-shlibdeps: Qt's display plugins and the screens' fonts.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-qpa-plugins, fonts-liberation")
set(CPACK_STRIP_FILES ON)
include(CPack)
