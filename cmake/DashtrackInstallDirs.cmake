# Where an installed Dashtrack keeps its parts below any prefix, and the same places as seen from
# the programs' own folder: the programs find their data and the probe module relative to
# themselves, so a tree installed under one prefix (or DESTDIR) keeps working when moved.
include(GNUInstallDirs)

# The desktop's name for the application: desktop entry, AppStream metadata and icon share it.
set(DASHTRACK_APP_ID io.github.dashtrack.Dashtrack)

set(DASHTRACK_INSTALL_RESOURCEDIR ${CMAKE_INSTALL_DATADIR}/dashtrack)
# Translations go here, under the resource folder, where the program looks for them.
set(DASHTRACK_INSTALL_TRANSLATIONSDIR ${DASHTRACK_INSTALL_RESOURCEDIR}/translations)
# A private folder: the probe module is loaded by path, never by the dynamic linker's search.
set(DASHTRACK_INSTALL_MODULEDIR ${CMAKE_INSTALL_LIBDIR}/dashtrack)
set(DASHTRACK_INSTALL_DOCDIR ${CMAKE_INSTALL_DATADIR}/doc/dashtrack)

# The same folders under the configured prefix: the manual pages name them, and a program that
# finds no folder of its own beside it falls back to the resource folder.
set(DASHTRACK_FULL_RESOURCEDIR ${CMAKE_INSTALL_FULL_DATADIR}/dashtrack)
set(DASHTRACK_FULL_MODULEDIR ${CMAKE_INSTALL_FULL_LIBDIR}/dashtrack)

file(RELATIVE_PATH DASHTRACK_BIN_TO_RESOURCEDIR ${CMAKE_INSTALL_FULL_BINDIR} ${DASHTRACK_FULL_RESOURCEDIR})
file(RELATIVE_PATH DASHTRACK_BIN_TO_MODULEDIR ${CMAKE_INSTALL_FULL_BINDIR} ${DASHTRACK_FULL_MODULEDIR})
