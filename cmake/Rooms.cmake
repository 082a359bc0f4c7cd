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

# orvik_room(<target> FOLDER <folder> [SOURCES <files...>] [PUBLIC_LINKS <targets...>] [LINKS <targets...>])
# Without sources it is a room of headers alone. PUBLIC_LINKS are the rooms that the headers of this one include: whoever
# sees this room sees them too. LINKS are those that only its sources include. Both name every room that is included here,
# and no other: tests/house/arrows compares.
function(orvik_room target)
  cmake_parse_arguments(ROOM "" "FOLDER" "SOURCES;PUBLIC_LINKS;LINKS" ${ARGN})
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

# orvik_known_leaks(<test>): under the sanitizers, leaks of the libraries that we stand on do not count.
function(orvik_known_leaks test)
  if(ORVIK_SANITIZE)
    set_tests_properties(${test} PROPERTIES ENVIRONMENT
      "LSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/cmake/known-leaks.txt:print_suppressions=0")
  endif()
endfunction()

# orvik_test_options(<target>): how tests and the headers that are precompiled for them are compiled; both have to be alike.
function(orvik_test_options target)
  # A test is compiled more often than it is run. What it tests is compiled as it is shipped.
  target_compile_options(${target} PRIVATE $<$<CONFIG:Release>:-O1>)
  if(NOT WIN32)
    target_compile_options(${target} PRIVATE -pthread) # the libraries of some tests ask for it
  endif()
  # With precompiled headers GCC 12 sees copies of impossible length in std::string's own functions (GCC bug 105329); later
  # versions do not.
  if(CMAKE_CXX_COMPILER_ID STREQUAL GNU AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    target_compile_options(${target} PRIVATE -Wno-stringop-overflow -Wno-stringop-overread -Wno-array-bounds)
  endif()
endfunction()

# orvik_test(<target> SOURCES <files...> [LINKS <targets...>]): one GoogleTest program, one CTest entry.
function(orvik_test target)
  cmake_parse_arguments(TEST "" "" "SOURCES;LINKS" ${ARGN})
  orvik_program(${target} SOURCES ${TEST_SOURCES} LINKS ${TEST_LINKS} orvik_test_support GTest::gmock GTest::gtest_main)
  # GoogleTest's headers are most of what the compiler reads of a test: they are read once for all.
  target_precompile_headers(${target} REUSE_FROM orvik_test_headers)
  orvik_test_options(${target})
  add_test(NAME ${target} COMMAND ${target} WORKING_DIRECTORY ${CMAKE_BINARY_DIR})
  orvik_known_leaks(${target})
endfunction()
