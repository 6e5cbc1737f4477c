#include "bench/Allocations.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace {
std::atomic<long> count{0};
} // namespace

void* operator new(std::size_t size)
{
    ++count;
    if (void* memory = std::malloc(size))
        return memory;
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t /*size*/) noexcept
{
    std::free(memory);
}

namespace bench {

long allocations()
{
    return count;
}

} // namespace bench
