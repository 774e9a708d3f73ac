# Two Debian packages, one for each component that is installed: `cpack -G DEB` in a build tree.

set(CPACK_PACKAGE_NAME kwqselect)
set(CPACK_PACKAGE_VENDOR "The KwQselect developers")
set(CPACK_PACKAGE_CONTACT "The KwQselect developers <kwqselect@localhost>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_GENERATOR DEB)
set(CPACK_COMPONENTS_ALL runtime sdk)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)

# The first line of a description is the summary.
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION
  "find entities of CAD drawings by their properties
Finds every entity of a DXF drawing that has a certain property and makes it the selection:
from the shell with kwselect, in a window with kwdraw.")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME kwqselect)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_RECOMMENDS qttranslations5-l10n) # the buttons of Qt's own dialogs
# The libraries of the package itself, among which those that depend on each other are looked for.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS OFF)

set(CPACK_COMPONENT_SDK_DESCRIPTION
  "build hosts and property providers for KwQselect
Headers, CMake package and examples for programs that load the quick-select module, and for
libraries that add properties to what it can find.")
set(CPACK_DEBIAN_SDK_PACKAGE_NAME kwqselect-dev)
set(CPACK_DEBIAN_SDK_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_SDK_PACKAGE_DEPENDS "kwqselect (= ${PROJECT_VERSION}), qtbase5-dev")
include(CPack)
