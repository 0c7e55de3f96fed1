# cmake --install build/release --prefix DIR puts the command line, its manual and its examples where Linux looks for
# them; cpack --config build/release/CPackConfig.cmake makes a Debian package of the same files.
include(GNUInstallDirs)
if(NOT TARGET kestrune)
  return()
endif()

set(data ${CMAKE_INSTALL_DATADIR}/kestrune)
install(TARGETS kestrune RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(FILES "${PROJECT_BINARY_DIR}/help/Kestrune Help.html" DESTINATION ${data})
install(FILES examples/three-statement-model.xlsx DESTINATION ${data}/examples)
install(FILES completions/kestrune.bash DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME kestrune)
install(FILES completions/_kestrune DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions)
install(FILES completions/kestrune.fish DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d)
install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR} RENAME copyright)
install(FILES docs/command-line.md docs/hot-keys.md docs/preferences-file.md docs/autocolor.md docs/undo.md
  docs/autocolor.png docs/autocolor-classes.png DESTINATION ${CMAKE_INSTALL_DOCDIR})

# What Python writes: the manual page from what the program says of itself, and the examples.
if(DEBIAN_PYTHON)
  add_custom_command(OUTPUT ${PROJECT_BINARY_DIR}/kestrune.1.gz
    COMMAND ${DEBIAN_PYTHON} -B ${PROJECT_SOURCE_DIR}/scripts/man-page $<TARGET_FILE:kestrune> ${PROJECT_BINARY_DIR}/kestrune.1
    COMMAND gzip -9nf ${PROJECT_BINARY_DIR}/kestrune.1
    DEPENDS kestrune ${PROJECT_SOURCE_DIR}/scripts/man-page COMMENT "Writing the manual page" VERBATIM)
  add_custom_target(manual ALL DEPENDS ${PROJECT_BINARY_DIR}/kestrune.1.gz)
  install(FILES ${PROJECT_BINARY_DIR}/kestrune.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
endif()
if(TARGET examples)
  install(FILES "${PROJECT_BINARY_DIR}/Kestrune Examples.xls" DESTINATION ${data}/Files)
endif()

# Debian's own form of a change log, compressed as its rules ask for.
file(READ CHANGELOG.md changes)
string(REGEX MATCH "\n## \\[${PROJECT_VERSION}\\][^\n]*" heading "${changes}")
if(NOT heading)
  message(FATAL_ERROR "CHANGELOG.md has no entry for version ${PROJECT_VERSION}")
endif()
set(KESTRUNE_CONTACT "Kestrune developers <developers@kestrune.invalid>")
configure_file(packaging/debian/changelog.in ${PROJECT_BINARY_DIR}/debian/changelog @ONLY)
execute_process(COMMAND gzip -9nf ${PROJECT_BINARY_DIR}/debian/changelog COMMAND_ERROR_IS_FATAL ANY)
install(FILES ${PROJECT_BINARY_DIR}/debian/changelog.gz DESTINATION ${CMAKE_INSTALL_DOCDIR})

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME kestrune)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT ${KESTRUNE_CONTACT})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "format, colour and restructure Excel models")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Kestrune's commands for people who build financial models, on .xlsx and .xlsm
files and without Excel: SmartCycles, which step a selection through styles and
sizes; Smart tools, which copy and fill as modellers do; AutoColor, which tells
inputs, formulas and links apart. What it does not understand in a workbook, it
keeps byte for byte.")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_STRIP_FILES ON)
set(CPACK_OUTPUT_FILE_PREFIX ${PROJECT_BINARY_DIR}/packages)
include(CPack)
