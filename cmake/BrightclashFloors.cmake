# SPDX-FileCopyrightText: The Brightclash developers
# SPDX-License-Identifier: MIT
include(GoogleTest)

# brightclash_floor(NAME [BELOW floors...] [LIBS libs...] [EXCLUDE files...])
# One folder of src/ as the library brightclash_NAME. Only the include directories of the
# floors named under BELOW (and of those below them) are visible, so that an include
# upwards does not build.
function(brightclash_floor name)
  cmake_parse_arguments(ARG "" "" "BELOW;LIBS;EXCLUDE" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/${name}/*.cpp)
  foreach(file IN LISTS ARG_EXCLUDE)
    list(REMOVE_ITEM sources ${CMAKE_SOURCE_DIR}/src/${name}/${file})
  endforeach()
  # Includes are written "folder/Header.h"; each floor's headers are reached through a
  # directory of its own that holds nothing but a link to the folder.
  set(view ${CMAKE_BINARY_DIR}/include/${name})
  file(MAKE_DIRECTORY ${view})
  file(CREATE_LINK ${CMAKE_SOURCE_DIR}/src/${name} ${view}/${name} SYMBOLIC)
  list(TRANSFORM ARG_BELOW PREPEND brightclash_)
  if(sources)
    add_library(brightclash_${name} STATIC ${sources})
    target_include_directories(brightclash_${name} PUBLIC ${view})
    target_link_libraries(brightclash_${name}
      PUBLIC ${ARG_BELOW} ${ARG_LIBS} PRIVATE brightclash_options)
  else()
    add_library(brightclash_${name} INTERFACE)
    target_include_directories(brightclash_${name} INTERFACE ${view})
    target_link_libraries(brightclash_${name} INTERFACE ${ARG_BELOW} ${ARG_LIBS})
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
  target_link_libraries(${name} PRIVATE brightclash_options ${ARG_LIBS} GTest::gmock_main)
  # What tests share: "support/RecordingRenderer.h" and the like.
  target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
  target_compile_definitions(${name} PRIVATE
    BRIGHTCLASH_GAME_DIR="${BRIGHTCLASH_GAME_DIR}" BRIGHTCLASH_SOURCE_DIR="${CMAKE_SOURCE_DIR}")
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
  file(GLOB all CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tests/${floor}/*.cpp)
  # What the folder's tests share belongs to each of its programs.
  set(shared ${all})
  list(FILTER shared EXCLUDE REGEX "Test\\.cpp$")
  list(FILTER all INCLUDE REGEX "Test\\.cpp$")
  set(display ${all})
  list(FILTER display INCLUDE REGEX "DisplayTest\\.cpp$")
  set(plain ${all})
  list(FILTER plain EXCLUDE REGEX "DisplayTest\\.cpp$")
  brightclash_test(${floor}_test SOURCES ${plain} HELPERS ${shared} LIBS brightclash_${floor} ${ARG_LIBS})
  brightclash_test(${floor}_display_test DISPLAY SOURCES ${display} HELPERS ${shared}
    LIBS brightclash_${floor} ${ARG_LIBS})
endfunction()
