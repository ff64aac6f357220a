#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace gx::web {

/// The memory that a module hands out, in a small fraction of the code of a general allocator.
///
/// - A block has one of a hundred sizes, four to a doubling, so at most a fifth of it is unused.
/// - A block that is given back waits for the next request of its size: a few steps.
/// - Memory never goes back to the system, whose interface has no way for it.
///
/// For one thread. For everything else take the standard library's.
class WebHeap {
public:
    /// The system's memory grows by such pages, of WebAssembly.
    static constexpr std::size_t pageSize = 65536;
    /// Makes the memory larger by so many bytes, a multiple of the page size, and returns where
    /// they begin; null if there is no more.
    using Growth = void* (*)(std::size_t bytes);

    constexpr explicit WebHeap(Growth growth) : growth_(growth) {}

    /// Aligned for every type. Null if there is no memory left.
    void* allocate(std::size_t size);
    /// A null pointer is ignored.
    void release(void* pointer);

    /// The sum of the sizes that are in use, as they were asked for.
    std::size_t liveBytes() const { return liveBytes_; }
    /// What it may take from the system, in bytes.
    void setLimit(std::size_t limit) { limit_ = limit; }

private:
    // Sizes are counted in units of 16 bytes, the alignment.
    static constexpr std::size_t unit = 16;
    /// The sizes of one to eight units have a class each, and every doubling from there four.
    static constexpr std::size_t classCount = 108;
    /// Chosen: seldom asks the system, and wastes little.
    static constexpr std::size_t smallestGrowth = std::size_t{1} << 18U;

    /// In front of what the caller gets, which begins at a multiple of 16.
    struct Header {
        std::uint32_t sizeClass;
        std::uint32_t size;
    };
    struct Free {
        Free* next;
    };

    static std::size_t classOfUnits(std::size_t units);
    static std::size_t unitsOfClass(std::size_t sizeClass);
    void* takeFree(std::size_t sizeClass);
    void* takeFresh(std::size_t sizeClass);
    bool grow(std::size_t bytes);

    Growth growth_;
    std::array<Free*, classCount + 1> free_{};
    /// What has never been handed out; both are 8 below a multiple of 16.
    std::uintptr_t fresh_ = 0;
    std::uintptr_t end_ = 0;
    std::size_t taken_ = 0;
    std::size_t limit_ = SIZE_MAX;
    std::size_t liveBytes_ = 0;
};

} // namespace gx::web
