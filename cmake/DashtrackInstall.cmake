# What `cmake --install` puts where, below any prefix (cmake/DashtrackInstallDirs.cmake): the
# programs, the probe module, the data they read at run time, and the files that make the player
# known to the desktop (desktop entry, AppStream metadata, icons), the manual pages and licences.

install(TARGETS dashtrack-gps RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(TARGETS dashtrack-gps-probe LIBRARY DESTINATION ${DASHTRACK_INSTALL_MODULEDIR})
install(FILES ${PROJECT_SOURCE_DIR}/resources/Env.plist DESTINATION ${DASHTRACK_INSTALL_RESOURCEDIR})

# A manual page with this build's version and paths, compressed as Debian installs them.
function(dashtrack_install_man_page name)
  set(page ${CMAKE_BINARY_DIR}/man/${name}.1)
  configure_file(${PROJECT_SOURCE_DIR}/resources/man/${name}.1.in ${page} @ONLY)
  file(ARCHIVE_CREATE OUTPUT ${page}.gz PATHS ${page} FORMAT raw COMPRESSION GZip COMPRESSION_LEVEL 9)
  install(FILES ${page}.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
endfunction()
dashtrack_install_man_page(dashtrack-gps)

if(DASHTRACK_GUI)
  # The launcher `dashtrack` and the window it starts, `dashtrack-window`, side by side.
  install(TARGETS dashtrack dashtrack_launcher RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
  install(FILES ${DASHTRACK_RESOURCE_BUILD_DIR}/DigifaceWide.ttf ${PROJECT_SOURCE_DIR}/resources/DigifaceWide-OFL.txt
          DESTINATION ${DASHTRACK_INSTALL_RESOURCEDIR})
  # Translations are read from here; the folder exists even before any are installed into it.
  install(DIRECTORY DESTINATION ${DASHTRACK_INSTALL_TRANSLATIONSDIR})

  dashtrack_install_man_page(dashtrack)

  install(FILES ${PROJECT_SOURCE_DIR}/resources/dashtrack.desktop
          DESTINATION ${CMAKE_INSTALL_DATADIR}/applications RENAME ${DASHTRACK_APP_ID}.desktop)
  configure_file(${PROJECT_SOURCE_DIR}/resources/dashtrack.metainfo.xml.in
                 ${CMAKE_BINARY_DIR}/resources/${DASHTRACK_APP_ID}.metainfo.xml @ONLY)
  install(FILES ${CMAKE_BINARY_DIR}/resources/${DASHTRACK_APP_ID}.metainfo.xml
          DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)

  # The icons are drawn under the program's short name and installed under the application's id.
  set(icon_theme_dir ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
  install(FILES ${DASHTRACK_ICON_BUILD_DIR}/scalable/apps/dashtrack.svg
          DESTINATION ${icon_theme_dir}/scalable/apps RENAME ${DASHTRACK_APP_ID}.svg)
  foreach(size IN LISTS DASHTRACK_ICON_SIZES)
    install(FILES ${DASHTRACK_ICON_BUILD_DIR}/${size}x${size}/apps/dashtrack.png
            DESTINATION ${icon_theme_dir}/${size}x${size}/apps RENAME ${DASHTRACK_APP_ID}.png)
  endforeach()

  install(FILES ${PROJECT_SOURCE_DIR}/resources/DigifaceWide-OFL.txt DESTINATION ${DASHTRACK_INSTALL_DOCDIR})
endif()
