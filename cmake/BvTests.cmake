# bv_add_test(NAME sources... [QT] [LIBS libraries...] [ENV name=value...] [TIMEOUT seconds] [LABELS labels...] [ROOT regex])
# One GoogleTest executable a room; every test case is a CTest entry of its own, with a fixed locale and no display.
# A test that calls GTEST_SKIP counts as skipped, not as passed. Its first label is the folder it lies in, so that
# `ctest -L profiles` runs a room's tests; cases whose names match ROOT are labelled as needing root.
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

  # CTest learns the cases from the built test, and reads this after it. (PROPERTIES takes no list.)
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

# bv_add_script_test(NAME TIMEOUT COMMAND...): a test of its own kind, labelled like the others.
function(bv_add_script_test name timeout)
  cmake_path(GET CMAKE_CURRENT_SOURCE_DIR FILENAME room)
  add_test(NAME ${name} COMMAND ${ARGN})
  set_tests_properties(${name} PROPERTIES TIMEOUT ${timeout} SKIP_RETURN_CODE 77 LABELS ${room})
endfunction()
