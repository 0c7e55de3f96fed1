# kestrune_wine_tests(<folder below tests> DEPENDS <targets> [PROGRAM <program and arguments>])
# One test program a folder, which CTest runs as one test under Wine: starting Wine costs more than most cases. PROGRAM is
# what runs Wine in its turn. The prefix lies in the build folder and is made by the fixture wine_prefix.
find_program(KESTRUNE_WINE NAMES wine64 wine PATHS /usr/lib/wine NO_CMAKE_FIND_ROOT_PATH)
find_program(KESTRUNE_WINEBOOT NAMES wineboot wineboot-stable NO_CMAKE_FIND_ROOT_PATH)
find_program(KESTRUNE_WINESERVER NAMES wineserver wineserver-stable NO_CMAKE_FIND_ROOT_PATH)
set(KESTRUNE_WINE_ENVIRONMENT
  WINEPREFIX=${PROJECT_BINARY_DIR}/wine WINEDEBUG=-all WINEDLLOVERRIDES=mscoree,mshtml=)

function(kestrune_wine_tests folder)
  cmake_parse_arguments(ARG "" "" "DEPENDS;PROGRAM" ${ARGN})
  string(REPLACE "/" "_" suffix ${folder})
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/tests/${folder}/*.cpp)
  if(NOT sources)
    return()
  endif()
  add_executable(${suffix}_tests ${sources})
  target_link_libraries(${suffix}_tests PRIVATE ${ARG_DEPENDS} kestrune_flags GTest::gmock GTest::gtest_main)
  target_include_directories(${suffix}_tests PRIVATE ${PROJECT_SOURCE_DIR}/tests)
  target_compile_definitions(${suffix}_tests PRIVATE KESTRUNE_SOURCE_DIR="Z:${PROJECT_SOURCE_DIR}")
  add_test(NAME ${suffix}_tests COMMAND ${ARG_PROGRAM} ${KESTRUNE_WINE} $<TARGET_FILE:${suffix}_tests>
    WORKING_DIRECTORY ${PROJECT_SOURCE_DIR})
  set_tests_properties(${suffix}_tests PROPERTIES
    ENVIRONMENT "${KESTRUNE_WINE_ENVIRONMENT}" FIXTURES_REQUIRED wine_prefix TIMEOUT 300)
endfunction()
