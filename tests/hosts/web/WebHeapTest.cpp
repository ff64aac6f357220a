#include "WebHeap.h"

#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <random>
#include <vector>

namespace gx::web {
namespace {

/// Memory that grows at its end, as a module's does.
struct Memory {
    static constexpr std::size_t size = std::size_t{1} << 24U;
    alignas(16) std::array<char, size> bytes;
    std::size_t used = 0;
    std::size_t growths = 0;
};

Memory& memory() {
    static Memory memory;
    return memory;
}

void* growMemory(std::size_t bytes) {
    if (bytes > Memory::size - memory().used) return nullptr;
    void* begin = &memory().bytes[memory().used];
    memory().used += bytes;
    ++memory().growths;
    return begin;
}

class WebHeapTest : public testing::Test {
protected:
    void SetUp() override {
        memory().used = 0;
        memory().growths = 0;
    }
    WebHeap heap_{growMemory};
};

bool isAligned(const void* pointer) { return reinterpret_cast<std::uintptr_t>(pointer) % 16 == 0; }

TEST_F(WebHeapTest, BlocksOfEverySizeAreAlignedAndApart) {
    struct Block {
        char* begin;
        std::size_t size;
    };
    std::vector<Block> blocks;
    for (std::size_t size = 0; size < 3000; ++size) {
        auto* begin = static_cast<char*>(heap_.allocate(size));
        ASSERT_TRUE(begin) << size;
        ASSERT_TRUE(isAligned(begin)) << size;
        std::memset(begin, static_cast<int>(size % 251), size);
        blocks.push_back({begin, size});
    }
    for (const Block& block : blocks) {
        for (std::size_t i = 0; i < block.size; ++i) ASSERT_EQ(static_cast<unsigned char>(block.begin[i]), block.size % 251) << block.size;
    }
}

TEST_F(WebHeapTest, RandomWorkKeepsEveryBlockAsItWasWritten) {
    struct Block {
        unsigned char* begin;
        std::size_t size;
        unsigned char mark;
    };
    std::vector<Block> blocks;
    std::mt19937 random(7); // NOLINT(cert-msc51-cpp): the same each time
    std::size_t live = 0;
    for (int step = 0; step < 100000; ++step) {
        if (blocks.size() < 200 || (blocks.size() < 400 && random() % 2 == 0)) {
            const std::size_t size = random() % 7 == 0 ? random() % 20000 : random() % 200;
            const auto mark = static_cast<unsigned char>(random());
            auto* begin = static_cast<unsigned char*>(heap_.allocate(size));
            ASSERT_TRUE(begin);
            std::memset(begin, mark, size);
            blocks.push_back({begin, size, mark});
            live += size;
        } else {
            const std::size_t at = random() % blocks.size();
            const Block block = blocks[at];
            for (std::size_t i = 0; i < block.size; ++i) ASSERT_EQ(block.begin[i], block.mark);
            heap_.release(block.begin);
            blocks[at] = blocks.back();
            blocks.pop_back();
            live -= block.size;
        }
        ASSERT_EQ(heap_.liveBytes(), live);
    }
    EXPECT_LT(memory().used, std::size_t{10} << 20U) << "of at most 400 blocks of 20 kB each, few of which are large";
}

TEST_F(WebHeapTest, BlocksThatWereGivenBackAreTakenAgain) {
    void* first = heap_.allocate(100);
    heap_.release(first);
    EXPECT_EQ(heap_.allocate(100), first);
    EXPECT_EQ(heap_.liveBytes(), 100U);
}

TEST_F(WebHeapTest, TheSameWorkTakesNoMoreMemory) {
    const auto work = [this] {
        std::vector<void*> blocks;
        for (std::size_t i = 0; i < 5000; ++i) blocks.push_back(heap_.allocate(i % 700));
        for (void* block : blocks) heap_.release(block);
    };
    work();
    const std::size_t used = memory().used;
    for (int i = 0; i < 20; ++i) work();
    EXPECT_EQ(memory().used, used);
    EXPECT_EQ(heap_.liveBytes(), 0U);
}

TEST_F(WebHeapTest, ABlockIsAtMostAQuarterLargerThanAskedFor) {
    for (const std::size_t size : {std::size_t{1000}, std::size_t{5000}, std::size_t{70000}, std::size_t{600000}}) {
        memory().used = 0;
        WebHeap heap(growMemory);
        std::size_t count = 0;
        heap.setLimit(std::size_t{1} << 23U);
        while (heap.allocate(size)) ++count;
        EXPECT_GT(static_cast<double>(count * size), 0.7 * (1U << 23U)) << size;
    }
}

TEST_F(WebHeapTest, NothingIsReleasedForANullPointer) {
    heap_.release(nullptr);
    EXPECT_EQ(heap_.liveBytes(), 0U);
}

TEST_F(WebHeapTest, BeyondTheLimitThereIsNothing) {
    heap_.setLimit(std::size_t{1} << 20U);
    std::vector<void*> blocks;
    while (void* block = heap_.allocate(1000)) blocks.push_back(block);
    EXPECT_LE(memory().used, std::size_t{1} << 20U);
    EXPECT_GT(blocks.size(), 700U);
    const std::size_t live = heap_.liveBytes();
    EXPECT_EQ(heap_.allocate(1000), nullptr);
    EXPECT_EQ(heap_.liveBytes(), live) << "what failed is not counted";
    heap_.release(blocks.back());
    EXPECT_EQ(heap_.allocate(1000), blocks.back()) << "it goes on with what is given back";
}

TEST_F(WebHeapTest, ALargerBlockServesWhenNothingElseIsLeft) {
    heap_.setLimit(std::size_t{1} << 20U);
    void* large = heap_.allocate(500000);
    ASSERT_TRUE(large);
    while (heap_.allocate(40)) {
    }
    heap_.release(large);
    EXPECT_EQ(heap_.allocate(40), large);
    EXPECT_EQ(heap_.allocate(40), nullptr);
    heap_.release(large);
    EXPECT_EQ(heap_.allocate(500000), large) << "it is as large as before";
}

TEST_F(WebHeapTest, RequestsThatCannotBeMetAreRefused) {
    EXPECT_EQ(heap_.allocate(SIZE_MAX), nullptr);
    EXPECT_EQ(heap_.allocate(SIZE_MAX - 8), nullptr);
    EXPECT_EQ(heap_.allocate(Memory::size + 1), nullptr);
    EXPECT_EQ(memory().used, 0U);
    EXPECT_TRUE(heap_.allocate(1));
}

TEST_F(WebHeapTest, MemoryIsAskedForInLargePieces) {
    for (int i = 0; i < 1000; ++i) ASSERT_TRUE(heap_.allocate(100));
    EXPECT_EQ(memory().growths, 1U);
}

} // namespace
} // namespace gx::web
