# One interface target carries the flags that every target of ours is built with.
add_library(kestrune_flags INTERFACE)
target_include_directories(kestrune_flags INTERFACE ${PROJECT_SOURCE_DIR}/src ${PROJECT_BINARY_DIR}/generated)
target_compile_options(kestrune_flags INTERFACE
  -Wall -Wextra -Wpedantic -Werror -Wshadow -Wconversion -Wnon-virtual-dtor -Woverloaded-virtual -Wimplicit-fallthrough)
# GCC 12 takes inlined assignments of short literals to std::string for overlapping copies of 2^63 bytes (GCC bug
# 105329), and the inside of an empty std::optional for a variable that is read before it is set (GCC bug 80635), which
# stop every optimised build; later versions keep the warnings.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  target_compile_options(kestrune_flags INTERFACE -Wno-restrict $<$<NOT:$<CONFIG:Debug>>:-Wno-maybe-uninitialized>)
endif()
# COM's interfaces have no virtual destructors by design: objects go by Release.
if(WIN32)
  target_compile_options(kestrune_flags INTERFACE -Wno-non-virtual-dtor)
endif()
if(KESTRUNE_SANITIZERS)
  target_compile_options(kestrune_flags INTERFACE
    -fsanitize=${KESTRUNE_SANITIZERS} -fno-omit-frame-pointer -fno-sanitize-recover=all
    # GCC's instrumentation hides from it that a variant's members are written before they are read.
    $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
  target_link_options(kestrune_flags INTERFACE -fsanitize=${KESTRUNE_SANITIZERS})
endif()
