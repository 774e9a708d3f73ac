# What is installed, and where. Programs find the libraries, the module and the texts beside
# themselves, so a prefix can be moved as a whole; the build tree has the same layout.

set_target_properties(kwselect kwdraw PROPERTIES INSTALL_RPATH "$ORIGIN/../lib")
set_target_properties(kwhost kwhostui PROPERTIES INSTALL_RPATH "$ORIGIN")
set_target_properties(KwQselectUtil PROPERTIES INSTALL_RPATH "$ORIGIN/..")

install(TARGETS kwselect kwdraw RUNTIME DESTINATION bin)
install(TARGETS kwhost kwhostui LIBRARY DESTINATION lib)
install(TARGETS KwQselectUtil LIBRARY DESTINATION lib/kwqselect)
foreach(language ${KW_LANGUAGES})
  install(TARGETS KwQselectUtilRes_${language} KrxOPMRes_${language}
    LIBRARY DESTINATION lib/kwqselect/resources/${language})
endforeach()

set(packaging ${PROJECT_SOURCE_DIR}/packaging)
install(FILES ${packaging}/man/kwselect.1 DESTINATION share/man/man1)
install(FILES ${packaging}/completion/kwselect.bash
  DESTINATION share/bash-completion/completions RENAME kwselect)
install(FILES ${packaging}/completion/_kwselect DESTINATION share/zsh/vendor-completions)
install(FILES ${packaging}/completion/kwselect.fish DESTINATION share/fish/vendor_completions.d)
install(FILES ${PROJECT_SOURCE_DIR}/LICENSE ${PROJECT_SOURCE_DIR}/README.md
  DESTINATION share/doc/kwqselect)
install(FILES ${packaging}/desktop/kwdraw.desktop DESTINATION share/applications)
install(FILES ${packaging}/desktop/kwdraw.svg DESTINATION share/icons/hicolor/scalable/apps)
install(FILES ${packaging}/desktop/org.kwqselect.kwdraw.metainfo.xml DESTINATION share/metainfo)
