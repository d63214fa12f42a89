# The language standard of all targets, and tw_flags: the interface target with the warnings, the floating-point rules and
# the sanitizers that every target links.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER
    ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros ${CCACHE_PROGRAM})
endif()

add_library(tw_flags INTERFACE)
target_compile_options(tw_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Wold-style-cast -Woverloaded-virtual
  -Wcast-align -Wunused -Wnull-dereference -Wformat=2 -Wimplicit-fallthrough
  # GCC 12 wrongly reports overlapping copies inside its own std::string.
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>
  # Figures are the same on every machine: no fused multiply-add.
  -ffp-contract=off)
if(TUNWRIGHT_WERROR)
  target_compile_options(tw_flags INTERFACE -Werror)
endif()
if(TUNWRIGHT_SANITIZE)
  target_compile_options(tw_flags INTERFACE -fsanitize=${TUNWRIGHT_SANITIZE} -fno-omit-frame-pointer
    -fno-sanitize-recover=all)
  target_link_options(tw_flags INTERFACE -fsanitize=${TUNWRIGHT_SANITIZE})
endif()
if(TUNWRIGHT_FUZZ)
  target_compile_options(tw_flags INTERFACE -fsanitize=fuzzer-no-link)
endif()
if(CMAKE_BUILD_TYPE STREQUAL "Coverage")
  target_compile_options(tw_flags INTERFACE -O0 -g --coverage)
  target_link_options(tw_flags INTERFACE --coverage)
endif()
