# cmake --install build/release --prefix DIR puts the command line and its licence where Linux looks for them.
include(GNUInstallDirs)
if(TARGET kestrune)
  install(TARGETS kestrune RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
  install(FILES LICENSE README.md CHANGELOG.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
  install(FILES completions/kestrune.bash DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME kestrune)
  install(FILES completions/_kestrune DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions)
  install(FILES completions/kestrune.fish DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d)
endif()
