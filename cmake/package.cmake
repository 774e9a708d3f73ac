# A Debian package of all that is installed: `cpack -G DEB` in a build tree.

set(CPACK_PACKAGE_NAME kwqselect)
set(CPACK_PACKAGE_VENDOR "The KwQselect developers")
set(CPACK_PACKAGE_CONTACT "The KwQselect developers <kwqselect@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "find entities of CAD drawings by their properties")
set(CPACK_PACKAGE_DESCRIPTION
  "Finds every entity of a DXF drawing that has a certain property and makes it the selection:
from the shell with kwselect, in a window with kwdraw.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_GENERATOR DEB)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The libraries of the package itself, among which those that depend on each other are looked for.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS OFF)
include(CPack)
