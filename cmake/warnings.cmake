# One interface target carries the flags that every target of ours is built with.
add_library(kestrune_flags INTERFACE)
target_include_directories(kestrune_flags INTERFACE ${PROJECT_SOURCE_DIR}/src ${PROJECT_BINARY_DIR}/generated)
target_compile_options(kestrune_flags INTERFACE
  -Wall -Wextra -Wpedantic -Werror -Wshadow -Wconversion -Wnon-virtual-dtor -Woverloaded-virtual -Wimplicit-fallthrough)
if(KESTRUNE_SANITIZERS)
  target_compile_options(kestrune_flags INTERFACE
    -fsanitize=${KESTRUNE_SANITIZERS} -fno-omit-frame-pointer -fno-sanitize-recover=all)
  target_link_options(kestrune_flags INTERFACE -fsanitize=${KESTRUNE_SANITIZERS})
endif()
