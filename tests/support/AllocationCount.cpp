// The operator new of this executable, which counts.

#include "AllocationCount.h"

#include <cstdlib>
#include <new>

namespace {
std::size_t allocations = 0;
}

std::size_t allocationCount() { return allocations; }

void* operator new(std::size_t size) {
    ++allocations;
    if (void* memory = std::malloc(size)) return memory;
    std::abort(); // Instead of an exception: the build that counts coverage has none.
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    ++allocations;
    return std::malloc(size);
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete(void* memory, const std::nothrow_t&) noexcept { std::free(memory); }
