#include <runtime/heap.h>

#include <cstdint>
#include <cstring>

#include <gtest/gtest.h>

namespace {

TEST(Heap, CountsTheBlocksInUse)
{
    const long long before = kdHeapBlocksInUse();
    void* one = kdHeapAlloc(10);
    void* two = kdHeapAlloc(20);
    EXPECT_EQ(kdHeapBlocksInUse(), before + 2);
    kdHeapFree(one);
    EXPECT_EQ(kdHeapBlocksInUse(), before + 1);
    kdHeapFree(two);
    EXPECT_EQ(kdHeapBlocksInUse(), before);
}

TEST(Heap, FreesNothingForNull)
{
    const long long before = kdHeapBlocksInUse();
    kdHeapFree(nullptr);
    EXPECT_EQ(kdHeapBlocksInUse(), before);
}

TEST(Heap, GivesABlockForNoBytesToo)
{
    void* block = kdHeapAlloc(0);
    EXPECT_NE(block, nullptr);
    kdHeapFree(block);
}

TEST(Heap, AlignsForEveryType)
{
    for (const std::size_t size : {1u, 7u, 33u, 1000u}) {
        void* block = kdHeapAlloc(size);
        EXPECT_EQ(reinterpret_cast<std::uintptr_t>(block) % alignof(std::max_align_t), 0u);
        std::memset(block, 0xAB, size);
        kdHeapFree(block);
    }
}

} // namespace
