# SPDX-License-Identifier: GPL-2.0-or-later
# bv_add_test(NAME sources... [QT] [LIBS libraries...] [ENV name=value...] [TIMEOUT seconds] [LABELS labels...] [ROOT regex])
# Adds a GoogleTest executable. Each test case becomes a CTest entry of its own, runs with a fixed locale and without a
# display, and counts as skipped if it calls GTEST_SKIP. The first label is the name of the folder, so that
# `ctest -L profiles` runs all tests in tests/profiles. Cases whose names match ROOT also get the label "root".
find_package(GTest REQUIRED)
include(GoogleTest)

function(bv_add_test name)
  cmake_parse_arguments(ARG "QT" "TIMEOUT;ROOT" "LIBS;ENV;LABELS" ${ARGN})
  if(NOT ARG_TIMEOUT)
    set(ARG_TIMEOUT 60)
  endif()
  add_executable(${name} ${ARG_UNPARSED_ARGUMENTS})
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
  target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/src ${CMAKE_SOURCE_DIR}/tests)
  target_compile_definitions(${name} PRIVATE BV_SOURCE_DIR="${CMAKE_SOURCE_DIR}" BV_BUILD_DIR="${CMAKE_BINARY_DIR}")
  if(ARG_QT)
    set_target_properties(${name} PROPERTIES AUTOMOC ON)
    target_sources(${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests/support/QtTestMain.cpp)
    target_link_libraries(${name} PRIVATE ${ARG_LIBS} GTest::gmock GTest::gtest Threads::Threads)
  else()
    target_link_libraries(${name} PRIVATE ${ARG_LIBS} GTest::gmock_main GTest::gtest Threads::Threads)
  endif()
  gtest_discover_tests(${name}
    DISCOVERY_TIMEOUT 60 NO_PRETTY_VALUES
    PROPERTIES TIMEOUT ${ARG_TIMEOUT} SKIP_REGULAR_EXPRESSION "\\[  SKIPPED \\]")

  # The test cases are known only after the executable was built. CTest reads this file after their discovery and sets
  # their labels here, because gtest_discover_tests(PROPERTIES) accepts no lists.
  cmake_path(GET CMAKE_CURRENT_SOURCE_DIR FILENAME room)
  set(labels ${CMAKE_CURRENT_BINARY_DIR}/${name}_labels.cmake)
  file(CONFIGURE OUTPUT ${labels} @ONLY CONTENT [==[
foreach(case IN LISTS @name@_TESTS)
  set(labels @room@ @ARG_LABELS@)
  if(NOT "@ARG_ROOT@" STREQUAL "" AND case MATCHES "@ARG_ROOT@")
    list(APPEND labels root)
  endif()
  set_tests_properties("${case}" PROPERTIES LABELS "${labels}"
    ENVIRONMENT [=[QT_QPA_PLATFORM=offscreen;QT_LOGGING_RULES=qt.qpa.*=false;LC_ALL=C;@ARG_ENV@]=])
endforeach()
]==])
  set_property(DIRECTORY APPEND PROPERTY TEST_INCLUDE_FILES ${labels})
endfunction()

# bv_add_script_test(NAME TIMEOUT COMMAND...): adds a test that is a command, with the name of the folder as its label.
# Exit status 77 means skipped.
function(bv_add_script_test name timeout)
  cmake_path(GET CMAKE_CURRENT_SOURCE_DIR FILENAME room)
  add_test(NAME ${name} COMMAND ${ARGN})
  set_tests_properties(${name} PROPERTIES TIMEOUT ${timeout} SKIP_RETURN_CODE 77 LABELS ${room})
endfunction()
