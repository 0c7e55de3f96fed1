# What the Windows build takes from elsewhere. The headers of a library that is made for Linux can be used as they are
# where they hold all of it; they get a folder of their own, since /usr/include belongs to another system.
set(header_only ${PROJECT_BINARY_DIR}/header-only)
file(MAKE_DIRECTORY ${header_only})
find_path(fmt_headers fmt/format.h PATHS /usr/include NO_CMAKE_FIND_ROOT_PATH REQUIRED)
file(CREATE_LINK ${fmt_headers}/fmt ${header_only}/fmt SYMBOLIC)
add_library(fmt::fmt INTERFACE IMPORTED)
target_include_directories(fmt::fmt SYSTEM INTERFACE ${header_only})
target_compile_definitions(fmt::fmt INTERFACE FMT_HEADER_ONLY)

# Everything is linked in: whoever loads one of our libraries needs nothing else installed.
add_compile_definitions(UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN _WIN32_WINNT=0x0601)
add_link_options(-static -static-libgcc -static-libstdc++)

# Type libraries and version resources. widl reads Wine's interface definitions and OLE's own type library.
enable_language(RC)
find_program(KESTRUNE_WIDL ${triplet}-widl REQUIRED)
find_path(KESTRUNE_IDL_INCLUDES oaidl.idl PATHS /usr/include/wine/wine/windows NO_CMAKE_FIND_ROOT_PATH REQUIRED)
find_path(KESTRUNE_STDOLE stdole2.tlb PATHS /usr/lib/x86_64-linux-gnu/wine/x86_64-windows NO_CMAKE_FIND_ROOT_PATH REQUIRED)
