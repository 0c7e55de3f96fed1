# cmake --install build/release --prefix DIR puts the command line and its licence where Linux looks for them.
include(GNUInstallDirs)
if(TARGET kestrune)
  install(TARGETS kestrune RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
  install(FILES LICENSE README.md CHANGELOG.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
endif()
