# Tests: one GoogleTest program and one CTest entry for each orvik_test; on Windows one program for all portable ones.
# Each entry carries the rooms that it contains as CTest labels, so that "the tests of a room and of those above it" are those with
# the room's label (./test quick ROOM).

# orvik_rooms_of(<out-var> <targets...>): the rooms (folders below src/) that the targets link, near and far: CMake's own graph.
function(orvik_rooms_of out)
  set(waiting ${ARGN})
  set(seen)
  set(rooms)
  while(waiting)
    list(POP_FRONT waiting target)
    string(REGEX REPLACE "^\\$<LINK_ONLY:(.*)>$" "\\1" target "${target}")
    if(NOT TARGET "${target}" OR target IN_LIST seen)
      continue()
    endif()
    list(APPEND seen ${target})
    get_target_property(folder ${target} SOURCE_DIR)
    cmake_path(IS_PREFIX ORVIK_ROOMS_FOLDER "${folder}" ours)
    if(ours)
      file(RELATIVE_PATH room ${ORVIK_ROOMS_FOLDER} ${folder})
      list(APPEND rooms ${room})
    endif()
    foreach(property LINK_LIBRARIES INTERFACE_LINK_LIBRARIES)
      get_target_property(links ${target} ${property})
      if(links)
        list(APPEND waiting ${links})
      endif()
    endforeach()
  endwhile()
  list(REMOVE_DUPLICATES rooms)
  set(${out} ${rooms} PARENT_SCOPE)
endfunction()
set(ORVIK_ROOMS_FOLDER ${CMAKE_SOURCE_DIR}/src)

# orvik_test_needs(<test> <programs...>): the test runs these programs of ours; it counts as one of their rooms.
function(orvik_test_needs test)
  orvik_rooms_of(rooms ${ARGN})
  set_property(TEST ${test} APPEND PROPERTY LABELS ${rooms})
  set_property(GLOBAL APPEND PROPERTY ORVIK_TESTED_ROOMS ${rooms})
  foreach(room all ${rooms})
    set_property(GLOBAL APPEND PROPERTY "ORVIK_TEST_PROGRAMS ${room}" ${ARGN})
  endforeach()
endfunction()

# orvik_test_targets(): for each room a target tests_of_<room> that builds what its tests need, and tests_of_all.
# The rooms are listed in the build folder's tested-rooms.txt.
function(orvik_test_targets)
  get_property(rooms GLOBAL PROPERTY ORVIK_TESTED_ROOMS)
  list(REMOVE_DUPLICATES rooms)
  list(SORT rooms)
  string(REPLACE ";" "\n" lines "${rooms}")
  file(CONFIGURE OUTPUT ${CMAKE_BINARY_DIR}/tested-rooms.txt CONTENT "${lines}\n")
  foreach(room all ${rooms})
    get_property(programs GLOBAL PROPERTY "ORVIK_TEST_PROGRAMS ${room}")
    list(REMOVE_DUPLICATES programs)
    string(REPLACE "/" "_" flat ${room})
    add_custom_target(tests_of_${flat} DEPENDS ${programs})
  endforeach()
endfunction()

# orvik_known_leaks(<test>): under the sanitizers, leaks of the libraries that we stand on do not count.
function(orvik_known_leaks test)
  if(ORVIK_SANITIZE)
    set_property(TEST ${test} APPEND PROPERTY ENVIRONMENT
      "LSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/cmake/known-leaks.txt:print_suppressions=0")
  endif()
endfunction()

# orvik_compiled_as_test(<target>): its sources are those of tests. A test is compiled more often than it is run, so without much
# optimising; what it tests is compiled as it is shipped.
function(orvik_compiled_as_test target)
  orvik_use_precompiled(${target} orvik_test_headers)
  orvik_test_options(${target})
endfunction()
function(orvik_test_options target)
  target_compile_options(${target} PRIVATE $<$<CONFIG:Release>:-O1>)
endfunction()

# orvik_test(<target> SOURCES <files...> [LINKS <targets...>])
function(orvik_test target)
  cmake_parse_arguments(TEST "" "" "SOURCES;LINKS" ${ARGN})
  set(links ${TEST_LINKS} orvik_test_support GTest::gmock)
  if(ORVIK_TESTS_IN_ONE_PROGRAM)
    add_library(${target} OBJECT ${TEST_SOURCES})
    target_link_libraries(${target} PUBLIC ${links} PRIVATE orvik_options orvik_warnings)
    set_property(GLOBAL APPEND PROPERTY ORVIK_TESTS_OF_ONE_PROGRAM ${target})
  else()
    orvik_program(${target} SOURCES ${TEST_SOURCES} LINKS ${links} orvik_test_main)
    orvik_add_test(${target})
  endif()
  orvik_compiled_as_test(${target})
endfunction()

# orvik_one_test_program(<target>): all tests since ORVIK_TESTS_IN_ONE_PROGRAM was set. Under Wine a program takes longer to start
# than most tests to run.
function(orvik_one_test_program target)
  get_property(parts GLOBAL PROPERTY ORVIK_TESTS_OF_ONE_PROGRAM)
  orvik_program(${target} SOURCES LINKS ${parts} orvik_test_main)
  set_target_properties(${target} PROPERTIES LINKER_LANGUAGE CXX)
  orvik_add_test(${target})
endfunction()

# orvik_add_test(<program>): the CTest entry of a GoogleTest program.
function(orvik_add_test program)
  add_test(NAME ${program} COMMAND ${program} WORKING_DIRECTORY ${CMAKE_BINARY_DIR})
  orvik_known_leaks(${program})
  orvik_test_needs(${program} ${program})
endfunction()
