#include <database/arena.h>

#include <cstdint>
#include <cstring>
#include <set>

#include <gtest/gtest.h>

namespace {

TEST(Arena, ReservesNothingBeforeItIsAsked)
{
    EXPECT_EQ(KdDbArena().bytesReserved(), 0u);
}

TEST(Arena, AlignsWhatItGives)
{
    KdDbArena arena;
    for (const std::size_t alignment : {1u, 16u, 1u, 8u, 2u, 4u, 16u}) {
        const auto place = reinterpret_cast<std::uintptr_t>(arena.allocate(3, alignment));
        EXPECT_EQ(place % alignment, 0u) << alignment;
    }
}

TEST(Arena, GivesPlacesThatDoNotOverlap)
{
    constexpr std::size_t kSize = 1000;
    constexpr std::size_t kCount = 5000; // more than one block holds
    KdDbArena arena;
    std::set<std::uintptr_t> places;
    for (std::size_t i = 0; i < kCount; ++i) {
        void* place = arena.allocate(kSize, 8);
        std::memset(place, 0x5A, kSize);
        places.insert(reinterpret_cast<std::uintptr_t>(place));
    }
    ASSERT_EQ(places.size(), kCount);
    std::uintptr_t end = 0;
    for (const std::uintptr_t place : places) {
        EXPECT_GE(place, end);
        end = place + kSize;
    }
    EXPECT_GE(arena.bytesReserved(), kCount * kSize);
    EXPECT_LE(arena.bytesReserved(), 2 * kCount * kSize);
}

TEST(Arena, HoldsWhatIsLargerThanABlock)
{
    constexpr std::size_t kSize = 5'000'000;
    KdDbArena arena;
    std::memset(arena.allocate(kSize, 16), 1, kSize);
    std::memset(arena.allocate(10, 16), 2, 10);
    EXPECT_GE(arena.bytesReserved(), kSize);
}

TEST(Arena, BuildsObjects)
{
    struct Pair
    {
        int first = 1;
        double second = 2.5;
    };
    KdDbArena arena;
    const Pair* pair = arena.make<Pair>();
    EXPECT_EQ(pair->first, 1);
    EXPECT_EQ(pair->second, 2.5);
}

} // namespace
