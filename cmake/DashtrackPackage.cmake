# The Debian package (`make package`, or cpack in the build folder): what the install rules put
# under /usr, with its dependencies worked out by dpkg-shlibdeps from the installed programs.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME dashtrack)
set(CPACK_PACKAGE_VENDOR "The Dashtrack developers")
set(CPACK_PACKAGE_CONTACT "The Dashtrack developers <dashtrack@users.noreply.github.com>")
set(CPACK_PACKAGE_HOMEPAGE_URL https://github.com/dashtrack/dashtrack)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "player for dash camera movies with their GPS track")
set(CPACK_PACKAGE_DESCRIPTION
    "Dashtrack plays the movies that car dash cameras record and shows, in step with the
picture, the speed in large LED digits, the latitude and longitude, the date and time,
and a map with the route driven so far. It reads the GPS track the camera stores inside
MP4 and MOV files, GoPro GPMF metadata, NMEA in the movie, and NMEA or GPX files beside
it, and joins a camera's short clips back into trips.
.
The dashtrack-gps command exports the tracks as JSON, CSV, GPX, GeoJSON or KML.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
# Debug information would carry build-folder paths into the package; dpkg-shlibdeps still sees
# every library the programs need.
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION video)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Loaded at run time, so dpkg-shlibdeps cannot see them: Qt's SQLite driver reads MBTiles maps;
# map tiles come over HTTPS; Liberation Sans stands in for Arial.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libqt6sql6-sqlite")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "ca-certificates, fonts-liberation")
# Folders the package shares with the system are not its own.
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
include(CPack)
