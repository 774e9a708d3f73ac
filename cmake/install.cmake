# What is installed, and where: the programs with all that they need (component "runtime"), and what
# makers of hosts and of providers build with (component "sdk"). Programs find the libraries, the
# module and the texts beside themselves, so a prefix can be moved as a whole; the build tree has the
# same layout.

include(CMakePackageConfigHelpers)

set_target_properties(kwselect kwdraw PROPERTIES INSTALL_RPATH "$ORIGIN/../lib")
set_target_properties(kwhost kwhostui PROPERTIES INSTALL_RPATH "$ORIGIN")
set_target_properties(KwQselectUtil PROPERTIES INSTALL_RPATH "$ORIGIN/..")

set(packaging ${PROJECT_SOURCE_DIR}/packaging)
set(prepared ${PROJECT_BINARY_DIR}/packaging)

# The programs.

set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME runtime)
install(TARGETS kwselect kwdraw RUNTIME DESTINATION bin)
install(TARGETS kwhost kwhostui EXPORT KwQselect LIBRARY DESTINATION lib)
install(TARGETS KwQselectUtil LIBRARY DESTINATION lib/kwqselect)
foreach(language ${KW_LANGUAGES})
  install(TARGETS KwQselectUtilRes_${language} KrxOPMRes_${language}
    LIBRARY DESTINATION lib/kwqselect/resources/${language})
  install(FILES ${CMAKE_LIBRARY_OUTPUT_DIRECTORY}/kwqselect/resources/${language}/kwdraw.qm
    DESTINATION lib/kwqselect/resources/${language})
endforeach()

install(FILES ${packaging}/man/kwdraw.1 ${packaging}/man/kwselect.1 DESTINATION share/man/man1)
install(FILES ${packaging}/completion/kwselect.bash
  DESTINATION share/bash-completion/completions RENAME kwselect)
install(FILES ${packaging}/completion/_kwselect DESTINATION share/zsh/vendor-completions)
install(FILES ${packaging}/completion/kwselect.fish DESTINATION share/fish/vendor_completions.d)
install(FILES ${PROJECT_SOURCE_DIR}/LICENSE ${PROJECT_SOURCE_DIR}/README.md
  DESTINATION share/doc/kwqselect)
install(FILES ${packaging}/desktop/kwdraw.desktop DESTINATION share/applications)
install(FILES ${packaging}/desktop/kwdraw.svg DESTINATION share/icons/hicolor/scalable/apps)
configure_file(${packaging}/desktop/org.kwqselect.kwdraw.metainfo.xml
  ${prepared}/org.kwqselect.kwdraw.metainfo.xml @ONLY)
install(FILES ${prepared}/org.kwqselect.kwdraw.metainfo.xml DESTINATION share/metainfo)

# The SDK.

set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME sdk)
set(config lib/cmake/KwQselect)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/host/include/ DESTINATION include/kwqselect
  FILES_MATCHING PATTERN "*.h")
install(TARGETS host_headers EXPORT KwQselect)
install(EXPORT KwQselect NAMESPACE KwQselect:: FILE KwQselectTargets.cmake DESTINATION ${config})
configure_package_config_file(${packaging}/sdk/KwQselectConfig.cmake.in
  ${prepared}/KwQselectConfig.cmake INSTALL_DESTINATION ${config})
# Before 1.0 any new minor version may ask for changes in hosts.
write_basic_package_version_file(${prepared}/KwQselectConfigVersion.cmake
  COMPATIBILITY SameMinorVersion)
install(FILES ${prepared}/KwQselectConfig.cmake ${prepared}/KwQselectConfigVersion.cmake
  DESTINATION ${config})
foreach(library kwhost kwhostui)
  configure_file(${packaging}/sdk/${library}.pc.in ${prepared}/${library}.pc @ONLY)
  install(FILES ${prepared}/${library}.pc DESTINATION lib/pkgconfig)
endforeach()
install(FILES ${PROJECT_SOURCE_DIR}/docs/integration.md DESTINATION share/doc/kwqselect-dev)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/examples/sdk/
  DESTINATION share/doc/kwqselect-dev/examples)
