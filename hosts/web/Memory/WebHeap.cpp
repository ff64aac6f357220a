#include "WebHeap.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace gx::web {

// Pointers and addresses are converted all the time here, which is what an allocator does.
// NOLINTBEGIN(cppcoreguidelines-pro-type-reinterpret-cast,performance-no-int-to-ptr)
// NOLINTBEGIN(cppcoreguidelines-pro-bounds-pointer-arithmetic)

namespace {

/// Larger requests are refused at once, so no sum of sizes can overflow.
constexpr std::size_t largestSize = std::size_t{1} << 31U;

} // namespace

std::size_t WebHeap::classOfUnits(std::size_t units) {
    if (units <= 8) return units;
    const auto width = static_cast<std::size_t>(std::bit_width(units - 1));
    return 8 + (width - 4) * 4 + ((units - 1) >> (width - 3)) - 3;
}

std::size_t WebHeap::unitsOfClass(std::size_t sizeClass) {
    if (sizeClass <= 8) return sizeClass;
    const std::size_t doubling = (sizeClass - 9) / 4;
    const std::size_t quarter = (sizeClass - 9) % 4;
    return (quarter + 5) << (doubling + 1);
}

void* WebHeap::allocate(std::size_t size) {
    if (size > largestSize) return nullptr;
    const std::size_t sizeClass = classOfUnits((size + sizeof(Header) + unit - 1) / unit);
    void* pointer = takeFree(sizeClass);
    if (!pointer) pointer = takeFresh(sizeClass);
    // Better a block that is too large than none.
    for (std::size_t larger = sizeClass + 1; !pointer && larger <= classCount; ++larger) pointer = takeFree(larger);
    if (!pointer) return nullptr;
    (static_cast<Header*>(pointer) - 1)->size = static_cast<std::uint32_t>(size);
    liveBytes_ += size;
    return pointer;
}

void* WebHeap::takeFree(std::size_t sizeClass) {
    Free* block = free_[sizeClass];
    if (block) free_[sizeClass] = block->next;
    return block;
}

void* WebHeap::takeFresh(std::size_t sizeClass) {
    const std::size_t bytes = unitsOfClass(sizeClass) * unit;
    if (end_ - fresh_ < bytes && !grow(bytes)) return nullptr;
    auto* header = reinterpret_cast<Header*>(fresh_);
    header->sizeClass = static_cast<std::uint32_t>(sizeClass);
    fresh_ += bytes;
    return header + 1;
}

bool WebHeap::grow(std::size_t bytes) {
    // With room for what alignment takes off at the start; in whole pages, so that one growth goes
    // on where the last one ended.
    const std::size_t needed = (bytes + 2 * unit + pageSize - 1) / pageSize * pageSize;
    const std::size_t wanted = std::max(needed, smallestGrowth);
    // Each try may take memory, which any_of would hide. NOLINTNEXTLINE(readability-use-anyofallof)
    for (const std::size_t step : {wanted, needed}) {
        if (step > limit_ || taken_ > limit_ - step) continue;
        const auto begin = reinterpret_cast<std::uintptr_t>(growth_(step));
        if (begin == 0) continue;
        taken_ += step;
        // What is left of the memory before goes on if the new one lies behind it.
        if (begin != end_ + sizeof(Header)) fresh_ = (begin + unit - 1) / unit * unit + unit - sizeof(Header);
        end_ = (begin + step) / unit * unit - sizeof(Header);
        return true;
    }
    return false;
}

void WebHeap::release(void* pointer) {
    if (!pointer) return;
    const Header& header = *(static_cast<Header*>(pointer) - 1);
    liveBytes_ -= header.size;
    auto* block = static_cast<Free*>(pointer);
    block->next = free_[header.sizeClass];
    free_[header.sizeClass] = block;
}

// NOLINTEND(cppcoreguidelines-pro-bounds-pointer-arithmetic)
// NOLINTEND(cppcoreguidelines-pro-type-reinterpret-cast,performance-no-int-to-ptr)

} // namespace gx::web
