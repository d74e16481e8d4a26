// The operators that count; in a file of their own, so that no call of them is seen through.
#include "tests/support/counted_allocations.h"

#include <cstdlib>
#include <new>

namespace {
thread_local std::size_t count = 0;
}

std::size_t r7::allocations()
{
    return count;
}

void* operator new(std::size_t size)
{
    ++count;
    if (void* memory = std::malloc(size)) return memory;
    throw std::bad_alloc();
}
// Not counted, but taken from the same place: others in the process free what they get from it below.
void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    return std::malloc(size);
}
void operator delete(void* memory) noexcept
{
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}
