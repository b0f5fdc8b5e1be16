# What `cmake --install` puts where, and the Debian package cpack makes of it.
# The host finds the plug-in folder and the translations relative to its own
# executable, so an installed tree works under any prefix and when unpacked
# anywhere else.

set(NORVANE_DOC_INSTALL_DIR "${CMAKE_INSTALL_DATADIR}/doc/norvane-inertial")

install(TARGETS norvane-host norvane-simd RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(TARGETS InertialTracking LIBRARY DESTINATION ${NORVANE_PLUGIN_INSTALL_DIR})
install(DIRECTORY simulator/scenarios/ DESTINATION ${NORVANE_DATA_INSTALL_DIR}/scenarios
        FILES_MATCHING PATTERN "*.json")
install(FILES host/norvane-host.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES host/images/norvane_64x64.png DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/64x64/apps
        RENAME norvane-host.png)
# The README's links point into docs/, so the docs keep that place beside it.
install(FILES README.md DESTINATION ${NORVANE_DOC_INSTALL_DIR})
install(DIRECTORY docs/ DESTINATION ${NORVANE_DOC_INSTALL_DIR}/docs)

set(CPACK_PACKAGE_NAME "norvane-inertial")
set(CPACK_PACKAGE_VENDOR "Norvane")
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY
    "Norvane tracking controller front end with the inertial tracking module")
set(CPACK_PACKAGE_DESCRIPTION [=[
norvane-host is the desktop front end of the Norvane optical tracking
controller. This package ships it with the inertial tracking module, which
finds, pairs, configures, warms up and calibrates wireless inertial sensors
and assigns them to the rigid bodies the controller tracks, and with
norvane-simd, a simulated controller for trying the front end without
hardware.]=])
set(NORVANE_MAINTAINER "Norvane front end team <frontend@norvane.invalid>"
    CACHE STRING "Maintainer field of the Debian package")
set(CPACK_GENERATOR "DEB")
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "${NORVANE_MAINTAINER}")
set(CPACK_DEBIAN_PACKAGE_SECTION "science")
set(CPACK_DEBIAN_PACKAGE_PRIORITY "optional")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE "https://norvane.invalid/")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_PACKAGING_INSTALL_PREFIX "/usr")
set(CPACK_STRIP_FILES ON)
include(CPack)
