# How every target is compiled: warnings are errors, a compiler cache where there is one.

find_program(CCACHE ccache)
if(CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER "${CCACHE}")
endif()

add_library(gastrelle_options INTERFACE)
target_compile_options(gastrelle_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion
                                                   -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # GCC 12 sees overlapping copies in any `"literal" + std::string` that it inlines.
  target_compile_options(gastrelle_options INTERFACE -Wno-restrict)
endif()
if(WIN32)
  # GCC counts on the registers that its own copy of an inline function leaves alone; here the linker
  # may take another unit's copy, which doesn't.
  target_compile_options(gastrelle_options INTERFACE -fno-ipa-ra)
  # The same sources give the same program: it doesn't bear the time of its making.
  target_link_options(gastrelle_options INTERFACE -Wl,--no-insert-timestamp)
endif()
target_include_directories(gastrelle_options INTERFACE "${CMAKE_SOURCE_DIR}/src")
if(GASTRELLE_ASSAINIR)
  set(assainir -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_compile_options(gastrelle_options INTERFACE ${assainir})
  target_link_options(gastrelle_options INTERFACE ${assainir})
  # The sanitizers' own instrumentation makes GCC 12 see ghosts in inlined library code.
  target_compile_options(gastrelle_options INTERFACE -Wno-maybe-uninitialized -Wno-stringop-overflow)
endif()
