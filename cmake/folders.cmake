# One library a folder, one test program a folder.

# r7_library(NAME FOLDER_GLOB... LINKS libraries...): a static library of the .cpp files that match.
function(r7_library name)
  cmake_parse_arguments(arg "" "" "SOURCES;LINKS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${arg_SOURCES})
  add_library(${name} STATIC ${sources})
  set_target_properties(${name} PROPERTIES POSITION_INDEPENDENT_CODE ON)
  target_link_libraries(${name} PUBLIC r7_flags ${arg_LINKS})
endfunction()

# r7_test(NAME LINKS libraries... [LAUNCHER command...]): the GoogleTest program of tests/NAME, run by the launcher.
function(r7_test name)
  cmake_parse_arguments(arg "" "" "LINKS;LAUNCHER" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/tests/${name}/*.cpp)
  add_executable(test_${name} ${sources})
  target_link_libraries(test_${name} PRIVATE r7_flags ${arg_LINKS} GTest::gtest_main)
  target_compile_definitions(test_${name} PRIVATE
    R7_TEST_DATA="${PROJECT_SOURCE_DIR}/tests/data" R7_RESOURCES="${PROJECT_SOURCE_DIR}/resources")
  add_test(NAME ${name} COMMAND ${arg_LAUNCHER} $<TARGET_FILE:test_${name}>)
endfunction()
