# What is asked of the compiler. Flags of the environment stay and come first; nothing here takes
# them back.
add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wconversion)
# GCC 12 sees overlaps in the standard library's joining of texts that are none (its bug 105651).
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  add_compile_options(-Wno-restrict)
endif()
if(QUILLON_WERROR)
  add_compile_options(-Werror)
endif()

# Disk images larger than 2 GiB on 32-bit machines, too.
add_compile_definitions(_FILE_OFFSET_BITS=64)

if(QUILLON_HARDENING)
  # A level that the environment or the compiler chose is kept: a second one is a warning.
  include(CheckCXXSourceCompiles)
  set(CMAKE_REQUIRED_FLAGS -O2)
  check_cxx_source_compiles("
    #ifdef _FORTIFY_SOURCE
    #error There is a level.
    #endif
    int main() {}
  " FORTIFY_LEVEL_IS_OPEN)
  unset(CMAKE_REQUIRED_FLAGS)
  if(FORTIFY_LEVEL_IS_OPEN)
    add_compile_options($<$<CONFIG:Release>:-D_FORTIFY_SOURCE=2>)
  endif()
  add_link_options($<$<PLATFORM_ID:Linux>:-Wl,-z,now>)
endif()
if(QUILLON_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()
