include(GoogleTest)
find_package(GTest REQUIRED)

# Adds a program made of sources below tests/.
function(tessaly_add_program name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LIBRARIES" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}/tests" "${PROJECT_SOURCE_DIR}/tools")
  target_compile_definitions(
    ${name} PRIVATE TESSALY_TEST_DATA="${PROJECT_SOURCE_DIR}/tests/data"
                    TESSALY_DATA="${PROJECT_SOURCE_DIR}/data")
  target_link_libraries(${name} PRIVATE tessaly_flags ${ARG_LIBRARIES})
endfunction()

# Adds a program of GoogleTest's; every test of it becomes one of CTest's.
function(tessaly_add_test name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LIBRARIES;PROPERTIES" ${ARGN})
  tessaly_add_program(${name} SOURCES ${ARG_SOURCES} LIBRARIES ${ARG_LIBRARIES})
  target_precompile_headers(${name} PRIVATE ${tessaly_standard_headers} <gtest/gtest.h>)
  if("Qt6::Test" IN_LIST ARG_LIBRARIES)
    target_precompile_headers(${name} PRIVATE <QtTest> <QtWidgets>)
  endif()
  gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST PROPERTIES TIMEOUT 300 ${ARG_PROPERTIES})
endfunction()

# Adds a script with its arguments as a test; it says by its status, 77, that it cannot run here.
function(tessaly_add_scripted_test name)
  add_test(NAME ${name} COMMAND ${ARGN})
  set_tests_properties(${name} PROPERTIES SKIP_RETURN_CODE 77 TIMEOUT 300)
endfunction()
