# The flags that every target of this project is compiled with.
#
# The numbers are part of the contract: no contraction to fused operations, no fast mathematics, and no
# vectoriser over straight-line code, which in GCC 12 drops a narrowing to single precision when it packs the two
# coordinates of a point.
add_library(r7_flags INTERFACE)
target_compile_options(r7_flags INTERFACE
  -Wall -Wextra -Wshadow -Wconversion
  -ffp-contract=off)
# On a Mac nobody has yet seen which warnings its own headers give.
if(NOT APPLE)
  target_compile_options(r7_flags INTERFACE -Werror)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  target_compile_options(r7_flags INTERFACE -fno-tree-slp-vectorize)
else()
  target_compile_options(r7_flags INTERFACE -fno-slp-vectorize)
endif()
target_include_directories(r7_flags INTERFACE ${PROJECT_SOURCE_DIR})

if(R7_SANITIZE STREQUAL "address")
  # GCC leaves float-cast-overflow out of "undefined". Division by zero is arithmetic here, not a mistake.
  set(sanitizers -fsanitize=address,undefined,float-cast-overflow -fno-sanitize-recover=all)
elseif(R7_SANITIZE STREQUAL "thread")
  set(sanitizers -fsanitize=thread)
elseif(R7_SANITIZE)
  message(FATAL_ERROR "R7_SANITIZE is \"${R7_SANITIZE}\"; it takes address or thread")
endif()
if(R7_SANITIZE)
  # What sanitizers add to the code makes GCC 12 see uninitialized values that are not there.
  target_compile_options(r7_flags INTERFACE
    ${sanitizers} -fno-omit-frame-pointer -g1 $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
  target_link_options(r7_flags INTERFACE ${sanitizers})
endif()
