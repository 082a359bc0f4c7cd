# A room is one static library with one folder below src/. Other targets see its headers as "room/Name.h", and only when
# they link it: each room's include directory holds nothing but links to the headers of that folder, so that an arrow that
# is not drawn in a CMakeLists.txt does not compile. Folders below it, a room's back ends among them, are rooms of their own.

# orvik_room_include(<folder> <out-var>): the include directory that shows the headers in src/<folder> and nothing else.
function(orvik_room_include folder out)
  string(REPLACE "/" "_" flat "${folder}")
  set(directory ${CMAKE_BINARY_DIR}/rooms/${flat})
  if(CMAKE_HOST_WIN32)
    # Making links needs a privilege there; the arrows are checked by the builds on other systems.
    set(directory ${CMAKE_SOURCE_DIR}/src)
  else()
    set(source ${CMAKE_SOURCE_DIR}/src/${folder})
    file(GLOB headers CONFIGURE_DEPENDS RELATIVE ${source} ${source}/*.h ${source}/*.def)
    file(REMOVE_RECURSE ${directory})
    file(MAKE_DIRECTORY ${directory}/${folder})
    foreach(header ${headers})
      file(CREATE_LINK ${source}/${header} ${directory}/${folder}/${header} SYMBOLIC)
    endforeach()
  endif()
  set(${out} ${directory} PARENT_SCOPE)
endfunction()

# orvik_use_precompiled(<target> <precompiled>): the sources of a target begin with what orvik_precompiled(<precompiled>) reads.
function(orvik_use_precompiled target precompiled)
  target_precompile_headers(${target} REUSE_FROM ${precompiled})
  # With precompiled headers GCC 12 sees copies of impossible length in std::string's own functions (GCC bug 105329); later
  # versions do not.
  if(CMAKE_CXX_COMPILER_ID STREQUAL GNU AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    target_compile_options(${target} PRIVATE -Wno-stringop-overflow -Wno-stringop-overread -Wno-array-bounds)
  endif()
endfunction()

# orvik_precompiled(<target> HEADERS <headers...> [LINKS <targets...>]): headers that are read once for many sources.
# They are headers of the system and of libraries: one of ours among them would have everything compiled again when it
# changes. Each source includes what it needs as if there were none. The target is compiled as those that use it.
function(orvik_precompiled target)
  cmake_parse_arguments(PRECOMPILED "" "" "HEADERS;LINKS" ${ARGN})
  set(source ${CMAKE_BINARY_DIR}/generated/${target}.cpp) # a library has a source
  file(CONFIGURE OUTPUT ${source} CONTENT "")
  add_library(${target} STATIC ${source})
  target_link_libraries(${target} PRIVATE ${PRECOMPILED_LINKS} orvik_options orvik_warnings)
  target_precompile_headers(${target} PRIVATE ${PRECOMPILED_HEADERS})
endfunction()

# orvik_room(<target> FOLDER <folder> [SOURCES <files...>]
#            [PUBLIC_LINKS <targets...>] [LINKS <targets...>] [PRECOMPILED <target> | NOT_PRECOMPILED])
# Without sources it is a room of headers alone. PUBLIC_LINKS are the rooms that the headers of this one include: whoever
# sees this room sees them too. LINKS are those that only its sources include. Both name every room that is included here,
# and no other: tests/house/arrows compares.
function(orvik_room target)
  cmake_parse_arguments(ROOM "NOT_PRECOMPILED" "FOLDER;PRECOMPILED" "SOURCES;PUBLIC_LINKS;LINKS" ${ARGN})
  orvik_room_include(${ROOM_FOLDER} include)
  if(NOT ROOM_SOURCES)
    add_library(${target} INTERFACE)
    target_include_directories(${target} INTERFACE ${include})
    target_link_libraries(${target} INTERFACE ${ROOM_PUBLIC_LINKS})
    return()
  endif()
  add_library(${target} STATIC ${ROOM_SOURCES})
  target_include_directories(${target} PUBLIC ${include})
  target_link_libraries(${target} PUBLIC ${ROOM_PUBLIC_LINKS} PRIVATE ${ROOM_LINKS} orvik_options orvik_warnings)
  set_target_properties(${target} PROPERTIES POSITION_INDEPENDENT_CODE ON)
  if(NOT ROOM_PRECOMPILED)
    set(ROOM_PRECOMPILED orvik_room_headers)
  endif()
  # The sanitizers' build has another compiler and few sources left to read: nothing is precompiled for its rooms.
  if(NOT ORVIK_SANITIZE AND NOT ROOM_NOT_PRECOMPILED)
    orvik_use_precompiled(${target} ${ROOM_PRECOMPILED})
  endif()
endfunction()

# orvik_program(<target> SOURCES <files...> [LINKS <targets...>] [AT_TOP])
# AT_TOP puts the program at the top of the build folder, beside the data that it reads.
function(orvik_program target)
  cmake_parse_arguments(PROGRAM "AT_TOP" "" "SOURCES;LINKS" ${ARGN})
  add_executable(${target} ${PROGRAM_SOURCES})
  target_link_libraries(${target} PRIVATE ${PROGRAM_LINKS} orvik_options orvik_warnings)
  if(PROGRAM_AT_TOP)
    set_target_properties(${target} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR})
  endif()
endfunction()
