# GoogleTest from its sources, which Debian ships beside the Linux library.
find_path(googletest_sources googletest/src/gtest-all.cc PATHS /usr/src/googletest NO_CMAKE_FIND_ROOT_PATH REQUIRED)
foreach(part gtest gmock)
  string(REPLACE gtest googletest folder ${part})
  string(REPLACE gmock googlemock folder ${folder})
  add_library(${part} STATIC ${googletest_sources}/${folder}/src/${part}-all.cc)
  target_include_directories(${part} SYSTEM PUBLIC ${googletest_sources}/${folder}/include
    PRIVATE ${googletest_sources}/${folder})
  add_library(GTest::${part} ALIAS ${part})
endforeach()
target_link_libraries(gmock PUBLIC gtest)
add_library(gtest_main STATIC ${googletest_sources}/googletest/src/gtest_main.cc)
target_link_libraries(gtest_main PUBLIC gtest)
add_library(GTest::gtest_main ALIAS gtest_main)
