# What most sources of a kind read anyway.
set(standard <algorithm> <array> <cmath> <cstdint> <functional> <limits> <memory> <optional> <span> <stdexcept> <string>
  <string_view> <utility> <vector>)
orvik_precompiled(orvik_room_headers HEADERS ${standard})
set_target_properties(orvik_room_headers PROPERTIES POSITION_INDEPENDENT_CODE ON)
if(WIN32)
  orvik_precompiled(orvik_win32_headers HEADERS ${standard} <ole2.h>)
  set_target_properties(orvik_win32_headers PROPERTIES POSITION_INDEPENDENT_CODE ON)
endif()
