# The libraries of the core, for this project and for the fuzzers.
find_package(PkgConfig REQUIRED)
pkg_check_modules(libplist REQUIRED IMPORTED_TARGET libplist-2.0)
pkg_check_modules(utf8proc REQUIRED IMPORTED_TARGET libutf8proc)

# One call changed between libplist 2.2 and 2.6. Which one is there is asked of the library itself,
# and platform/plist_compat.h makes it.
include(CheckCXXSymbolExists)
set(CMAKE_REQUIRED_LIBRARIES PkgConfig::libplist)
check_cxx_symbol_exists(plist_mem_free plist/plist.h PLIST_HAS_MEM_FREE)
unset(CMAKE_REQUIRED_LIBRARIES)
target_compile_definitions(PkgConfig::libplist INTERFACE
  PLIST_HAS_MEM_FREE=$<BOOL:${PLIST_HAS_MEM_FREE}>)
