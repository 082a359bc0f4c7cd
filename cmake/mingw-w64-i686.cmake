# Cross build for 32-bit Windows. Built and checked statically; 32-bit programs cannot run here.
set(ORVIK_MINGW_TRIPLE i686-w64-mingw32)
include(${CMAKE_CURRENT_LIST_DIR}/mingw-w64-common.cmake)
set(CMAKE_SYSTEM_PROCESSOR x86)
# The x87 unit would keep excess precision; SSE2 gives the same arithmetic as the 64-bit build.
set(CMAKE_CXX_FLAGS_INIT "-msse2 -mfpmath=sse")
