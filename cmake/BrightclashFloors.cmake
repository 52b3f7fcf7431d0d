# SPDX-FileCopyrightText: The Brightclash developers
# SPDX-License-Identifier: MIT
include(GoogleTest)

# brightclash_read_floors(): reads src/floors.txt into BRIGHTCLASH_FLOORS (lowest first) and, for each
# floor, BRIGHTCLASH_BELOW_<floor>.
macro(brightclash_read_floors)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/floors.txt)
  file(STRINGS ${CMAKE_SOURCE_DIR}/src/floors.txt brightclash_lines REGEX "^[^#]+:")
  set(BRIGHTCLASH_FLOORS)
  foreach(line IN LISTS brightclash_lines)
    string(REGEX MATCH "^([^:]+):(.*)$" line "${line}")
    set(floor ${CMAKE_MATCH_1})
    separate_arguments(below UNIX_COMMAND "${CMAKE_MATCH_2}")
    list(APPEND BRIGHTCLASH_FLOORS ${floor})
    set(BRIGHTCLASH_BELOW_${floor} ${below})
  endforeach()
endmacro()

# The library of a floor, or of several.
function(brightclash_targets out)
  list(TRANSFORM ARGN REPLACE "/" "_")
  list(TRANSFORM ARGN PREPEND brightclash_)
  set(${out} ${ARGN} PARENT_SCOPE)
endfunction()

# brightclash_floor(NAME [LIBS libs...] [EXCLUDE files...])
# One folder of src/, its sub-folders included unless they are floors themselves, as a library. Only
# the include directories of the floors below it are visible, so that an include upwards does not
# build.
function(brightclash_floor name)
  cmake_parse_arguments(ARG "" "" "LIBS;EXCLUDE" ${ARGN})
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/${name}/*.cpp)
  foreach(file IN LISTS ARG_EXCLUDE)
    list(REMOVE_ITEM sources ${CMAKE_SOURCE_DIR}/src/${name}/${file})
  endforeach()
  # Includes are written "folder/Header.h"; each floor's headers are reached through a
  # directory of its own that holds nothing but a link to the folder.
  brightclash_targets(target ${name})
  brightclash_targets(below ${BRIGHTCLASH_BELOW_${name}})
  set(view ${CMAKE_BINARY_DIR}/include/${target})
  get_filename_component(parent ${view}/${name} DIRECTORY)
  file(MAKE_DIRECTORY ${parent})
  file(CREATE_LINK ${CMAKE_SOURCE_DIR}/src/${name} ${view}/${name} SYMBOLIC)
  if(sources)
    add_library(${target} STATIC ${sources})
    target_include_directories(${target} PUBLIC ${view})
    target_link_libraries(${target} PUBLIC ${below} ${ARG_LIBS} PRIVATE brightclash_options)
  else()
    add_library(${target} INTERFACE)
    target_include_directories(${target} INTERFACE ${view})
    target_link_libraries(${target} INTERFACE ${below} ${ARG_LIBS})
  endif()
endfunction()

# brightclash_test(NAME [DISPLAY] SOURCES files... [HELPERS files...] [LIBS libs...] [TIMEOUT s])
# A test program. Without DISPLAY each test case is its own ctest entry; with DISPLAY the
# program needs a window and runs as one entry under Xvfb.
function(brightclash_test name)
  cmake_parse_arguments(ARG "DISPLAY" "TIMEOUT" "SOURCES;HELPERS;LIBS" ${ARGN})
  if(NOT ARG_SOURCES)
    return()
  endif()
  if(NOT ARG_TIMEOUT)
    set(ARG_TIMEOUT 300)
  endif()
  add_executable(${name} ${ARG_SOURCES} ${ARG_HELPERS})
  target_link_libraries(${name} PRIVATE brightclash_options ${ARG_LIBS} brightclash_test_support
    GTest::gmock_main)
  target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
  if(ARG_DISPLAY)
    add_test(NAME ${name} COMMAND ${CMAKE_SOURCE_DIR}/tests/with_display $<TARGET_FILE:${name}>)
    set_tests_properties(${name} PROPERTIES TIMEOUT ${ARG_TIMEOUT}
      ENVIRONMENT "LSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/tests/lsan.supp")
  else()
    gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST PROPERTIES TIMEOUT ${ARG_TIMEOUT})
  endif()
endfunction()

# brightclash_floor_tests(FLOOR [LIBS ...]): tests/FLOOR/*Test.cpp against that floor, and
# tests/FLOOR/*DisplayTest.cpp as a program of its own that draws.
function(brightclash_floor_tests floor)
  cmake_parse_arguments(ARG "" "" "LIBS" ${ARGN})
  file(GLOB_RECURSE all CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tests/${floor}/*.cpp)
  # What the folder's tests share belongs to each of its programs.
  set(shared ${all})
  list(FILTER shared EXCLUDE REGEX "Test\\.cpp$")
  list(FILTER all INCLUDE REGEX "Test\\.cpp$")
  set(display ${all})
  list(FILTER display INCLUDE REGEX "DisplayTest\\.cpp$")
  set(plain ${all})
  list(FILTER plain EXCLUDE REGEX "DisplayTest\\.cpp$")
  string(REPLACE "/" "_" name ${floor})
  brightclash_targets(target ${floor})
  if(NOT TARGET ${target})
    set(target)
  endif()
  brightclash_test(${name}_test SOURCES ${plain} HELPERS ${shared} LIBS ${target} ${ARG_LIBS})
  brightclash_test(${name}_display_test DISPLAY SOURCES ${display} HELPERS ${shared}
    LIBS ${target} ${ARG_LIBS})
endfunction()
