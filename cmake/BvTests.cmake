# bv_add_test(NAME sources... [QT] [LIBS libraries...] [ENV name=value...] [TIMEOUT seconds])
# One GoogleTest executable a room; every test case is a CTest entry of its own, with a fixed locale and no display.
# A test that calls GTEST_SKIP counts as skipped, not as passed.
find_package(GTest REQUIRED)
include(GoogleTest)

function(bv_add_test name)
  cmake_parse_arguments(ARG "QT" "TIMEOUT" "LIBS;ENV" ${ARGN})
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
    DISCOVERY_TIMEOUT 60
    PROPERTIES TIMEOUT ${ARG_TIMEOUT} SKIP_REGULAR_EXPRESSION "\\[  SKIPPED \\]"
      ENVIRONMENT "QT_QPA_PLATFORM=offscreen;QT_LOGGING_RULES=qt.qpa.*=false;LC_ALL=C;${ARG_ENV}")
endfunction()
