// How often a thread has taken memory from the program's own operator new.
#pragma once

#include <cstddef>

namespace r7 {

/// By the calling thread, so far. A program that links this library gets its operators new and delete, too.
std::size_t allocations();

} // namespace r7
