# One library a folder, one test program a folder.

# r7_library(NAME FOLDER_GLOB... LINKS libraries...): a static library of the .cpp files that match.
function(r7_library name)
  cmake_parse_arguments(arg "" "" "SOURCES;LINKS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${arg_SOURCES})
  add_library(${name} STATIC ${sources})
  set_target_properties(${name} PROPERTIES POSITION_INDEPENDENT_CODE ON)
  target_link_libraries(${name} PUBLIC r7_flags ${arg_LINKS})
endfunction()

# r7_test(NAME LINKS libraries...): the GoogleTest program of tests/NAME.
function(r7_test name)
  cmake_parse_arguments(arg "" "" "LINKS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/tests/${name}/*.cpp)
  add_executable(test_${name} ${sources})
  target_link_libraries(test_${name} PRIVATE r7_flags ${arg_LINKS} GTest::gtest_main)
  target_compile_definitions(test_${name} PRIVATE
    R7_TEST_DATA="${PROJECT_SOURCE_DIR}/tests/data" R7_RESOURCES="${PROJECT_SOURCE_DIR}/resources")
  add_test(NAME ${name} COMMAND test_${name})
endfunction()
