# Where ccache is installed it keeps what was compiled, across build folders and clones (in ~/.cache/ccache, or where
# CCACHE_DIR says). Nobody has to configure it: all that our builds need of it stands here.
#   CCACHE_BASEDIR      paths below the sources count as relative ones, so a clone in another folder finds the same objects
#   CCACHE_NOHASHDIR    debug information may name the folder in which an object was first compiled
#   CCACHE_SLOPPINESS   what a precompiled header needs: its macros and the times of its parts are not compared (the
#                       contents are)
# A launcher of the caller's own (CMAKE_CXX_COMPILER_LAUNCHER) stays, unless it is ccache itself.
find_program(ORVIK_CCACHE ccache)
if(ORVIK_CCACHE AND NOT ORVIK_TIDY AND "${CMAKE_CXX_COMPILER_LAUNCHER}" MATCHES "^$|ccache$")
  set(CMAKE_CXX_COMPILER_LAUNCHER env CCACHE_BASEDIR=${CMAKE_SOURCE_DIR} CCACHE_NOHASHDIR=1
    CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime ${ORVIK_CCACHE})
  set(CMAKE_C_COMPILER_LAUNCHER ${CMAKE_CXX_COMPILER_LAUNCHER})
  # What the two compilers need so that an object which uses a precompiled header can be kept at all.
  if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
    add_compile_options(-fpch-preprocess)
  elseif(CMAKE_CXX_COMPILER_ID STREQUAL Clang)
    add_compile_options("SHELL:-Xclang -fno-pch-timestamp")
  endif()
endif()
