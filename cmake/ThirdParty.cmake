# Libraries from Debian's packages.
# Header-only ones are shown one by one: the cross compilers must not see /usr/include as a whole.
function(orvik_header_only target folder)
  add_library(${target} INTERFACE)
  if(CMAKE_CROSSCOMPILING)
    set(directory ${CMAKE_BINARY_DIR}/third_party/${target})
    file(MAKE_DIRECTORY ${directory})
    file(CREATE_LINK /usr/include/${folder} ${directory}/${folder} SYMBOLIC)
    target_include_directories(${target} SYSTEM INTERFACE ${directory})
  endif()
endfunction()

orvik_header_only(orvik_cli11 CLI)
orvik_header_only(orvik_json nlohmann)

# Pictures in files are drawn with Cairo and Pango. The cross builds have neither: their kav makes no picture files.
if(NOT CMAKE_CROSSCOMPILING)
  find_package(PkgConfig)
  if(PKG_CONFIG_FOUND)
    pkg_check_modules(PANGOCAIRO IMPORTED_TARGET pangocairo)
  endif()
  if(NOT WIN32 AND NOT PANGOCAIRO_FOUND)
    message(FATAL_ERROR "Pango and Cairo are needed: libpango1.0-dev, libcairo2-dev")
  endif()
endif()

if(ORVIK_TESTS)
  if(CMAKE_CROSSCOMPILING)
    set(INSTALL_GTEST OFF) # it names its targets GTest::gmock and GTest::gtest_main itself
    add_subdirectory(/usr/src/googletest ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL SYSTEM)
  else()
    find_package(GTest REQUIRED)
  endif()
endif()

# The cross builds have no library for benchmarks; theirs measure by themselves.
if(ORVIK_BENCH AND NOT CMAKE_CROSSCOMPILING)
  find_package(benchmark REQUIRED)
endif()
