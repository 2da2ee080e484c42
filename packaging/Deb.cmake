# `cpack` in the build directory makes tarnic-pro_<version>_<arch>.deb. Its Depends line is worked
# out by dpkg-shlibdeps from the libraries the installed program links, never written by hand.
set(CPACK_GENERATOR "DEB")
set(CPACK_PACKAGE_NAME "tarnic-pro")
set(CPACK_PACKAGE_VENDOR "Tarnic")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_PACKAGING_INSTALL_PREFIX "/usr")
set(CPACK_STRIP_FILES ON)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "Tarnic <${TARNIC_SUPPORT_EMAIL}>")
# A tool beside a game, not a game: lintian rejects "games" for a package that holds none.
set(CPACK_DEBIAN_PACKAGE_SECTION "utils")
set(CPACK_DEBIAN_PACKAGE_PRIORITY "optional")
# Only a real site is a home page: the loopback default serves the repository's own copy of it.
if(NOT TARNIC_SITE_URL MATCHES "^[a-z]+://(127\\.|localhost|\\[::1\\])")
    set(CPACK_DEBIAN_PACKAGE_HOMEPAGE "${TARNIC_SITE_URL}")
endif()
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The game itself runs under Wine; the program works without it, so it is only suggested.
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "wine")
# The first line of the package description is the summary above; this is the long part.
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
    "Tarnic Pro gives the abilities of the game's units and heroes new hotkeys,
one by one or all on Q W E R at once, and exports them as the game's
CustomKeys.txt.

It also binds the six inventory slots of the selected hero to keys of your
choice: while the game runs, pressing a bound key taps the numeric-keypad
key the game uses for that slot. It needs an X11 or XWayland session whose
X server offers the RECORD and XTEST extensions.")

include(CPack)
