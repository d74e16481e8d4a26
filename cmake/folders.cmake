# One library a folder, one test program a folder.

# r7_library(NAME FOLDER_GLOB... LINKS libraries...): a static library of the .cpp files that match.
function(r7_library name)
  cmake_parse_arguments(arg "" "" "SOURCES;LINKS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${arg_SOURCES})
  add_library(${name} STATIC ${sources})
  set_target_properties(${name} PROPERTIES POSITION_INDEPENDENT_CODE ON)
  target_link_libraries(${name} PUBLIC r7_flags ${arg_LINKS})
endfunction()

# r7_process_library(NAME SOURCES globs... LINKS libraries...): a library that keeps what a process has one of, like
# the audio units in it. Programs have it in them, as from r7_library, unless they load bundles that must see
# the same: these programs and bundles have the property R7_SHARES_PROCESS, and link it as a shared library.
function(r7_process_library name)
  cmake_parse_arguments(arg "" "" "SOURCES;LINKS" ${ARGN})
  r7_library(${name}_static ${ARGN})
  add_library(${name}_shared SHARED $<TARGET_OBJECTS:${name}_static>)
  set_target_properties(${name}_shared PROPERTIES LINKER_LANGUAGE CXX OUTPUT_NAME ${name} R7_SHARES_PROCESS ON)
  target_link_libraries(${name}_shared PUBLIC r7_flags ${arg_LINKS})
  add_library(${name} INTERFACE)
  target_link_libraries(${name} INTERFACE
    ${name}_$<IF:$<BOOL:$<TARGET_PROPERTY:R7_SHARES_PROCESS>>,shared,static>)
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
