# The libraries that the program uses. They are found here, at the top level, since an imported target is visible only in
# the folder that finds it and below.
find_package(PkgConfig REQUIRED)
find_package(SQLite3 3.40 REQUIRED)
pkg_check_modules(UTF8PROC REQUIRED IMPORTED_TARGET libutf8proc)
# The library of a core folder; no other folder may include it.
set(TW_LIBRARIES_OF_values PkgConfig::UTF8PROC)
set(TW_LIBRARIES_OF_store SQLite::SQLite3)

find_package(Qt6 6.4 REQUIRED COMPONENTS Core)
if(TUNWRIGHT_WINDOWS)
  find_package(Qt6 6.4 REQUIRED COMPONENTS Widgets Svg PrintSupport Network DBus)
endif()
if(TUNWRIGHT_TESTS)
  find_package(GTest REQUIRED)
  if(TUNWRIGHT_WINDOWS)
    find_package(Qt6 6.4 REQUIRED COMPONENTS Test)
  endif()
endif()
if(TUNWRIGHT_BENCH)
  find_package(benchmark REQUIRED)
endif()
