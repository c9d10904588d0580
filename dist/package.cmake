# The Debian package, made by CPack from the same install as `cmake --install`:
#   cpack --config build/CPackConfig.cmake -G DEB -B build/package
set(CPACK_PACKAGE_NAME vantorel)
set(CPACK_PACKAGE_VENDOR "Vantorel developers")
set(CPACK_PACKAGE_CONTACT "Vantorel developers <noreply@vantorel.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "DPS calculator for starship builds in Star Trek Online")
# The long description, one line of at most 79 characters to each string.
set(CPACK_PACKAGE_DESCRIPTION
    "Describe a starship build (ship class, tier and sub-class, forward and rear\n"
    "weapons, weapon power and the distance to the target) and Vantorel shows the\n"
    "DPS of every firing arc and the average burst damage of torpedoes, mines and\n"
    "Beam Overload. Two builds can be compared side by side and drawn as a graph\n"
    "across the arcs, weapon power levels or ranges. vantorel-cli runs scripts of\n"
    "the same actions and prints the results as JSON.")
string(JOIN "" CPACK_PACKAGE_DESCRIPTION ${CPACK_PACKAGE_DESCRIPTION})
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_INSTALL_DIRECTORY vantorel)
set(CPACK_STRIP_FILES ON)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
# The libraries the programs link against, Qt's among them, as dpkg-shlibdeps
# finds them (it comes with dpkg-dev); Qt loads its window system plugins at
# run time, which no library names.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-qpa-plugins")
# The faces that stand in for the fonts the windows name: the captions'
# narrow sans, the boxes' sans and the manual's serif.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-dejavu-core, fonts-dejavu-extra, fonts-liberation2")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

include(CPack)
