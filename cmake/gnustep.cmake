# AppKit where there is no Mac: the target r7_gnustep, for Objective-C++ targets that link it. Where GNUstep or an
# Objective-C++ compiler is not installed there is no such target, and a message says so.
include_guard(GLOBAL)

find_program(GNUSTEP_CONFIG gnustep-config)
if(NOT GNUSTEP_CONFIG)
  message(STATUS "GNUstep is not installed: the view bundle is left out")
  return()
endif()
execute_process(COMMAND ${GNUSTEP_CONFIG} --objc-flags OUTPUT_VARIABLE objc_flags OUTPUT_STRIP_TRAILING_WHITESPACE)
execute_process(COMMAND ${GNUSTEP_CONFIG} --gui-libs OUTPUT_VARIABLE gui_libraries OUTPUT_STRIP_TRAILING_WHITESPACE)
separate_arguments(objc_flags UNIX_COMMAND "${objc_flags}")
separate_arguments(gui_libraries UNIX_COMMAND "${gui_libraries}")
list(REMOVE_ITEM objc_flags -MMD -MP -Wall -g -O2 -I.)
if(CMAKE_CXX_COMPILER_ID MATCHES "Clang")
  # GNUstep's runtime, and its headers, which are GCC's; behind clang's own, some of which GCC's would hide.
  execute_process(COMMAND gcc -print-file-name=include OUTPUT_VARIABLE gcc_headers OUTPUT_STRIP_TRAILING_WHITESPACE)
  list(APPEND objc_flags -fobjc-runtime=gcc -idirafter ${gcc_headers})
else()
  # GCC leaves C++ members of Objective-C objects neither constructed nor destroyed unless it is told to.
  list(APPEND objc_flags -fobjc-call-cxx-cdtors)
endif()

# Enabling a language that is not there would be an error. Left alone, CMake would take any clang++ for it.
execute_process(COMMAND ${CMAKE_CXX_COMPILER} -x objective-c++ ${objc_flags} -include AppKit/AppKit.h
                        -w -fsyntax-only /dev/null
                RESULT_VARIABLE failed OUTPUT_QUIET ERROR_QUIET)
if(failed)
  message(STATUS "The compiler takes no Objective-C++ with AppKit: the view bundle is left out")
  return()
endif()
set(CMAKE_OBJCXX_COMPILER ${CMAKE_CXX_COMPILER} CACHE FILEPATH "Objective-C++ compiler")
enable_language(OBJCXX)

# The headers are not ours to warn about. CMake hands no standard on to GCC for Objective-C++, and GNUstep's macros
# want GNU's.
set(headers ${objc_flags})
list(FILTER headers INCLUDE REGEX "^-I/")
list(TRANSFORM headers REPLACE "^-I" "")
list(FILTER objc_flags EXCLUDE REGEX "^-I")
list(APPEND objc_flags -std=gnu++20)
add_library(r7_gnustep INTERFACE)
target_include_directories(r7_gnustep SYSTEM INTERFACE ${headers})
target_compile_options(r7_gnustep INTERFACE "$<$<COMPILE_LANGUAGE:OBJCXX>:SHELL:$<JOIN:${objc_flags}, >>")
target_link_libraries(r7_gnustep INTERFACE ${gui_libraries} -lobjc)
