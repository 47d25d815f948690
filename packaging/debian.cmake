# The Debian package and the package of the sources, made by cpack (script/package).
execute_process(COMMAND date --utc --rfc-email --date=${TESSALY_RELEASE_DATE} OUTPUT_VARIABLE release_time
                OUTPUT_STRIP_TRAILING_WHITESPACE)
configure_file(debian/changelog.in debian/changelog @ONLY)
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tessaly)
set(CPACK_PACKAGE_CONTACT "The Tessaly developers <contact@tessaly.example>")
set(CPACK_PACKAGE_HOMEPAGE_URL "https://tessaly.example")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "logic puzzle of nineteen hexagons")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
    "Nineteen hexagons, each cut into six triangles: fill every hexagon with the
numbers 1 to 6, so that the two triangles on either side of a shared side
hold the same number. Every puzzle has exactly one solution and can be solved
without guessing.
.
A thousand puzzles come with it, and it makes as many new ones as you like,
in its window or with tessaly-cli on the command line.")
# What the debugger needs goes into a package of its own.
set(CPACK_DEBIAN_DEBUGINFO_PACKAGE ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Qt opens its windows through plugins, which no program is linked to.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-qpa-plugins")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-wayland, fonts-liberation, cups-client")
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS ${CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS})
configure_file("${CMAKE_CURRENT_LIST_DIR}/debian/places.cmake" "${CMAKE_CURRENT_BINARY_DIR}/debian/places.cmake" @ONLY)
set(CPACK_PRE_BUILD_SCRIPTS "${CMAKE_CURRENT_BINARY_DIR}/debian/places.cmake")
set(CPACK_SOURCE_GENERATOR TXZ)
set(CPACK_SOURCE_PACKAGE_FILE_NAME "tessaly-${PROJECT_VERSION}")
set(CPACK_SOURCE_IGNORE_FILES "${PROJECT_SOURCE_DIR}/build/;${PROJECT_SOURCE_DIR}/\\\\.git/")
include(CPack)
