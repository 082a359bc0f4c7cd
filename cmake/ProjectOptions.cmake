# Two interface targets that every target of ours links privately:
#   orvik_options   language level, arithmetic, sanitizers, static linking on Windows
#   orvik_warnings  the warnings, all of them errors
add_library(orvik_options INTERFACE)
target_compile_features(orvik_options INTERFACE cxx_std_20)
# No fused multiply-add: the same figures on every processor and both systems.
target_compile_options(orvik_options INTERFACE -ffp-contract=off)
if(NOT WIN32)
  target_compile_options(orvik_options INTERFACE -pthread) # some libraries ask for it, and precompiled headers for one answer
endif()

if(ORVIK_SANITIZE)
  target_compile_options(orvik_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all
                                                 -fno-omit-frame-pointer)
  target_link_options(orvik_options INTERFACE -fsanitize=address,undefined)
endif()

if(WIN32)
  # One self-contained file each: the C++ runtime is linked in. Windows 10 is the oldest system served.
  target_link_options(orvik_options INTERFACE -static -static-libgcc -static-libstdc++)
  # The same sources give the same bytes.
  target_link_options(orvik_options INTERFACE -Wl,--no-insert-timestamp)
  target_compile_definitions(orvik_options INTERFACE _WIN32_WINNT=0x0A00 WINVER=0x0A00 UNICODE _UNICODE NOMINMAX
                                                     WIN32_LEAN_AND_MEAN)
endif()

add_library(orvik_warnings INTERFACE)
target_compile_options(orvik_warnings INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
# GCC 12 sees overlapping copies in std::string's own operator+ (GCC bug 105651); later versions do not.
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  target_compile_options(orvik_warnings INTERFACE -Wno-restrict)
endif()

# Clang counts what GCC's library says of its own std::stable_sort (libstdc++ 12: it calls a function that C++17 dropped).
if(CMAKE_CXX_COMPILER_ID STREQUAL Clang)
  target_compile_options(orvik_warnings INTERFACE -Wno-deprecated-declarations)
endif()
