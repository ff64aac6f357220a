#pragma once

#include <cstddef>

/// How often memory was taken from the heap so far. Only in executables that count, see
/// `AllocationCount.cpp`.
std::size_t allocationCount();

/// How often an act takes memory.
template <class Act>
std::size_t allocationsOf(Act act) {
    const std::size_t before = allocationCount();
    act();
    return allocationCount() - before;
}
