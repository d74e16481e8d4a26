# AppKit, for Objective-C++ targets that link r7_appkit: the system's on a Mac, elsewhere GNUstep's. Where there is
# neither there is no such target.
include_guard(GLOBAL)

if(APPLE)
  enable_language(OBJCXX)
  add_library(r7_appkit INTERFACE)
  target_compile_options(r7_appkit INTERFACE $<$<COMPILE_LANGUAGE:OBJCXX>:-fno-objc-arc>)
  target_link_libraries(r7_appkit INTERFACE "-framework AppKit" "-framework AudioUnit" "-framework AudioToolbox"
    "-framework CoreFoundation")
  set(CMAKE_OBJCXX_STANDARD 20)
  # The bundle's C++ is nobody else's, and another version of it may live in the same host.
  set(CMAKE_CXX_VISIBILITY_PRESET hidden)
  set(CMAKE_OBJCXX_VISIBILITY_PRESET hidden)
  set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
  return()
endif()

include(cmake/gnustep.cmake)
if(TARGET r7_gnustep)
  add_library(r7_appkit ALIAS r7_gnustep)
endif()
